// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/photoquality.h"

#include "host/align/matching.h"
#include "host/check/overlapdetail.h"
#include "host/model/panorama.h"
#include "host/model/parallel.h"

#include <QFileInfo>
#include <QMap>

#include <algorithm>
#include <cmath>
#include <vector>

namespace PanoHost
{

namespace
{

/** Pixels to the width in which sharpness is judged: half of what usual cameras take. */
constexpr int kWidest = 2400;
constexpr int kFeatureWidth = 900;
constexpr int kMostFeatures = 960; // ten for each cell
constexpr size_t kLeastPoints = 10; // by chance, wrong matches agree less often
constexpr std::uint32_t kSeed = 1;

constexpr double kAlike = 0.85; ///< correlation of two photos that show the same
constexpr double kLeastDetail = 12.0; ///< mean square, levels: noise makes less
/** Of sound shoots the median of a photo's neighbours is above -0.9; blurred by a circle of 5
 * pixels, below -1.3. */
constexpr double kBlurred = -1.25;
constexpr double kLost = 0.6; ///< share of what neighbours show
constexpr double kSameExposure = 0.15; ///< stops
constexpr double kOtherExposure = 0.5;
constexpr int kLeastOfLevel = 5; ///< fewer do not tell what is usual
/** Without a focal length: what matters little for photos of nearly the same view. */
constexpr double kAnyFocal35mm = 28.0;

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/** How far \p second is shifted against \p first, pixels; nothing where neither can be told. */
std::optional<double> shiftBetween(const MatchSide &first, const MatchSide &second)
{
    const PairMatches found
        = matchPair(first, second, Eigen::Matrix3d::Identity(), anyLook(second.lens), kSeed);
    if (found.pairs.size() < kLeastPoints) {
        return {};
    }
    std::vector<double> across;
    std::vector<double> down;
    for (const auto &[one, other] : found.pairs) {
        const FeatureSet::Place &here = first.features.places[static_cast<size_t>(one)];
        const FeatureSet::Place &there = second.features.places[static_cast<size_t>(other)];
        across.push_back(double(there.x) - here.x);
        down.push_back(double(there.y) - here.y);
    }
    return std::hypot(median(std::move(across)), median(std::move(down)));
}

/** A few pixels of what the camera takes: more than the shutter shakes it. */
double mostShift(const QSize &size)
{
    return std::max(2.0, 0.001 * size.width());
}

class Judge
{
public:
    Judge(const QVector<ShotPhoto> &photos, const KnownLens &lens, const JobWatch &watch, int jobs)
        : m_photos(photos)
        , m_watch(watch)
        , m_jobs(jobs)
        , m_knowsLens(lens.focal35mm > 0.0)
        , m_seen(static_cast<size_t>(photos.size()))
    {
        for (int i = 0; i < photos.size(); ++i) {
            const ShotPhoto &shot = photos.at(i);
            AlignLens own;
            own.size = shot.photo.storedSize;
            own.model = lens.lens == LensModel::Fisheye ? LensModel::Fisheye : LensModel::Standard;
            own.focalPixels = focalPixels(own.size, m_knowsLens ? lens.focal35mm : kAnyFocal35mm);
            m_lenses.push_back(own);
            m_rotations.emplace_back(rotationOf(shot.recorded)
                                     * rotationOf({ 0.0, 0.0, shot.turnDegrees }));
            if (i == 0 || shot.position != photos.at(i - 1).position) {
                m_positions.emplace_back();
            }
            m_positions.back().push_back(static_cast<size_t>(i));
        }
    }

    PhotoQuality judged()
    {
        forEachRow(
            static_cast<int>(m_positions.size()), [this](int position) { look(position); }, m_jobs,
            progress(static_cast<int>(m_positions.size()), "looking at the pictures"));
        if (m_knowsLens) {
            compareNeighbours();
        }
        PhotoQuality quality;
        const QMap<int, double> off = exposuresOff();
        for (int i = 0; i < m_photos.size(); ++i) {
            tellOf(i, off, quality);
        }
        return quality;
    }

private:
    /** What is known of a photo's picture. */
    struct Seen {
        bool isDamaged = false;
        PictureDetail detail;
        double shift = 0.0; ///< pixels, against the photo before it at its position
        std::vector<double> sharpness; ///< binary logarithms, against each neighbour
        std::vector<double> lost; ///< shares
    };

    [[nodiscard]] std::function<void(int)> progress(int total, const char *text) const
    {
        return [this, total, text](int done) {
            m_watch.check();
            m_watch.report(done, total, QString::fromLatin1(text));
        };
    }

    void look(int position)
    {
        const std::vector<size_t> &photos = m_positions[static_cast<size_t>(position)];
        FeatureSet before;
        for (size_t i = 0; i < photos.size(); ++i) {
            const size_t photo = photos[i];
            const PhotoInfo &info = m_photos.at(static_cast<int>(photo)).photo;
            m_seen[photo].isDamaged = isDamaged(info.path);
            const auto picture = m_seen[photo].isDamaged
                ? Result<GreyPicture>(Failure())
                : readGreyPicture(info.path, info.storedSize, kWidest);
            if (!picture) {
                before = {};
                continue;
            }
            m_seen[photo].detail = PictureDetail(picture.value());
            if (photos.size() == 1) {
                continue;
            }
            FeatureSet features
                = featuresOf(reduced(picture.value(), kFeatureWidth), { kMostFeatures });
            if (before.count() > 0 && m_lenses[photo].size == m_lenses[photos[i - 1]].size) {
                m_seen[photo].shift = shiftBetween({ before, m_lenses[photos[i - 1]] },
                                                   { features, m_lenses[photo] })
                                          .value_or(0.0);
            }
            before = std::move(features);
        }
    }

    /** Each photo with those of its level at the positions around. */
    void compareNeighbours()
    {
        std::vector<Eigen::Matrix3d> rotations;
        std::vector<const AlignLens *> lenses;
        for (const std::vector<size_t> &photos : m_positions) {
            rotations.push_back(m_rotations[photos.front()]);
            lenses.push_back(&m_lenses[photos.front()]);
        }
        std::vector<std::pair<size_t, size_t>> pairs;
        for (const auto &[one, other] : overlappingPairs(rotations, lenses)) {
            for (const size_t first : m_positions[static_cast<size_t>(one)]) {
                for (const size_t second : m_positions[static_cast<size_t>(other)]) {
                    if (levelOf(first) == levelOf(second)
                        && m_lenses[first].size == m_lenses[second].size) {
                        pairs.emplace_back(first, second);
                    }
                }
            }
        }
        std::vector<std::optional<SeenByBoth>> seen(pairs.size());
        const auto compare = [&](int row) {
            const auto &[first, second] = pairs[static_cast<size_t>(row)];
            seen[static_cast<size_t>(row)]
                = seenByBoth({ m_seen[first].detail, m_lenses[first], m_rotations[first] },
                             { m_seen[second].detail, m_lenses[second], m_rotations[second] });
        };
        const int count = static_cast<int>(pairs.size());
        forEachRow(count, compare, m_jobs, progress(count, "comparing neighbours"));
        for (size_t i = 0; i < pairs.size(); ++i) {
            if (seen[i]) {
                note(pairs[i], *seen[i]);
            }
        }
    }

    [[nodiscard]] int levelOf(size_t photo) const
    {
        return m_photos.at(static_cast<int>(photo)).level;
    }

    void note(const std::pair<size_t, size_t> &pair, const SeenByBoth &seen)
    {
        const auto [first, second] = pair;
        if (seen.likeness >= kAlike && seen.detail >= kLeastDetail) {
            const double ratio = std::log2(seen.sharpnessOfFirst / seen.sharpnessOfSecond);
            m_seen[first].sharpness.push_back(ratio);
            m_seen[second].sharpness.push_back(-ratio);
        }
        // Whoever lets the camera choose has got what he wanted.
        const auto &one = m_photos.at(static_cast<int>(first)).photo.exposureValue;
        const auto &other = m_photos.at(static_cast<int>(second)).photo.exposureValue;
        if (one.has_value() == other.has_value()
            && (!one || std::abs(*one - *other) < kSameExposure)) {
            m_seen[first].lost.push_back(seen.lostInFirst);
            m_seen[second].lost.push_back(seen.lostInSecond);
        }
    }

    /** Photos whose exposure stands out among those of their level, which all have the same, and by
     * how many stops. */
    [[nodiscard]] QMap<int, double> exposuresOff() const
    {
        QMap<int, std::vector<int>> levels;
        for (int i = 0; i < m_photos.size(); ++i) {
            if (m_photos.at(i).photo.exposureValue) {
                levels[m_photos.at(i).level].push_back(i);
            }
        }
        QMap<int, double> off;
        for (const std::vector<int> &photos : qAsConst(levels)) {
            std::vector<double> values;
            values.reserve(photos.size());
            for (const int photo : photos) {
                values.push_back(*m_photos.at(photo).photo.exposureValue);
            }
            const double usual = median(values);
            const auto within = [&](double stops) {
                return static_cast<size_t>(
                    std::count_if(values.begin(), values.end(),
                                  [&](double value) { return std::abs(value - usual) < stops; }));
            };
            const size_t others = values.size() - within(kOtherExposure);
            if (values.size() < kLeastOfLevel || within(kSameExposure) + others < values.size()
                || others > std::max(size_t{ 1 }, values.size() / 10)) {
                continue; // on automatic, or nobody knows
            }
            for (size_t i = 0; i < photos.size(); ++i) {
                if (std::abs(values[i] - usual) >= kOtherExposure) {
                    off[photos[i]] = values[i] - usual;
                }
            }
        }
        return off;
    }

    void tellOf(int i, const QMap<int, double> &off, PhotoQuality &quality) const
    {
        const Seen &seen = m_seen[static_cast<size_t>(i)];
        const auto tell = [&](const char *topic, const QString &text, double sureness) {
            const ShotPhoto &shot = m_photos.at(i);
            Finding finding{ QString::fromLatin1(topic),
                             QStringLiteral("%1 (shot %2): %3")
                                 .arg(QFileInfo(shot.photo.path).fileName())
                                 .arg(shot.shot + 1)
                                 .arg(text),
                             Finding::Kind::Trouble,
                             { shot.photo.path },
                             { shot.shot } };
            finding.sureness = sureness;
            finding.cure = QStringLiteral("take it again");
            finding.action = Finding::Action::Reshoot;
            quality.faults += finding;
        };
        const auto agreeing = [](const std::vector<double> &values, auto agrees) {
            return static_cast<double>(std::count_if(values.begin(), values.end(), agrees))
                / static_cast<double>(std::max(size_t{ 1 }, values.size()));
        };
        if (seen.isDamaged) {
            tell("bad", QStringLiteral("cannot be read to its end"), 1.0);
            return;
        }
        quality.compared += seen.sharpness.empty() ? 0 : 1;
        const double softer
            = agreeing(seen.sharpness, [](double ratio) { return ratio < kBlurred; });
        const double sharper
            = agreeing(seen.sharpness, [](double ratio) { return ratio > -kBlurred; });
        if (softer >= 0.5 && softer > sharper) {
            tell("blurred", QStringLiteral("less sharp than the photos around it"),
                 0.5 + 0.45 * softer);
        }
        const double lost = agreeing(seen.lost, [](double share) { return share > kLost; });
        if (off.contains(i)) {
            const double stops = std::abs(off[i]);
            tell("exposure",
                 QStringLiteral("exposed %1 stops %2 than the others")
                     .arg(QString::number(stops, 'f', 1),
                          off[i] > 0.0 ? QStringLiteral("less") : QStringLiteral("more")),
                 0.95);
        } else if (lost >= 0.5) {
            tell("exposure", QStringLiteral("black or white where the photos around it are not"),
                 0.5 + 0.45 * lost);
        }
        if (seen.shift > mostShift(m_lenses[static_cast<size_t>(i)].size)) {
            tell("moved",
                 QStringLiteral("%1 pixels off the photo before it, which was to show the same")
                     .arg(std::lround(seen.shift)),
                 0.9);
        }
    }

    const QVector<ShotPhoto> &m_photos;
    const JobWatch &m_watch;
    int m_jobs;
    bool m_knowsLens;
    std::vector<Seen> m_seen; // by photo
    std::vector<AlignLens> m_lenses;
    std::vector<Eigen::Matrix3d> m_rotations;
    std::vector<std::vector<size_t>> m_positions; // photos
};

} // namespace

PhotoQuality qualityOf(const QVector<ShotPhoto> &photos, const KnownLens &lens,
                       const JobWatch &watch, int jobs)
{
    return Judge(photos, lens, watch, jobs).judged();
}

} // namespace PanoHost
