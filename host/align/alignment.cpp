// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/alignment.h"

#include "host/align/alignshoot.h"
#include "host/align/diagnosis.h"
#include "host/align/median.h"
#include "host/align/photometry.h"
#include "host/align/tiepoints.h"
#include "host/model/displayname.h"
#include "host/model/said.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace PanoHost
{

namespace
{

/** Points beyond this many standard deviations are wrong. */
constexpr double kWrongSigmas = 4.0;
/** No shoot slips more often; whoever bumps a tripod ten times takes another one. */
constexpr int kMostSlips = 3;

/** A control point between two images, and what the solver knows of it. */
struct FoundPoint {
    TiePoint tie; ///< between views
    int firstImage = 0;
    int secondImage = 0;
    bool isKept = false; ///< it was in the project before
    double firstLight = 0.0; ///< linear, 1: white; 0: not known
    double secondLight = 0.0;
};

TiePointOptions finderOptions(const AlignOptions &options)
{
    TiePointOptions made;
    made.widest = options.workSize;
    made.features.most = options.features;
    made.jobs = options.jobs;
    return made;
}

int matchedCount(const TiePoints &found)
{
    return static_cast<int>(
        std::count_if(found.pairs.cbegin(), found.pairs.cend(),
                      [](const TiePoints::Pair &pair) { return pair.points > 0; }));
}

/** Large shoots hold together with fewer points a pair: solver and Hugin would choke on more. */
int mostPointsOfPair(size_t pairs)
{
    constexpr size_t kMost = 1'000'000;
    constexpr size_t kEnough = 6;
    return static_cast<int>(std::max(kMost / std::max<size_t>(pairs, 1), kEnough));
}

/** One alignment, step by step; `run` is the order of things. */
class Run
{
public:
    Run(PtoFile project, AlignPlan plan, const AlignOptions &options, const JobWatch &watch)
        : m_project(std::move(project))
        , m_plan(std::move(plan))
        , m_options(options)
        , m_watch(watch)
        , m_shoot(shootOf(m_project))
        , m_recordedLenses(m_shoot.model.lenses)
    {
    }

    Result<Alignment> run();

private:
    void keepPoints();
    void choosePhotos();
    [[nodiscard]] HeadModel modelOfPhotos(const AlignShoot &shoot) const;
    [[nodiscard]] std::optional<Failure> readPhotos(TiePointFinder &finder);
    void look(TiePointFinder &finder, const TiePointFinder::Rules &rules,
              TiePointFinder::Afterwards afterwards);
    void checkOrder(TiePointFinder &finder);
    [[nodiscard]] IndexPairs indicesOf(const IndexPairs &images) const;
    void place(bool roughly);
    [[nodiscard]] std::vector<int> tiedViews() const;
    [[nodiscard]] bool isRight(size_t point) const
    {
        return m_solved.residuals[point] <= kWrongSigmas * m_solved.sigmaPixels;
    }
    void note(const QString &text) { m_report.notes.append(text); }
    [[nodiscard]] QString nothingFound() const;
    void writePoints();
    void writePlaces();
    void writeLight();
    void keepWhites(double usualExposure);
    void reportViews();
    void reportPoints();
    void reportHead();
    void reportFaults();

    PtoFile m_project;
    AlignPlan m_plan;
    const AlignOptions &m_options;
    const JobWatch &m_watch;
    AlignShoot m_shoot;
    std::vector<AlignLens> m_recordedLenses;
    IndexPairs m_pairs; ///< of images
    std::vector<int> m_photos; ///< the images that are in a pair, ascending
    std::vector<double> m_whiteShares; ///< one for each of the photos
    std::vector<FoundPoint> m_kept;
    std::vector<FoundPoint> m_points;
    SolveResult m_solved;
    std::vector<Slip> m_slips;
    AlignmentReport m_report;
};

Result<Alignment> Run::run()
{
    reportViews();
    if (!m_plan.detects) {
        note(Said::tr("no control points are wanted (automatic detection is off): kept as "
                      "recorded"));
        return Alignment{ m_project, m_report };
    }
    m_pairs = imagePairs(m_shoot, m_plan);
    m_report.pairCount = static_cast<int>(m_pairs.size());
    keepPoints();
    choosePhotos();
    std::vector<ViewPhoto> photos;
    for (const int image : m_photos) {
        photos.push_back({ m_project.images()[image].path, m_project.images()[image].size });
    }
    TiePointFinder finder(std::move(photos), finderOptions(m_options));
    if (const auto failure = readPhotos(finder)) {
        return *failure;
    }
    look(finder, m_plan.trustsRecord ? firstLook : anyLook,
         TiePointFinder::Afterwards::KeepFeatures);
    checkOrder(finder);
    place(true);
    look(finder, secondLook, TiePointFinder::Afterwards::ReleaseFeatures);
    place(false);
    reportPoints();
    if (m_report.pointCount == 0) {
        note(nothingFound());
        return Alignment{ m_project, m_report };
    }
    writePoints();
    if (!m_plan.places) {
        note(Said::tr("photos are left as recorded (optimisation is skipped)"));
    } else {
        m_report.isPlaced = true;
        writePlaces();
        if (m_options.photometry) {
            writeLight();
        }
        reportHead();
        reportFaults();
    }
    return Alignment{ m_project, m_report };
}

/** Why there are no points, for the user. */
QString Run::nothingFound() const
{
    if (m_project.images().size() == 1) {
        return Said::tr("there is one photo only: kept as recorded");
    }
    if (m_pairs.empty()) {
        return Said::tr("no two photos overlap where the record puts them: kept as recorded");
    }
    return Said::tr("no spot was found in two photos (nothing but sky or fog, or the photos are "
                    "not of this record): kept as recorded");
}

/** Photos of stacks that are not looked at are not read. */
void Run::choosePhotos()
{
    for (const auto &[first, second] : m_pairs) {
        m_photos.push_back(first);
        m_photos.push_back(second);
    }
    std::sort(m_photos.begin(), m_photos.end());
    m_photos.erase(std::unique(m_photos.begin(), m_photos.end()), m_photos.end());
}

/** The head of \p shoot with a view for each of the photos. */
HeadModel Run::modelOfPhotos(const AlignShoot &shoot) const
{
    HeadModel model = shoot.model;
    model.views.clear();
    model.corrections.clear();
    for (const int image : m_photos) {
        const auto view = static_cast<size_t>(shoot.viewOfImage[static_cast<size_t>(image)]);
        model.views.push_back(shoot.model.views[view]);
        model.corrections.push_back(shoot.model.corrections[view]);
    }
    return model;
}

/** Tells which photos cannot be used; refuses when none can. */
std::optional<Failure> Run::readPhotos(TiePointFinder &finder)
{
    finder.readFeatures(m_watch);
    int bad = 0;
    for (size_t i = 0; i < m_photos.size(); ++i) {
        m_whiteShares.push_back(finder.whiteShare(static_cast<int>(i)));
        if (const auto &failure = finder.leftOut(static_cast<int>(i))) {
            ++bad;
            note(Said::tr("%1; kept as recorded").arg(failure->text()));
        }
    }
    if (bad > 0 && bad == static_cast<int>(m_photos.size())) {
        Failure failure = *finder.leftOut(0);
        failure.tryThis = Said::tr("none of the photos can be used: were they moved since the "
                                   "import?");
        return failure;
    }
    return {};
}

/** Those that the project holds already count, and stay. */
void Run::keepPoints()
{
    if (!m_options.keepsPoints) {
        return;
    }
    for (const PtoPoint &point : m_project.points()) {
        FoundPoint kept;
        kept.firstImage = point.first;
        kept.secondImage = point.second;
        kept.tie = { m_shoot.viewOfImage[static_cast<size_t>(point.first)],
                     m_shoot.viewOfImage[static_cast<size_t>(point.second)],
                     { point.x1, point.y1 },
                     { point.x2, point.y2 } };
        kept.isKept = true;
        m_kept.push_back(kept);
    }
}

/** Looks at all pairs where the model expects them to overlap. */
void Run::look(TiePointFinder &finder, const TiePointFinder::Rules &rules,
               TiePointFinder::Afterwards afterwards)
{
    const auto fewer = [&](const AlignLens &lens) {
        MatchRules kept = rules(lens);
        kept.mostPoints = std::min(kept.mostPoints, mostPointsOfPair(m_pairs.size()));
        return kept;
    };
    const TiePoints found
        = finder.match(indicesOf(m_pairs), modelOfPhotos(m_shoot), fewer, m_watch, afterwards);
    m_points = m_kept;
    constexpr double kWhite = 65535.0;
    for (size_t i = 0; i < found.points.size(); ++i) {
        const TiePoint &point = found.points[i];
        FoundPoint added;
        added.firstLight = found.lights[i].first / kWhite;
        added.secondLight = found.lights[i].second / kWhite;
        added.firstImage = m_photos[static_cast<size_t>(point.first)];
        added.secondImage = m_photos[static_cast<size_t>(point.second)];
        added.tie = point;
        added.tie.first = m_shoot.viewOfImage[static_cast<size_t>(added.firstImage)];
        added.tie.second = m_shoot.viewOfImage[static_cast<size_t>(added.secondImage)];
        m_points.push_back(added);
    }
    m_report.matchedPairCount = matchedCount(found);
}

/** Pairs of images as pairs of the finder's photos, of those that it has. */
IndexPairs Run::indicesOf(const IndexPairs &images) const
{
    const auto indexOf = [this](int image) {
        const auto found = std::lower_bound(m_photos.begin(), m_photos.end(), image);
        return found == m_photos.end() || *found != image
            ? -1
            : static_cast<int>(found - m_photos.begin());
    };
    IndexPairs indices;
    for (const auto &[first, second] : images) {
        if (const QPair<int, int> pair(indexOf(first), indexOf(second));
            pair.first >= 0 && pair.second >= 0) {
            indices.push_back(pair);
        }
    }
    return indices;
}

/** Where many neighbours of a grid have nothing in common, another order may fit better. */
void Run::checkOrder(TiePointFinder &finder)
{
    constexpr double kSuspicious = 0.7;
    constexpr double kClearly = 1.25;
    const double share = m_report.matchedPairCount / double(std::max(m_report.pairCount, 1));
    if (m_plan.otherOrders.empty() || share > kSuspicious) {
        return;
    }
    AlignPlan overlapping = m_plan;
    overlapping.positionPairs.clear();
    double best = share * kClearly;
    QString order;
    for (const GridOrder &other : m_plan.otherOrders) {
        const AlignShoot shoot = reordered(m_shoot, other);
        const IndexPairs pairs = imagePairs(shoot, overlapping);
        const TiePoints found
            = finder.match(indicesOf(pairs), modelOfPhotos(shoot), firstLook, m_watch);
        const double matched = matchedCount(found) / double(std::max<size_t>(pairs.size(), 1));
        if (matched > best) {
            best = matched;
            order = other.name;
        }
    }
    if (!order.isEmpty()) {
        note(Said::tr("the photos fit the order '%1' better than '%2': import them with --mode %1")
                 .arg(order, m_plan.gridOrder));
    }
}

/** Solves for focal length and places, or for all that is free. */
void Run::place(bool roughly)
{
    SolveOptions trust = trustOf(m_plan, m_options);
    trust.recordedLenses = m_recordedLenses;
    if (roughly) {
        constexpr double kRoughPixels = 2.0;
        trust.freesA = trust.freesB = trust.freesC = false;
        trust.lossPixels = kRoughPixels;
    }
    std::vector<TiePoint> ties;
    ties.reserve(m_points.size());
    for (const FoundPoint &point : m_points) {
        ties.push_back(point.tie);
    }
    for (int slips = 0; slips <= kMostSlips; ++slips) {
        m_solved = solve(m_shoot.model, ties, trust, m_watch);
        const auto slip = m_plan.trustsRecord ? findSlip(m_shoot.model, tiedViews()) : std::nullopt;
        if (!slip) {
            return;
        }
        undoSlip(m_shoot.model, *slip);
        m_slips.push_back(*slip);
    }
}

std::vector<int> Run::tiedViews() const
{
    std::vector<int> counts(m_shoot.model.views.size());
    for (size_t i = 0; i < m_points.size(); ++i) {
        if (isRight(i)) {
            ++counts[static_cast<size_t>(m_points[i].tie.first)];
            ++counts[static_cast<size_t>(m_points[i].tie.second)];
        }
    }
    std::vector<int> tied;
    for (size_t view = 0; view < counts.size(); ++view) {
        if (counts[view] >= AlignedPhoto::kHoldingPoints && m_shoot.model.views[view].stack < 0) {
            tied.push_back(static_cast<int>(view));
        }
    }
    return tied;
}

void Run::writePoints()
{
    QVector<PtoPoint> points;
    for (size_t i = 0; i < m_points.size(); ++i) {
        const FoundPoint &found = m_points[i];
        if (isRight(i) || found.isKept || !m_plan.cleans) {
            points.append({ found.firstImage, found.secondImage, found.tie.inFirst.x(),
                            found.tie.inFirst.y(), found.tie.inSecond.x(), found.tie.inSecond.y(),
                            !isRight(i) });
        }
    }
    m_project.setPoints(points);
    m_project.keepRecord(recordKindName(m_plan.kind).toLatin1());
}

void Run::writePlaces()
{
    const HeadModel &model = m_shoot.model;
    const bool levels = m_options.levels.value_or(m_plan.kind == RecordKind::Grid);
    const Eigen::Matrix3d upright = levels ? levelling(model) : Eigen::Matrix3d::Identity();
    for (size_t view = 0; view < model.views.size(); ++view) {
        const Angles angles = anglesOf(upright * model.rotation(static_cast<int>(view)));
        m_report.photos[static_cast<int>(view)].aligned = angles;
        m_project.place(m_shoot.imageOfView[view], { angles, {} });
    }
    for (int image = 0; image < m_project.images().size(); ++image) {
        if (m_project.images()[image].lensMaster < 0) {
            const int view = m_shoot.viewOfImage[static_cast<size_t>(image)];
            const AlignLens &lens = model.lensOf(view);
            m_project.setLens(
                image,
                { horizontalFovDegrees(lens.size, focal35mmOf(lens.size, lens.focalPixels),
                                       lens.model),
                  lens.a, lens.b, lens.c });
        }
    }
    if (m_project.isOurs()) {
        m_project.layOutCanvas();
    }
}

/** Exposures and vignetting, from how bright photos show the same spots. */
void Run::writeLight()
{
    constexpr int kEnoughPoints = 50;
    const HeadModel &model = m_shoot.model;
    std::vector<LightPoint> points;
    for (size_t i = 0; i < m_points.size(); ++i) {
        if (isRight(i) && !m_points[i].isKept) {
            points.push_back({ m_points[i].tie, m_points[i].firstLight, m_points[i].secondLight });
        }
    }
    std::vector<double> known;
    for (const int image : m_shoot.imageOfView) {
        if (const auto value = m_project.images()[image].exposureValue) {
            known.push_back(*value);
        }
    }
    const double usual = median(known);
    PhotometryOptions trust;
    for (const int image : m_shoot.imageOfView) {
        trust.recordedValues.push_back(m_project.images()[image].exposureValue.value_or(usual));
    }
    const Photometry light = solvePhotometry(model.views, model.lenses, points, trust, m_watch);
    if (light.pointsUsed < kEnoughPoints) {
        return;
    }
    for (size_t view = 0; view < model.views.size(); ++view) {
        m_report.exposureShifts.append(light.exposureValues[view] - trust.recordedValues[view]);
    }
    for (int i = 0; i < m_project.images().size(); ++i) {
        const PtoImage &image = m_project.images()[i];
        const int view = m_shoot.viewOfImage[static_cast<size_t>(i)];
        m_project.place(
            i,
            { image.angles, image.exposureValue.value_or(usual) + m_report.exposureShifts[view] });
        if (image.lensMaster < 0) {
            const int lens = model.views[static_cast<size_t>(view)].lens;
            m_project.setLens(i,
                              { image.horizontalFovDegrees, image.a, image.b, image.c,
                                light.vignetting[static_cast<size_t>(lens)] });
        }
    }
    const Vignetting &first = light.vignetting.front();
    m_report.cornerLight = 1.0 + first.b + first.c + first.d;
    if (m_project.isOurs()) {
        keepWhites(usual);
    }
}

/**
 * What is white in a photo would be grey in a panorama darker than it: that becomes as bright as
 * the brightest exposed photo with white in it, but not more than a stop brighter than usual.
 */
void Run::keepWhites(double usualExposure)
{
    constexpr double kSomeWhite = 0.01;
    constexpr double kMostStops = 1.0;
    double exposure = usualExposure;
    for (size_t i = 0; i < m_photos.size(); ++i) {
        const PtoImage &image = m_project.images()[m_photos[i]];
        if (image.stackMaster < 0 && m_whiteShares[i] >= kSomeWhite) {
            exposure = std::min(exposure, image.exposureValue.value_or(usualExposure));
        }
    }
    const double stops = std::min(usualExposure - exposure, kMostStops);
    if (stops > 0.0) {
        m_project.setExposure(usualExposure - stops);
    }
    constexpr double kVisibleStops = 0.2;
    if (stops >= kVisibleStops) {
        note(Said::tr("the panorama is made %1 stops brighter: what is white in a photo stays "
                      "white")
                 .arg(stops, 0, 'f', 1));
    }
}

void Run::reportViews()
{
    for (size_t view = 0; view < m_shoot.model.views.size(); ++view) {
        AlignedPhoto photo;
        photo.path = m_project.images()[m_shoot.imageOfView[view]].path;
        photo.recorded = m_shoot.model.views[view].recorded;
        photo.aligned = anglesOf(m_shoot.model.rotation(static_cast<int>(view)));
        m_report.photos.append(photo);
    }
    m_report.isGrid = m_plan.kind == RecordKind::Grid;
    m_report.recordedFocal35mm = m_recordedLenses.size() == 1
        ? focal35mmOf(m_recordedLenses.front().size, m_recordedLenses.front().focalPixels)
        : 0.0;
}

void Run::reportPoints()
{
    std::vector<double> right;
    for (size_t i = 0; i < m_points.size(); ++i) {
        if (!isRight(i)) {
            ++m_report.wrongPointCount;
            continue;
        }
        right.push_back(m_solved.residuals[i]);
        ++m_report.photos[m_points[i].tie.first].points;
        ++m_report.photos[m_points[i].tie.second].points;
    }
    m_report.pointCount = static_cast<int>(right.size());
    m_report.medianPixels = median(std::move(right));
}

void Run::reportHead()
{
    const HeadModel &model = m_shoot.model;
    HeadModel still = model;
    std::fill(still.corrections.begin(), still.corrections.end(), Angles());
    for (size_t view = 0; view < model.views.size(); ++view) {
        const int i = static_cast<int>(view);
        m_report.photos[i].movedDegrees = degreesBetween(model.rotation(i), still.rotation(i));
    }
    if (m_plan.trustsRecord) {
        m_report.playDegrees = playOf(model, tiedViews());
    }
    m_report.mountPitchDegrees = model.mountPitchDegrees;
    m_report.mountRollDegrees = model.mountRollDegrees;
    m_report.yawScale = model.yawScale;
    m_report.pitchScale = model.pitchScale;
    if (model.lenses.size() == 1) {
        const AlignLens &lens = model.lenses.front();
        m_report.focal35mm = focal35mmOf(lens.size, lens.focalPixels);
        m_report.distortionA = lens.a;
        m_report.distortionB = lens.b;
        m_report.distortionC = lens.c;
    }
}

void Run::reportFaults()
{
    const auto pathOf = [this](int view) {
        return m_project.images()[m_shoot.imageOfView[static_cast<size_t>(view)]].path;
    };
    for (const Slip &slip : m_slips) {
        m_report.slips.append({ pathOf(slip.view), slip.yawDegrees, slip.pitchDegrees });
    }
    if (m_plan.trustsRecord) {
        for (const Bump &bump : findBumps(m_shoot.model, tiedViews())) {
            m_report.bumps.append({ pathOf(bump.view), bump.degrees });
        }
    }
    std::vector<TiePoint> right;
    for (size_t i = 0; i < m_points.size(); ++i) {
        if (isRight(i)) {
            right.push_back(m_points[i].tie);
        }
    }
    constexpr double kVisiblePixels = 0.5;
    const double reduced = double(m_shoot.model.lenses.front().size.width()) / m_options.workSize;
    m_report.parallaxPixels
        = parallaxPixels(m_shoot.model, right, kVisiblePixels * std::max(1.0, reduced));
}

} // namespace

Result<Alignment> align(const Panorama &panorama, const PtoOptions &projectOptions,
                        const AlignOptions &options, const JobWatch &watch)
{
    auto project = projectOf(panorama, projectOptions);
    if (!project) {
        return project.error();
    }
    return Run(std::move(project).value(), planOf(panorama, projectOptions.ignoreExifRotation),
               options, watch)
        .run();
}

Result<Alignment> align(const PtoFile &project, const AlignOptions &options, const JobWatch &watch)
{
    return Run(project, planOf(project), options, watch).run();
}

} // namespace PanoHost
