// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/shotmatch.h"

#include "host/align/geometry.h"
#include "host/check/clocklines.h"
#include "host/check/otherclock.h"
#include "host/check/photonames.h"
#include "host/check/shotpath.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <set>

namespace PanoHost
{

namespace
{

constexpr double kSure = 0.95;
constexpr double kAnyMargin = 1000.0; ///< where there is no second reading

double finiteOrZero(double value)
{
    return std::isfinite(value) ? value : 0.0;
}

/** The middles of groups of \p values, those within the same group less than a third of a stop
 * apart; the \p count largest groups, rising. Empty: there are not so many, or much is left over.
 */
std::vector<double> exposureLevels(std::vector<double> values, int count)
{
    constexpr double kApart = 0.3;
    std::sort(values.begin(), values.end());
    std::vector<std::vector<double>> groups;
    for (double value : values) {
        if (groups.empty() || value - groups.back().back() > kApart) {
            groups.emplace_back();
        }
        groups.back().push_back(value);
    }
    std::stable_sort(groups.begin(), groups.end(),
                     [](const auto &one, const auto &other) { return one.size() > other.size(); });
    if (static_cast<int>(groups.size()) < count) {
        return {};
    }
    groups.resize(count);
    std::vector<double> levels;
    std::size_t held = 0;
    for (const std::vector<double> &group : groups) {
        held += group.size();
        levels.push_back(group.at(group.size() / 2));
    }
    std::sort(levels.begin(), levels.end());
    return 10 * held >= 7 * values.size() ? levels : std::vector<double>();
}

/** The exposures of a bracket's levels, for each level that it may start with. Empty: they cannot
 * be told from \p exposures, those of the photos in their order. */
std::vector<std::vector<double>> exposurePatterns(const std::vector<double> &exposures, int count)
{
    constexpr int kMostLevels = 16;
    if (count < 2 || count > kMostLevels) {
        return {};
    }
    std::vector<double> known;
    std::copy_if(exposures.begin(), exposures.end(), std::back_inserter(known),
                 [](double value) { return std::isfinite(value); });
    const std::vector<double> levels = exposureLevels(known, count);
    if (levels.empty()) {
        return {};
    }
    const auto levelOf = [&levels](double value) {
        const auto nearest
            = std::min_element(levels.begin(), levels.end(), [value](double one, double other) {
                  return std::abs(one - value) < std::abs(other - value);
              });
        return static_cast<int>(nearest - levels.begin());
    };
    std::vector<std::vector<int>> follows(count, std::vector<int>(count, 0));
    for (std::size_t k = 1; k < known.size(); ++k) {
        ++follows[levelOf(known[k - 1])][levelOf(known[k])];
    }
    std::vector<int> cycle{ 0 };
    std::vector<bool> isTaken(count, false);
    isTaken[0] = true;
    while (static_cast<int>(cycle.size()) < count) {
        int best = -1;
        for (int level = 0; level < count; ++level) {
            const std::vector<int> &next = follows[cycle.back()];
            if (!isTaken[level] && (best < 0 || next[level] > next[best])) {
                best = level;
            }
        }
        isTaken[best] = true;
        cycle.push_back(best);
    }
    std::vector<std::vector<double>> patterns;
    patterns.reserve(count);
    for (int start = 0; start < count; ++start) {
        std::vector<double> pattern;
        pattern.reserve(count);
        for (int level = 0; level < count; ++level) {
            pattern.push_back(levels[cycle[(start + level) % count]]);
        }
        patterns.push_back(pattern);
    }
    return patterns;
}

/** The share of pauses between \p times that are no more than a moment. */
double shareOfMoments(const std::vector<double> &times)
{
    constexpr double kMoment = 0.5;
    int moments = 0;
    for (std::size_t i = 1; i < times.size(); ++i) {
        moments += times[i] - times[i - 1] <= kMoment ? 1 : 0;
    }
    return times.size() < 2 ? 0.0 : moments / static_cast<double>(times.size() - 1);
}

/** Whether the photos came in quick succession where the shots did not. */
bool looksLikeBursts(const ShotEvidence &evidence)
{
    constexpr double kManyPerShot = 1.7;
    if (evidence.photoCount() < kManyPerShot * evidence.shotCount()) {
        return false;
    }
    const bool isTimed = evidence.photos.isUsable && evidence.shots.isUsable
        && evidence.photos.slackSeconds == 0.0 && evidence.shots.slackSeconds == 0.0;
    return !isTimed
        || (shareOfMoments(evidence.photos.rising) > 0.4
            && shareOfMoments(evidence.photos.rising)
                > shareOfMoments(evidence.shots.rising) + 0.1);
}

/** Whether each of \p count shots has its one photo, by \p shots of the photos. */
bool isOneToOne(const std::vector<int> &shots, int count)
{
    std::vector<int> all(count);
    std::iota(all.begin(), all.end(), 0);
    return shots == all;
}

/** What one assumption leads to. */
struct Attempt {
    ShotAssumption assumption;
    ShotPaths paths;
};

/** The likeliest reading of some evidence. */
struct Reading {
    Attempt best;
    ShotPath second; ///< without shots: none
    double margin = kAnyMargin;
};

/** The photos of one camera, as they were taken, and how they are read. */
struct CameraReading {
    std::vector<int> order; ///< indices into all photos
    ShotEvidence evidence;
    Reading reading;
    double cost = std::numeric_limits<double>::infinity();

    /** \p shots of these photos, for each of \p count: -1 for those of other cameras. */
    [[nodiscard]] QVector<int> byPhoto(const std::vector<int> &shots, int count) const
    {
        QVector<int> all(count, -1);
        for (std::size_t k = 0; k < order.size(); ++k) {
            all[order[k]] = shots[k];
        }
        return all;
    }
};

/** Tries clocks and exposure patterns. */
class Reader
{
public:
    Reader(const ShotEvidence &evidence, int bracketCount)
        : m_evidence(evidence)
        , m_patterns(exposurePatterns(evidence.exposures, bracketCount))
    {
        if (evidence.photos.isUsable && evidence.shots.isUsable) {
            const int most = evidence.isLong() ? 3 : 6;
            for (const ClockLine &line : clockLines(evidence.photos, evidence.shots, most)) {
                m_clocks.emplace_back(line);
            }
            if (!evidence.isLong()) {
                m_clocks.emplace_back(ClockLine{ 0.0, 0.0, evidence.shots.rising.front() });
            }
        } else {
            m_clocks.emplace_back();
        }
        if (m_patterns.empty()) {
            m_patterns.emplace_back();
        }
    }

    [[nodiscard]] Reading read() const;

private:
    [[nodiscard]] Attempt attempt(const ShotAssumption &assumption) const;
    [[nodiscard]] Attempt refined(const Attempt &rough, double toleranceSeconds) const;
    [[nodiscard]] double toleranceOf(const Attempt &attempt) const;

    const ShotEvidence &m_evidence;
    std::vector<std::optional<ClockLine>> m_clocks;
    std::vector<std::vector<double>> m_patterns;
};

Attempt Reader::attempt(const ShotAssumption &assumption) const
{
    Attempt result{ assumption, shotPaths(m_evidence, assumption) };
    if (assumption.clock) {
        const double cost = costOfLine(*assumption.clock, m_evidence.shots);
        result.paths.best.cost += cost;
        if (result.paths.second) {
            result.paths.second->cost += cost;
        }
    }
    return result;
}

/** How far times are off as a rule; their standard deviation is then about this. */
double Reader::toleranceOf(const Attempt &attempt) const
{
    constexpr double kWholeSeconds = 0.15; // what is cut off at random
    constexpr double kMost = 1.0;
    const double least = 0.3 + (m_evidence.photos.isWholeSeconds ? kWholeSeconds : 0.0)
        + (m_evidence.shots.isWholeSeconds ? kWholeSeconds : 0.0);
    std::vector<double> misses;
    const std::vector<int> &pairs = attempt.paths.best.shots;
    for (std::size_t k = 0; k < pairs.size(); ++k) {
        const double away = pairs[k] < 0 ? kUnknown
                                         : std::abs(m_evidence.photos.seconds[k]
                                                    - attempt.assumption.clock->cameraSeconds(
                                                        m_evidence.shots.seconds[pairs[k]]));
        if (std::isfinite(away)) {
            misses.push_back(away);
        }
    }
    constexpr int kFew = 6;
    if (misses.size() < kFew || m_evidence.photos.slackSeconds > 0.0
        || m_evidence.shots.slackSeconds > 0.0) {
        return kMost;
    }
    std::nth_element(misses.begin(), misses.begin() + static_cast<qint64>(misses.size() / 2),
                     misses.end());
    return std::clamp(2.0 * misses[misses.size() / 2], least, kMost);
}

Attempt Reader::refined(const Attempt &rough, double toleranceSeconds) const
{
    ShotAssumption same = rough.assumption;
    same.toleranceSeconds = toleranceSeconds;
    ShotAssumption fitted = same;
    fitted.clock
        = fittedLine(*same.clock, m_evidence.photos, m_evidence.shots, rough.paths.best.shots);
    const bool isKnown = toleranceSeconds == rough.assumption.toleranceSeconds;
    Attempt other = attempt(fitted);
    Attempt one = isKnown ? rough : attempt(same);
    return other.paths.best.cost <= one.paths.best.cost ? other : one;
}

Reading Reader::read() const
{
    std::vector<Attempt> attempts;
    const auto cheapest = [&attempts] {
        return std::min_element(attempts.begin(), attempts.end(),
                                [](const Attempt &one, const Attempt &other) {
                                    return one.paths.best.cost < other.paths.best.cost;
                                });
    };
    for (const std::vector<double> &pattern : m_patterns) {
        attempts.push_back(attempt({ m_clocks.front(), 1.0, pattern }));
    }
    const std::vector<double> pattern = cheapest()->assumption.levelExposures;
    // In a long shoot that agrees throughout no other clock is left to be tried.
    const bool agrees = m_evidence.isLong()
        && isOneToOne(cheapest()->paths.best.shots, m_evidence.shotCount())
        && cheapest()->paths.best.cost < m_evidence.photoCount();
    for (std::size_t i = 1; i < m_clocks.size() && !agrees; ++i) {
        attempts.push_back(attempt({ m_clocks[i], 1.0, pattern }));
    }
    if (m_clocks.front() && m_evidence.isLong()) {
        // Where so many agree, the others are far behind or as good as they are.
        constexpr double kFarBehind = 100.0;
        const double most = cheapest()->paths.best.cost + kFarBehind;
        Attempt &best = *cheapest();
        best.assumption.clock = fittedLine(*best.assumption.clock, m_evidence.photos,
                                           m_evidence.shots, best.paths.best.shots);
        const double tolerance = toleranceOf(best);
        attempts.erase(
            std::remove_if(attempts.begin(), attempts.end(),
                           [&](const Attempt &each) { return each.paths.best.cost > most; }),
            attempts.end());
        for (Attempt &each : attempts) {
            each.assumption.toleranceSeconds = tolerance;
            each = attempt(each.assumption);
        }
    } else if (m_clocks.front()) {
        const Attempt rough = refined(*cheapest(), 1.0);
        const double tolerance = toleranceOf(rough);
        std::set<std::vector<int>> seen;
        std::vector<Attempt> better;
        attempts.insert(attempts.begin(), rough);
        for (const Attempt &each : attempts) {
            if (seen.insert(each.paths.best.shots).second) {
                better.push_back(refined(each, tolerance));
            }
        }
        attempts = std::move(better);
    }
    Reading reading;
    reading.best = *cheapest();
    const ShotPath &best = reading.best.paths.best;
    const auto rival = [&](const ShotPath &path) {
        if (path.shots != best.shots && path.cost - best.cost < reading.margin) {
            reading.margin = path.cost - best.cost;
            reading.second = path;
        }
    };
    for (const Attempt &each : attempts) {
        rival(each.paths.best);
        if (each.paths.second) {
            rival(*each.paths.second);
        }
    }
    if (reading.best.paths.isCramped) {
        reading.margin = 0.0;
    }
    return reading;
}

/** Matches what is given, step by step. */
class Matcher
{
public:
    Matcher(const QVector<PanoHead::NotedShot> &shots, int bracketCount,
            const QVector<PhotoInfo> &photos, const MeasureRotation &measure);

    [[nodiscard]] ShotMatch match();

private:
    [[nodiscard]] double secondsOf(int photo) const;
    [[nodiscard]] std::size_t endOfWildTimes(std::size_t rank, double before) const;
    [[nodiscard]] bool isEarly(std::size_t rank, double before) const;
    void orderPhotos();
    [[nodiscard]] ShotEvidence evidenceOf(const std::vector<int> &order) const;
    [[nodiscard]] std::vector<std::vector<int>> cameras() const;
    void chooseCamera();
    void lookUpRotations();
    void askPictures();
    [[nodiscard]] std::set<int> doubtfulPlaces() const;
    enum class Pace { Usual, Unknown, Hasty, Impossible };
    [[nodiscard]] Pace paceOf(int place) const;
    [[nodiscard]] bool settlesWithoutPictures() const;
    [[nodiscard]] NamesAndTimes namesAndTimes() const;
    void weighPace();
    void weighDoubts();
    void weighNames();
    /** Of photos that are each taken for the next shot by name. */
    struct SeenAsNamed {
        double cost = 0.0;
        int confirmed = 0;
        int refuted = 0;
    };
    [[nodiscard]] std::vector<int> placesAsNamed() const;
    [[nodiscard]] double costAsNamed() const;
    [[nodiscard]] SeenAsNamed lookAsNamed(const std::vector<int> &places);
    void weighAsNamed();
    void weighOtherClocks();
    [[nodiscard]] const std::optional<Eigen::Matrix3d> &turn(int one, int other);
    void rival(const std::vector<int> &shots, double margin);
    [[nodiscard]] int takenCount() const;
    [[nodiscard]] bool isComplete() const;
    [[nodiscard]] ShotMatch result() const;

    const QVector<PanoHead::NotedShot> &m_shots;
    const QVector<PhotoInfo> &m_photos;
    const MeasureRotation &m_measure;
    int m_bracketCount;

    ShotClock m_shotClock;
    std::vector<int> m_levels;
    NameOrder m_names;
    std::vector<int> m_nameRank; ///< by photo
    std::vector<double> m_seconds; ///< by photo; NaN: not known, or wild
    std::vector<int> m_all; ///< photos as they were taken
    std::vector<int> m_order; ///< those of the camera that took the shoot
    ShotEvidence m_evidence; ///< of these
    Reading m_reading; ///< of that
    CameraReading m_otherCamera; ///< the next best; its cost: how much more
    QVector<int> m_second; ///< by photo
    NamesAndTimes m_namesAndTimes = NamesAndTimes::Agree;
    bool m_neededPictures = false;
    bool m_refutesNames = false;
    bool m_isSetOnTheWay = false;
    std::map<std::pair<int, int>, std::optional<Eigen::Matrix3d>> m_turns; ///< by photos
};

Matcher::Matcher(const QVector<PanoHead::NotedShot> &shots, int bracketCount,
                 const QVector<PhotoInfo> &photos, const MeasureRotation &measure)
    : m_shots(shots)
    , m_photos(photos)
    , m_measure(measure)
    , m_bracketCount(std::max(1, bracketCount))
{
    std::vector<double> seconds;
    for (const PanoHead::NotedShot &shot : shots) {
        seconds.push_back(secondsShown(shot.time));
        m_levels.push_back(std::clamp(shot.level, 0, m_bracketCount - 1));
    }
    m_shotClock = shotClockOf(seconds);
    orderPhotos();
}

double Matcher::secondsOf(int photo) const
{
    return static_cast<double>(m_photos.at(photo).timeMs) / 1000.0;
}

/** The end of photos, from \p rank by name on, that were counted between two taken shortly after
 * each other, the first of them at \p before, and yet are of quite another time; \p rank: they are
 * not. */
std::size_t Matcher::endOfWildTimes(std::size_t rank, double before) const
{
    constexpr std::size_t kMost = 8;
    const auto photo = [this](std::size_t at) { return m_names.counted[at]; };
    const auto isNext = [&](std::size_t at) {
        return isCountedNext(m_photos.at(photo(at - 1)).path, m_photos.at(photo(at)).path, 1);
    };
    const std::size_t last = std::min(rank + kMost, m_names.counted.size() - 1);
    for (std::size_t end = rank + 1; rank > 0 && end <= last; ++end) {
        bool isWild = m_photos.at(photo(end)).timeMs != 0;
        for (std::size_t at = rank; at < end && isWild; ++at) {
            isWild = isWildTime(before, secondsOf(photo(at)), secondsOf(photo(end)));
        }
        for (std::size_t at = rank; at <= end && isWild; ++at) {
            isWild = isNext(at);
        }
        if (isWild) {
            return end;
        }
    }
    return rank;
}

/** Whether the photo of \p rank by name was counted after one taken at \p before and yet is some
 * seconds older. */
bool Matcher::isEarly(std::size_t rank, double before) const
{
    constexpr double kFewSeconds = 10.0;
    const std::vector<int> &counted = m_names.counted;
    const double early = before - secondsOf(counted[rank]);
    // Where names run against times on either side too, it is the names that are wrong.
    const bool isRising = (rank < 2 || secondsOf(counted[rank - 2]) <= before)
        && (rank + 1 >= counted.size() || secondsOf(counted[rank + 1]) > before);
    return early > 0.0 && early <= kFewSeconds && isRising && m_names.other.empty()
        && isCountedNext(m_photos.at(counted[rank - 1]).path, m_photos.at(counted[rank]).path, 1);
}

/** By time, and by name where the times are the same or missing. */
void Matcher::orderPhotos()
{
    QStringList paths;
    for (const PhotoInfo &photo : m_photos) {
        paths += photo.path;
    }
    m_names = nameOrderOf(paths);
    m_nameRank.resize(m_photos.size());
    m_seconds.resize(m_photos.size(), kUnknown);
    std::vector<double> times(m_photos.size());
    double before = -std::numeric_limits<double>::infinity();
    std::size_t wildEnd = 0;
    for (std::size_t rank = 0; rank < m_names.counted.size(); ++rank) {
        const int photo = m_names.counted[rank];
        m_nameRank[photo] = static_cast<int>(rank);
        wildEnd = std::max(wildEnd, endOfWildTimes(rank, before));
        if (m_photos.at(photo).timeMs != 0 && rank >= wildEnd && !isEarly(rank, before)) {
            m_seconds[photo] = secondsOf(photo);
            before = m_seconds[photo];
        }
        times[photo] = before;
    }
    m_all = m_names.counted;
    std::stable_sort(m_all.begin(), m_all.end(),
                     [&times](int one, int other) { return times[one] < times[other]; });
}

ShotEvidence Matcher::evidenceOf(const std::vector<int> &order) const
{
    ShotEvidence evidence;
    std::vector<double> seconds;
    for (int photo : order) {
        const PhotoInfo &info = m_photos.at(photo);
        seconds.push_back(m_seconds[photo]);
        evidence.exposures.push_back(info.exposureValue.value_or(kUnknown));
    }
    evidence.photos = shotClockOf(std::move(seconds));
    evidence.shots = m_shotClock;
    evidence.levels = m_levels;
    evidence.inBrackets = m_bracketCount > 1;
    evidence.isBurst = looksLikeBursts(evidence);
    return evidence;
}

/** By size; and all together, unless they have all the same. Photos without a size count for each.
 */
std::vector<std::vector<int>> Matcher::cameras() const
{
    const auto sizeOf = [this](int photo) {
        const QSize size = m_photos.at(photo).storedSize;
        return std::make_pair(std::min(size.width(), size.height()),
                              std::max(size.width(), size.height()));
    };
    std::map<std::pair<int, int>, int> counts;
    for (int photo : m_all) {
        if (sizeOf(photo).first > 0) {
            ++counts[sizeOf(photo)];
        }
    }
    std::vector<std::vector<int>> cameras{ m_all };
    if (counts.size() < 2) {
        return cameras;
    }
    std::vector<std::pair<int, std::pair<int, int>>> sizes;
    sizes.reserve(counts.size());
    for (const auto &[size, count] : counts) {
        sizes.emplace_back(-count, size);
    }
    std::sort(sizes.begin(), sizes.end());
    constexpr std::size_t kMostSizes = 3;
    sizes.resize(std::min(sizes.size(), kMostSizes));
    for (const auto &sized : sizes) {
        std::vector<int> order;
        std::copy_if(m_all.begin(), m_all.end(), std::back_inserter(order), [&](int photo) {
            return sizeOf(photo).first <= 0 || sizeOf(photo) == sized.second;
        });
        cameras.push_back(order);
    }
    return cameras;
}

/** Takes the photos of the camera that fits best. */
void Matcher::chooseCamera()
{
    constexpr double kMixedCost = 10.0;
    CameraReading best;
    for (const std::vector<int> &order : cameras()) {
        CameraReading camera{ order, evidenceOf(order), {} };
        camera.reading = Reader(camera.evidence, m_bracketCount).read();
        const bool isMixed = order.size() == m_all.size();
        camera.cost = camera.reading.best.paths.best.cost + (isMixed ? kMixedCost : 0.0);
        if (camera.cost < best.cost) {
            std::swap(camera, best);
        }
        if (camera.cost < m_otherCamera.cost) {
            m_otherCamera = std::move(camera);
        }
    }
    m_otherCamera.cost -= best.cost;
    m_order = std::move(best.order);
    m_evidence = std::move(best.evidence);
    m_reading = std::move(best.reading);
}

int Matcher::takenCount() const
{
    const std::vector<int> &shots = m_reading.best.paths.best.shots;
    return static_cast<int>(
        std::count_if(shots.begin(), shots.end(), [](int shot) { return shot >= 0; }));
}

bool Matcher::isComplete() const
{
    return isOneToOne(m_reading.best.paths.best.shots, m_evidence.shotCount());
}

/** How photo \p place, in order, came after the one before: a doubled photo in place of one that is
 * missing comes sooner than the head was ready for its shot. */
Matcher::Pace Matcher::paceOf(int place) const
{
    constexpr double kLeastSeconds = 1.5;
    constexpr double kSoon = 0.6;
    const std::vector<int> &shots = m_reading.best.paths.best.shots;
    const int before = shots[place - 1];
    if (!m_reading.best.assumption.clock || before < 0 || shots[place] <= before) {
        return Pace::Usual;
    }
    const ShotClock &photos = m_evidence.photos;
    const double head = m_shotClock.seconds[shots[place]] - m_shotClock.seconds[before];
    const double camera = photos.seconds[place] - photos.seconds[place - 1];
    if (!std::isfinite(head) || !std::isfinite(camera)) {
        return Pace::Unknown;
    }
    const bool isHasty = m_shotClock.slackSeconds + photos.slackSeconds == 0.0
        && head >= kLeastSeconds && camera <= kSoon * head;
    const double cutOff
        = (m_shotClock.isWholeSeconds ? 1.0 : 0.0) + (photos.isWholeSeconds ? 1.0 : 0.0);
    return !isHasty ? Pace::Usual : camera + cutOff <= head ? Pace::Impossible : Pace::Hasty;
}

bool Matcher::settlesWithoutPictures() const
{
    constexpr double kSettled = 4.0;
    for (int k = 1; k < static_cast<int>(m_order.size()); ++k) {
        if (paceOf(k) != Pace::Usual) {
            return false;
        }
    }
    return isComplete() && m_order.size() == m_all.size()
        && m_reading.best.assumption.clock.has_value() && m_namesAndTimes == NamesAndTimes::Agree
        && m_reading.margin >= kSettled;
}

/** The photos, by their place in order, of which the rotation from the one before is worth to be
 * measured. */
std::set<int> Matcher::doubtfulPlaces() const
{
    constexpr int kAround = 2;
    const std::vector<int> &shots = m_reading.best.paths.best.shots;
    const std::vector<int> &others = m_reading.second.shots;
    const int n = static_cast<int>(shots.size());
    std::set<int> places;
    const auto lookAround = [&places, n](int place) {
        for (int k = std::max(1, place - kAround); k <= std::min(n - 1, place + kAround); ++k) {
            places.insert(k);
        }
    };
    if (!m_reading.best.assumption.clock) {
        for (int k = 1; k < n; ++k) {
            places.insert(k);
        }
        return places;
    }
    constexpr int kMostBreaks = 8;
    int breaks = 0;
    int last = -1;
    for (int k = 0; k < n; ++k) {
        const int before = k > 0 ? shots[k - 1] : -1;
        const bool isStrange = shots[k] < 0;
        // Within another shoot nothing is to be learnt.
        const bool isNext = shots[k] == last + 1 || (m_evidence.isBurst && shots[k] == last);
        if ((isStrange && before >= 0) || (!isStrange && !isNext)
            || (!isStrange && k > 0 && before < 0) || (k > 0 && paceOf(k) != Pace::Usual)) {
            lookAround(k);
        }
        last = isStrange ? last : shots[k];
        const bool differs = !others.empty() && others[k] != shots[k];
        const bool differed = !others.empty() && k > 0 && others[k - 1] != shots[k - 1];
        if (differs != differed) {
            lookAround(k);
        }
        if (k > 0 && m_nameRank[m_order[k]] != m_nameRank[m_order[k - 1]] + 1
            && m_namesAndTimes != NamesAndTimes::Agree && ++breaks <= kMostBreaks) {
            lookAround(k);
        }
    }
    if (last >= 0 && last + 1 < m_evidence.shotCount()) {
        lookAround(n - 1);
    }
    return places;
}

void Matcher::lookUpRotations()
{
    if (!m_evidence.rotations.empty()) {
        return;
    }
    std::vector<double> cosines;
    for (const PanoHead::NotedShot &shot : m_shots) {
        const Eigen::Matrix3d rotation
            = rotationOf({ finiteOrZero(shot.yawDegrees), finiteOrZero(shot.pitchDegrees),
                           finiteOrZero(shot.rollDegrees) });
        if (!m_evidence.rotations.empty() && shot.level == 0) {
            cosines.push_back(m_evidence.rotations.back().col(2).dot(rotation.col(2)));
        }
        m_evidence.rotations.push_back(rotation);
    }
    if (!cosines.empty()) {
        constexpr double kRounded = 0.01;
        const auto middle = cosines.begin() + static_cast<qint64>(cosines.size() / 2);
        std::nth_element(cosines.begin(), middle, cosines.end());
        m_evidence.neighbourCosine = *middle - kRounded;
    }
}

/** What pictures say of two photos; they are asked once. */
const std::optional<Eigen::Matrix3d> &Matcher::turn(int one, int other)
{
    const auto [at, isNew] = m_turns.try_emplace({ one, other });
    if (isNew) {
        at->second = m_measure(one, other);
    }
    return at->second;
}

void Matcher::askPictures()
{
    constexpr int kRounds = 5;
    for (int round = 0; round < kRounds; ++round) {
        bool isNew = false;
        for (int k : doubtfulPlaces()) {
            if (m_evidence.measured.count(k) == 0) {
                isNew = true;
                m_evidence.measured[k] = turn(m_order[k - 1], m_order[k]);
            }
        }
        if (!isNew) {
            return;
        }
        lookUpRotations();
        m_reading = Reader(m_evidence, m_bracketCount).read();
    }
}

NamesAndTimes Matcher::namesAndTimes() const
{
    const std::vector<int> &sorted = m_names.sorted;
    if (m_all == sorted) {
        return NamesAndTimes::Agree;
    }
    if (m_all == m_names.counted) {
        return NamesAndTimes::Rollover;
    }
    constexpr int kCounterEnd = 9900;
    constexpr int kCounterStart = 100;
    int falls = 0;
    bool runsOver = false;
    for (std::size_t k = 1; k < m_all.size(); ++k) {
        const int before = counterOf(m_photos.at(m_all[k - 1]).path);
        const int counter = counterOf(m_photos.at(m_all[k]).path);
        if (counter <= before) {
            ++falls;
            runsOver = runsOver || (before >= kCounterEnd && counter <= kCounterStart);
        }
    }
    constexpr int kFewFalls = 3;
    if (falls == 0 || falls > kFewFalls) {
        return NamesAndTimes::Differ;
    }
    return runsOver && falls == 1 ? NamesAndTimes::Rollover : NamesAndTimes::Restart;
}

void Matcher::rival(const std::vector<int> &shots, double margin)
{
    if (margin < m_reading.margin) {
        m_reading.margin = margin;
        m_reading.second.shots = shots;
    }
}

/** Where only names give the order and do not agree with what is known otherwise. */
void Matcher::weighNames()
{
    const std::vector<int> &shots = m_reading.best.paths.best.shots;
    const int n = static_cast<int>(shots.size());
    const auto measuredCount = std::count_if(m_evidence.measured.begin(), m_evidence.measured.end(),
                                             [](const auto &pair) { return !!pair.second; });
    if (!m_evidence.photos.isUsable && !m_names.other.empty() && 2 * measuredCount < n) {
        QHash<int, int> places;
        for (int k = 0; k < n; ++k) {
            places.insert(m_order[k], k);
        }
        std::vector<int> others(n, -1);
        int k = 0;
        for (int photo : m_names.other) {
            if (places.contains(photo)) {
                others[places.value(photo)] = shots[k++];
            }
        }
        rival(others, 0.0);
    }
    if (m_namesAndTimes != NamesAndTimes::Differ && m_namesAndTimes != NamesAndTimes::Restart) {
        return;
    }
    for (int k = 1; k < n; ++k) {
        constexpr int kFewLater = 10;
        const PhotoInfo &before = m_photos.at(m_order[k - 1]);
        const PhotoInfo &photo = m_photos.at(m_order[k]);
        const auto measured = m_evidence.measured.find(k);
        const bool isTold = shots[k] == shots[k - 1]
            || (measured != m_evidence.measured.end() && measured->second)
            || (!m_reading.best.assumption.levelExposures.empty() && before.exposureValue
                && photo.exposureValue && shots[k] >= 0 && shots[k - 1] >= 0
                && m_levels[shots[k]] != m_levels[shots[k - 1]]);
        if (photo.timeMs == before.timeMs && !isTold
            && !isCountedNext(before.path, photo.path, kFewLater)) {
            std::vector<int> others = shots;
            std::swap(others[k], others[k - 1]);
            rival(others, 0.0);
        }
    }
}

/** The places in the order of names, from 1, where the reading has another photo before, or another
 * shot: all of few, else evenly spread. */
std::vector<int> Matcher::placesAsNamed() const
{
    constexpr std::size_t kMost = 32;
    std::vector<int> shotOf(m_photos.size(), -1);
    for (std::size_t k = 0; k < m_order.size(); ++k) {
        shotOf[m_order[k]] = m_reading.best.paths.best.shots[k];
    }
    std::vector<int> all;
    for (int k = 1; k < static_cast<int>(m_names.counted.size()); ++k) {
        if (shotOf[m_names.counted[k - 1]] != k - 1 || shotOf[m_names.counted[k]] != k) {
            all.push_back(k);
        }
    }
    std::vector<int> places;
    for (std::size_t i = 0; i < std::min(all.size(), kMost); ++i) {
        places.push_back(all[i * all.size() / std::min(all.size(), kMost)]);
    }
    return places;
}

/** What is unlikely about each photo being of the next shot by its name, but for the pictures. */
double Matcher::costAsNamed() const
{
    const std::vector<int> &order = m_names.counted;
    const ShotAssumption &assumption = m_reading.best.assumption;
    double cost = 0.0;
    if (assumption.clock) {
        const ShotEvidence named = evidenceOf(order);
        const auto costOf = [&](double drift) {
            return costInOrder(named.photos, m_shotClock, drift, assumption.toleranceSeconds);
        };
        cost += std::min(costOf(0.0), costOf(assumption.clock->drift));
    }
    for (std::size_t k = 0; k < order.size() && !assumption.levelExposures.empty(); ++k) {
        cost += exposureCost(m_photos.at(order[k]).exposureValue.value_or(kUnknown),
                             assumption.levelExposures[m_levels[k]]);
    }
    return cost;
}

/** Has pictures say whether photos are of the shots that their names say, around \p places in the
 * order of names. */
Matcher::SeenAsNamed Matcher::lookAsNamed(const std::vector<int> &places)
{
    constexpr double kClearly = 9.0;
    SeenAsNamed seen;
    if (!m_measure) {
        return seen;
    }
    lookUpRotations();
    const std::vector<int> &order = m_names.counted;
    const std::size_t asked = m_evidence.measured.size();
    for (int k : places) {
        const auto &measured = turn(order[k - 1], order[k]);
        const auto at = std::find(m_order.begin() + 1, m_order.end(), order[k]);
        if (*(at - 1) == order[k - 1]) {
            m_evidence.measured.emplace(static_cast<int>(at - m_order.begin()), measured);
        }
        if (measured) {
            const std::vector<Eigen::Matrix3d> &rotations = m_evidence.rotations;
            const double cost = turnCost(rotations[k] * *measured, rotations[k - 1]);
            seen.cost += cost;
            ++(cost < kClearly ? seen.confirmed : seen.refuted);
        }
    }
    if (m_evidence.measured.size() > asked) {
        m_reading = Reader(m_evidence, m_bracketCount).read();
    }
    return seen;
}

/** As many photos as shots: each may be of the next shot by its name, however wild its time is. */
void Matcher::weighAsNamed()
{
    constexpr double kHopeless = 20.0;
    constexpr double kUnsure = 3.0; // also where a complete reading is the usual
    constexpr double kSettled = 6.0;
    const int n = m_photos.size();
    const std::vector<int> places = placesAsNamed();
    if (n != m_shots.size() || n != static_cast<int>(m_order.size()) || places.empty()) {
        return;
    }
    std::vector<int> shots;
    for (int photo : m_order) {
        shots.push_back(m_nameRank[photo]);
    }
    const double unseen = costAsNamed() - m_reading.best.paths.best.cost;
    if (unseen > kHopeless) {
        rival(shots, unseen);
        return;
    }
    const SeenAsNamed seen = lookAsNamed(places);
    // Pictures that show nothing in common speak for neither.
    const bool isSeen = seen.confirmed + seen.refuted > 0;
    const double margin = isSeen ? m_reading.best.paths.best.cost - costAsNamed() - seen.cost
                                 : std::min(0.0, -unseen);
    m_refutesNames = seen.refuted > 0 && margin <= -kSettled;
    if (margin <= 0.0) {
        rival(shots, -margin);
        return;
    }
    m_second = CameraReading{ m_order, {}, {} }.byPhoto(m_reading.best.paths.best.shots, n);
    m_reading.second.shots.clear();
    m_reading.margin = seen.confirmed > 0 && seen.refuted == 0 ? margin : std::min(kUnsure, margin);
    m_reading.best.paths.best.shots = m_levels;
    std::iota(m_reading.best.paths.best.shots.begin(), m_reading.best.paths.best.shots.end(), 0);
    m_order = m_names.counted;
    m_namesAndTimes = m_order == m_names.sorted ? NamesAndTimes::Agree : NamesAndTimes::Rollover;
    m_evidence.measured.clear();
    for (int k = 1; k < n; ++k) {
        const auto known = m_turns.find({ m_order[k - 1], m_order[k] });
        if (known != m_turns.end()) {
            m_evidence.measured.emplace(k, known->second);
        }
    }
}

/** Where photos came sooner than the head was ready and no picture shows that it was all the same.
 */
void Matcher::weighPace()
{
    constexpr double kUnsure = 3.0; // also where a complete reading is the usual
    for (int k = 1; k < static_cast<int>(m_order.size()); ++k) {
        const auto measured = m_evidence.measured.find(k);
        const bool isSeen = measured != m_evidence.measured.end() && measured->second;
        if (paceOf(k) == Pace::Impossible && !isSeen) {
            m_reading.margin = std::min(m_reading.margin, kUnsure);
        }
    }
}

/** Where the camera's clock may have been set on the way, or lost its time. */
void Matcher::weighOtherClocks()
{
    constexpr std::size_t kMostRuns = 8;
    if (!m_reading.best.assumption.clock) {
        return;
    }
    std::vector<int> placeOf(m_photos.size(), -1);
    for (std::size_t k = 0; k < m_order.size(); ++k) {
        placeOf[m_order[k]] = static_cast<int>(k);
    }
    std::vector<int> named;
    for (int photo : m_names.counted) {
        if (placeOf[photo] >= 0) {
            named.push_back(placeOf[photo]);
        }
    }
    const std::vector<int> shots = m_reading.best.paths.best.shots;
    const std::vector<StrangeRun> runs = strangeRuns(shots, named, m_evidence.shotCount());
    if (m_measure && !runs.empty()) {
        lookUpRotations();
    }
    const auto measure = [this](int one, int other) { return turn(m_order[one], m_order[other]); };
    m_isSetOnTheWay = runs.size() > kMostRuns;
    for (std::size_t i = 0; i < std::min(kMostRuns, runs.size()); ++i) {
        const ShotPath other
            = pathByOtherClock(runs[i], shots, m_evidence, m_reading.best.assumption,
                               m_measure ? MeasureRotation(measure) : MeasureRotation());
        if (other.shots != shots) {
            rival(other.shots, std::max(0.0, other.cost));
            m_isSetOnTheWay = m_isSetOnTheWay || other.cost <= 0.0;
        }
    }
}

/** What the costs of a path do not know. */
void Matcher::weighDoubts()
{
    weighOtherClocks();
    if (isComplete()) {
        constexpr double kUsual = 2.0; // most shoots are sound
        m_reading.margin += kUsual;
    }
    weighNames();
    const std::vector<int> &shots = m_reading.best.paths.best.shots;
    const int n = static_cast<int>(shots.size());
    const int m = m_evidence.shotCount();
    if (2 * takenCount() < std::min(n, m) || m_isSetOnTheWay) {
        m_reading.margin = 0.0;
    }
    const int count = m_photos.size();
    if (!m_reading.second.shots.empty()) {
        m_second = CameraReading{ m_order, {}, {} }.byPhoto(m_reading.second.shots, count);
    }
    if (m_otherCamera.cost < m_reading.margin) {
        m_reading.margin = m_otherCamera.cost;
        m_second = m_otherCamera.byPhoto(m_otherCamera.reading.best.paths.best.shots, count);
    }
}

ShotMatch Matcher::result() const
{
    ShotMatch match;
    match.photoOfShot.fill(-1, m_shots.size());
    match.places.resize(m_photos.size());
    for (PhotoPlace &place : match.places) {
        place.kind = PhotoPlace::Kind::OtherCamera;
    }
    const std::vector<int> &shots = m_reading.best.paths.best.shots;
    const auto firstTaken
        = std::find_if(shots.begin(), shots.end(), [](int shot) { return shot >= 0; });
    constexpr int kFewTests = 3;
    const bool hasTests = firstTaken - shots.begin() <= kFewTests && firstTaken != shots.end();
    QVector<QVector<int>> photosOf(m_shots.size());
    for (std::size_t k = 0; k < shots.size(); ++k) {
        PhotoPlace &place = match.places[m_order[k]];
        place.shot = shots[k];
        if (shots[k] < 0) {
            const bool isTest = hasTests && shots.begin() + static_cast<qint64>(k) < firstTaken;
            place.kind = isTest ? PhotoPlace::Kind::InFront : PhotoPlace::Kind::OtherShoot;
            continue;
        }
        place.kind = PhotoPlace::Kind::Alone;
        match.photoOfShot[shots[k]] = m_order[k];
        photosOf[shots[k]] += m_order[k];
    }
    int takenShots = 0;
    for (const QVector<int> &photos : photosOf) {
        takenShots += photos.isEmpty() ? 0 : 1;
        if (photos.size() > 1) {
            match.doubled += photos;
            for (int photo : photos) {
                match.places[photo].kind = PhotoPlace::Kind::Doubled;
            }
        }
    }
    constexpr int kFewDoubled = 3;
    match.isBurst = match.doubled.size() >= kFewDoubled && 2 * match.doubled.size() >= takenShots;

    const ShotAssumption &assumption = m_reading.best.assumption;
    match.usesTimes = assumption.clock.has_value();
    match.usesExposures = !assumption.levelExposures.empty();
    if (assumption.clock) {
        constexpr double kFewSeconds = 30.0;
        ClockDifference difference;
        difference.seconds = assumption.clock->offset;
        difference.secondsPerMinute = assumption.clock->drift * 60.0;
        difference.minutes = (m_shotClock.rising.back() - m_shotClock.rising.front()) / 60.0;
        const double quarters = std::round(difference.seconds / kQuarterHourSeconds);
        if (std::abs(difference.seconds - quarters * kQuarterHourSeconds) <= kFewSeconds) {
            difference.hours = quarters / 4.0;
        }
        match.clock = difference;
    }
    match.namesAndTimes = m_namesAndTimes;
    match.sureness = 1.0 / (1.0 + std::exp(-m_reading.margin / 2.0));
    match.secondReading = m_second;
    match.neededPictures = m_neededPictures;
    match.measuredPairs = static_cast<int>(m_turns.size());
    match.refutesNames = m_refutesNames;
    match.doubtsTimes
        = m_isSetOnTheWay || 2 * takenCount() < std::min(m_photos.size(), m_shots.size());
    return match;
}

ShotMatch Matcher::match()
{
    if (m_shots.isEmpty() || m_photos.isEmpty()) {
        ShotMatch nothing;
        nothing.photoOfShot.fill(-1, m_shots.size());
        nothing.places.resize(m_photos.size());
        return nothing;
    }
    m_namesAndTimes = namesAndTimes();
    chooseCamera();
    m_neededPictures = !settlesWithoutPictures();
    if (m_neededPictures && m_measure) {
        askPictures();
    }
    weighPace();
    weighAsNamed();
    weighDoubts();
    return result();
}

} // namespace

double secondsShown(const QDateTime &time)
{
    return time.isValid()
        ? static_cast<double>(QDateTime(time.date(), time.time(), Qt::UTC).toMSecsSinceEpoch())
            / 1000.0
        : kUnknown;
}

bool ShotMatch::isSure() const
{
    return sureness >= kSure;
}

bool ShotMatch::isComplete() const
{
    return !photoOfShot.contains(-1)
        && std::all_of(places.begin(), places.end(), [](const PhotoPlace &place) {
               return place.kind == PhotoPlace::Kind::Alone;
           });
}

ShotMatch matchShots(const QVector<PanoHead::NotedShot> &shots, int bracketCount,
                     const QVector<PhotoInfo> &photos, const MeasureRotation &measure)
{
    ShotMatch match = Matcher(shots, bracketCount, photos, measure).match();
    if (match.isSure() || !match.usesTimes || !measure) {
        return match;
    }
    // Times may be wild: names and pictures alone may tell.
    QVector<PhotoInfo> timeless = photos;
    for (PhotoInfo &photo : timeless) {
        photo.timeMs = 0;
    }
    ShotMatch other = Matcher(shots, bracketCount, timeless, measure).match();
    const auto isReadAs = [&other](const QVector<int> &reading) {
        return std::equal(reading.begin(), reading.end(), other.places.begin(), other.places.end(),
                          [](int shot, const PhotoPlace &place) { return shot == place.shot; });
    };
    QVector<int> first;
    for (const PhotoPlace &place : qAsConst(match.places)) {
        first += place.shot;
    }
    match.measuredPairs += other.measuredPairs;
    match.refutesNames |= other.refutesNames;
    if (!other.isSure() || !(match.doubtsTimes || isReadAs(first))) {
        return match;
    }
    other.measuredPairs = match.measuredPairs;
    return other;
}

} // namespace PanoHost
