// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/shotpath.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

namespace PanoHost
{

namespace
{

constexpr double kNever = std::numeric_limits<double>::infinity();

constexpr double kAgainCost = 5.0; ///< another photo of the same shot
constexpr double kBurstAgainCost = 0.5; ///< the same at once, of a camera set to bursts
constexpr double kSkipCost = 4.0; ///< shots without a photo, ...
constexpr double kSkippedShotCost = 0.7; ///< ... and each of them
constexpr double kAgainSeconds = 1.0; ///< so much later is no surprise
constexpr double kStrangerCost = 14.0; ///< a photo of no shot
constexpr double kFarStrangerCost = 6.0; ///< the same, taken long before or after any; ...
constexpr double kMoreFarStrangersCost = 1.0; ///< ... and each further one in a row
constexpr double kStrangeOverlapCost = 4.0; ///< it overlaps with its neighbour
constexpr double kFarSeconds = 30.0;
constexpr double kMostTimeCost = 16.0;
constexpr double kMostExposureCost = 12.0;
constexpr double kExposureStops = 0.3; ///< standard deviation
constexpr double kMostRotationCost = 25.0; ///< the standard deviation is a degree
/** Not measured though the shots are neighbours like those of which the most are. */
constexpr double kNoOverlapCost = 6.0;
constexpr double kRareOverlapCost = 2.0; ///< the same where few are
constexpr double kSquareDegrees = 3282.8; ///< in a square radian
constexpr int kMeasuredReach = 9; ///< skips that measured rotations are compared with

/** \p value, at most \p most; \p most for NaN. */
double atMost(double most, double value)
{
    return value < most ? value : most;
}

/** The shots that are considered for a photo. */
struct Band {
    int begin = 0;
    int end = 0;
    bool isCut = false; ///< more would have been worth it
};

Band cut(Band band, int middle, int width)
{
    if (band.end - band.begin <= width) {
        return band;
    }
    const int begin = std::clamp(middle - width / 2, band.begin, band.end - width);
    return { begin, begin + width, true };
}

/** How far around a photo's own time shots are considered for it. */
struct Reach {
    double seconds;
    int shots; ///< besides
};
constexpr Reach kWide{ 20.0, 6 };
constexpr Reach kNarrow{ 3.0, 4 }; ///< where all goes well

std::vector<Band> bandsOf(const ShotEvidence &evidence, const ShotAssumption &assumption,
                          const Reach &around)
{
    const int n = evidence.photoCount();
    const int m = evidence.shotCount();
    constexpr int kMostStates = 3000000;
    constexpr int kLeastWidth = 32;
    const int width = std::max(kLeastWidth, kMostStates / n);
    std::vector<Band> bands;
    bands.reserve(n);
    const std::vector<double> &times = evidence.shots.rising;
    const double reach
        = around.seconds + evidence.photos.slackSeconds + evidence.shots.slackSeconds;
    for (int k = 0; k < n; ++k) {
        int begin = 0;
        int end = 0;
        if (assumption.clock) {
            const double time = assumption.clock->headSeconds(evidence.photos.rising[k]);
            const auto from = std::lower_bound(times.begin(), times.end(), time - reach);
            const auto to = std::upper_bound(from, times.end(), time + reach);
            begin = static_cast<int>(from - times.begin()) - around.shots;
            end = static_cast<int>(to - times.begin()) + around.shots;
        } else {
            constexpr int kMargin = 32;
            begin = k - std::max(0, n - m) - kMargin;
            end = k + std::max(0, m - n) + kMargin + 1;
        }
        Band band;
        band.begin = std::clamp(begin, 0, m - 1);
        band.end = std::clamp(end, band.begin + 1, m);
        const int diagonal = static_cast<int>((k + 0.5) * m / n);
        bands.push_back(cut(band, diagonal, width));
        if (k > 0) {
            bands[k].begin = std::max(bands[k].begin, bands[k - 1].begin);
            bands[k].end = std::max({ bands[k].end, bands[k - 1].end, bands[k].begin + 1 });
        }
    }
    return bands;
}

/** The two cheapest ways to come to a state, and where from. */
struct Arrivals {
    std::array<double, 2> cost{ kNever, kNever };
    std::array<int, 2> from{ -1, -1 };

    void offer(double value, int origin)
    {
        if (value < cost[0]) {
            cost = { value, cost[0] };
            from = { origin, from[0] };
        } else if (value < cost[1]) {
            cost[1] = value;
            from[1] = origin;
        }
    }
    void offer(const Arrivals &others)
    {
        offer(others.cost[0], others.from[0]);
        offer(others.cost[1], others.from[1]);
    }
    void age(double more)
    {
        cost[0] += more;
        cost[1] += more;
    }
};

enum Layer { kTaken, kStranger };

/** Names a way to a state: the shot (-1: none yet), the layer, the first or second way. */
int origin(int shot, int layer, int rank)
{
    return ((shot + 1) * 2 + layer) * 2 + rank;
}

/** The states of one photo: of shot s, or of none while s was the last. */
struct Row {
    int begin = 0; ///< the shot of the first
    std::vector<std::array<Arrivals, 2>> states;

    [[nodiscard]] int end() const { return begin + static_cast<int>(states.size()); }
    [[nodiscard]] bool has(int shot) const { return shot >= begin && shot < end(); }
    Arrivals &at(int shot, int layer) { return states[shot - begin][layer]; }
    [[nodiscard]] const Arrivals &at(int shot, int layer) const
    {
        return states[shot - begin][layer];
    }
};

class Walk
{
public:
    Walk(const ShotEvidence &evidence, const ShotAssumption &assumption, const Reach &reach)
        : m_evidence(evidence)
        , m_assumption(assumption)
        , m_bands(bandsOf(evidence, assumption, reach))
    {
        const auto answers = std::count_if(evidence.measured.begin(), evidence.measured.end(),
                                           [](const auto &pair) { return !!pair.second; });
        m_noOverlapCost = 2 * answers >= static_cast<std::ptrdiff_t>(evidence.measured.size())
            ? kNoOverlapCost
            : kRareOverlapCost;
    }

    ShotPaths run();
    /** Whether \p path keeps away from where the bands end, and has a shot for each photo. */
    [[nodiscard]] bool hasRoomFor(const ShotPath &path) const;

private:
    [[nodiscard]] double stateCost(int photo, int shot, bool isAgain) const;
    [[nodiscard]] bool isFar(int photo) const;
    [[nodiscard]] double rotationCost(bool isMeasured, const Eigen::Matrix3d &turned,
                                      int from) const;
    void leave(const Row &before, int shot, int layer, double cost, Arrivals *arrivals) const;
    [[nodiscard]] Row next(int photo, const Row &before) const;
    void takeShots(int photo, const Row &before, Row *row) const;
    [[nodiscard]] ShotPath traced(double cost, int last) const;

    const ShotEvidence &m_evidence;
    const ShotAssumption &m_assumption;
    std::vector<Band> m_bands;
    double m_noOverlapCost = 0.0;
    /** For each photo the shot of its first state, and for each state where its two ways are from,
     * by layer. */
    std::vector<int> m_begins;
    std::vector<std::vector<std::array<int, 4>>> m_from;
};

double Walk::stateCost(int photo, int shot, bool isAgain) const
{
    double cost = 0.0;
    if (m_assumption.clock) {
        const double camera = m_evidence.photos.seconds[photo];
        const double head = m_evidence.shots.seconds[shot];
        if (std::isfinite(camera) && std::isfinite(head)) {
            const double slack = m_evidence.photos.slackSeconds + m_evidence.shots.slackSeconds;
            const double late = camera - m_assumption.clock->cameraSeconds(head);
            const double expected = isAgain ? std::clamp(late, 0.0, kAgainSeconds) : 0.0;
            const double away = std::max(0.0, std::abs(late - expected) - slack);
            const double relative = away / m_assumption.toleranceSeconds;
            cost += atMost(kMostTimeCost, relative * relative);
        }
    }
    if (!m_assumption.levelExposures.empty()) {
        cost += exposureCost(m_evidence.exposures[photo],
                             m_assumption.levelExposures[m_evidence.levels[shot]]);
    }
    return cost;
}

/** Whether \p photo was taken long before or after any shot. */
bool Walk::isFar(int photo) const
{
    if (!m_assumption.clock || !std::isfinite(m_evidence.photos.seconds[photo])) {
        return false;
    }
    const std::vector<double> &times = m_evidence.shots.rising;
    const double time = m_assumption.clock->headSeconds(m_evidence.photos.seconds[photo]);
    const double far = kFarSeconds + m_evidence.photos.slackSeconds + m_evidence.shots.slackSeconds;
    const auto near = std::lower_bound(times.begin(), times.end(), time - far);
    return near == times.end() || *near > time + far;
}

/** \p turned is the rotation of the later shot, after the measured one if there is one: it should
 * be that of shot \p from. */
double Walk::rotationCost(bool isMeasured, const Eigen::Matrix3d &turned, int from) const
{
    const Eigen::Matrix3d &rotation = m_evidence.rotations[from];
    if (isMeasured) {
        return turnCost(turned, rotation);
    }
    const bool areNeighbours = turned.col(2).dot(rotation.col(2)) >= m_evidence.neighbourCosine;
    return areNeighbours && !m_evidence.inBrackets ? m_noOverlapCost : 0.0;
}

void Walk::leave(const Row &before, int shot, int layer, double cost, Arrivals *arrivals) const
{
    if (!before.has(shot)) {
        return;
    }
    const Arrivals &ways = before.at(shot, layer);
    for (int rank = 0; rank < 2; ++rank) {
        if (ways.cost[rank] < kNever) {
            arrivals->offer(ways.cost[rank] + cost, origin(shot, layer, rank));
        }
    }
}

void Walk::takeShots(int photo, const Row &before, Row *row) const
{
    const std::vector<double> &times = m_evidence.photos.rising;
    const bool isAtOnce
        = photo > 0 && (!m_assumption.clock || times[photo] - times[photo - 1] <= kAgainSeconds);
    const double again = m_evidence.isBurst && isAtOnce ? kBurstAgainCost : kAgainCost;
    const auto measured = m_evidence.measured.find(photo);
    const bool isMeasured = measured != m_evidence.measured.end() && !m_evidence.rotations.empty();
    // Ways that skip shots are gathered while the shot advances: all come to it at the same cost
    // later, so that only the two cheapest matter. What is measured is compared one by one first.
    std::array<Arrivals, 2> skipping;
    std::array<int, 2> gathered{ before.begin, before.begin };
    const Band &band = m_bands[photo];
    for (int shot = band.begin; shot < band.end; ++shot) {
        Arrivals &arrivals = row->at(shot, kTaken);
        const double taking = stateCost(photo, shot, false);
        const double takingAgain = stateCost(photo, shot, true);
        Eigen::Matrix3d turned = Eigen::Matrix3d::Zero();
        if (isMeasured) {
            turned = measured->second
                ? Eigen::Matrix3d(m_evidence.rotations[shot] * *measured->second)
                : m_evidence.rotations[shot];
        }
        for (int layer : { kTaken, kStranger }) {
            const bool compares = isMeasured && layer == kTaken;
            const int nearest = compares ? shot - kMeasuredReach - 1 : shot - 2;
            const double unlike = compares && measured->second ? kMostRotationCost : 0.0;
            const double strange
                = isMeasured && layer == kStranger && measured->second ? kStrangeOverlapCost : 0.0;
            skipping[layer].age(kSkippedShotCost);
            for (int &from = gathered[layer]; from <= nearest && from < before.end(); ++from) {
                leave(before, from, layer,
                      unlike + strange + kSkipCost + kSkippedShotCost * (shot - from - 1),
                      &skipping[layer]);
            }
            arrivals.offer(skipping[layer]);
            for (int from = nearest + 1; from <= shot; ++from) {
                const int skipped = shot - from - 1;
                const bool isAgain = skipped < 0;
                double step = isAgain ? again + takingAgain - taking : 0.0;
                if (skipped > 0) {
                    step = kSkipCost + kSkippedShotCost * skipped;
                }
                const bool rotates = compares && from >= 0 && before.has(from)
                    && before.at(from, layer).cost[0] < kNever;
                leave(before, from, layer,
                      step + strange
                          + (rotates ? rotationCost(measured->second.has_value(), turned, from)
                                     : 0.0),
                      &arrivals);
            }
        }
        arrivals.age(taking);
    }
}

Row Walk::next(int photo, const Row &before) const
{
    const Band &band = m_bands[photo];
    Row row;
    row.begin = band.begin - 1;
    row.states.resize(band.end - row.begin);
    takeShots(photo, before, &row);
    const auto measured = m_evidence.measured.find(photo);
    const bool overlaps = measured != m_evidence.measured.end() && measured->second;
    const bool far = isFar(photo);
    const double first
        = (far ? kFarStrangerCost : kStrangerCost) + (overlaps ? kStrangeOverlapCost : 0.0);
    const double further = far && photo > 0 ? kMoreFarStrangersCost : first;
    for (int last = before.begin; last < before.end(); ++last) {
        // The band has left it behind: the shots up to there are skipped now.
        const int kept = std::max(last, row.begin);
        const double skipped = kept == last ? 0.0 : kSkipCost + kSkippedShotCost * (kept - last);
        for (int layer : { kTaken, kStranger }) {
            leave(before, last, layer, (layer == kStranger ? further : first) + skipped,
                  &row.at(kept, kStranger));
        }
    }
    return row;
}

ShotPath Walk::traced(double cost, int last) const
{
    const int n = m_evidence.photoCount();
    ShotPath path{ std::vector<int>(n, -1), cost };
    int state = last;
    for (int k = n - 1; k >= 0; --k) {
        const int rank = state % 2;
        const int layer = state / 2 % 2;
        const int shot = state / 4 - 1;
        path.shots[k] = layer == kTaken ? shot : -1;
        state = m_from[k][shot - m_begins[k]][layer * 2 + rank];
    }
    return path;
}

ShotPaths Walk::run()
{
    const int n = m_evidence.photoCount();
    const int m = m_evidence.shotCount();
    Row row;
    row.begin = -1;
    row.states.resize(1);
    row.at(-1, kStranger).offer(0.0, -1);
    m_from.reserve(n);
    m_begins.reserve(n);
    for (int k = 0; k < n; ++k) {
        row = next(k, row);
        m_begins.push_back(row.begin);
        std::vector<std::array<int, 4>> from;
        from.reserve(row.states.size());
        for (const auto &state : row.states) {
            from.push_back({ state[kTaken].from[0], state[kTaken].from[1], state[kStranger].from[0],
                             state[kStranger].from[1] });
        }
        m_from.push_back(std::move(from));
    }
    Arrivals ends;
    for (int last = row.begin; last < row.end(); ++last) {
        const int skipped = m - 1 - last;
        for (int layer : { kTaken, kStranger }) {
            leave(row, last, layer, skipped > 0 ? kSkipCost + kSkippedShotCost * skipped : 0.0,
                  &ends);
        }
    }
    ShotPaths paths;
    paths.best = traced(ends.cost[0], ends.from[0]);
    if (ends.cost[1] < kNever) {
        paths.second = traced(ends.cost[1], ends.from[1]);
    }
    for (int k = 0; k < n; ++k) {
        constexpr int kEdge = 2;
        const int shot = paths.best.shots[k];
        const Band &band = m_bands[k];
        paths.isCramped = paths.isCramped
            || (band.isCut && shot >= 0
                && ((band.begin > 0 && shot < band.begin + kEdge)
                    || (band.end < m && shot >= band.end - kEdge)));
    }
    return paths;
}

} // namespace

bool isWildTime(double before, double second, double after)
{
    constexpr double kFar = 600.0;
    return std::abs(after - before) < kFar && std::abs(second - before) > kFar
        && std::abs(second - after) > kFar;
}

ShotClock shotClockOf(std::vector<double> seconds)
{
    constexpr double kMinute = 60.0;
    for (std::size_t i = 1; i + 1 < seconds.size(); ++i) {
        if (isWildTime(seconds[i - 1], seconds[i], seconds[i + 1])) {
            seconds[i] = std::numeric_limits<double>::quiet_NaN();
        }
    }
    ShotClock clock;
    clock.rising.reserve(seconds.size());
    int known = 0;
    int falls = 0;
    bool isWholeSeconds = true;
    bool isWholeMinutes = true;
    double least = kNever;
    double latest = -kNever;
    double before = -kNever;
    for (double second : seconds) {
        if (std::isfinite(second)) {
            ++known;
            falls += second < before ? 1 : 0;
            before = second;
            least = std::min(least, second);
            latest = std::max(latest, second);
            isWholeSeconds = isWholeSeconds && std::fmod(second, 1.0) == 0.0;
            isWholeMinutes = isWholeMinutes && std::fmod(second, kMinute) == 0.0;
        }
    }
    const int count = static_cast<int>(seconds.size());
    constexpr int kRarely = 50;
    constexpr int kFewShots = 3; // that stand at a full minute by chance
    clock.isUsable = known > 0 && 2 * known >= count && (count < 2 || latest > least)
        && falls * kRarely <= count;
    clock.isWholeSeconds = isWholeSeconds;
    if (isWholeMinutes && known > kFewShots) {
        clock.slackSeconds = kMinute / 2.0;
        for (double &second : seconds) {
            second += clock.slackSeconds;
        }
    }
    latest = least + clock.slackSeconds;
    for (double second : seconds) {
        latest = std::isfinite(second) ? std::max(latest, second) : latest;
        clock.rising.push_back(latest);
    }
    clock.seconds = std::move(seconds);
    return clock;
}

double exposureCost(double stops, double level)
{
    const double away = (stops - level) / kExposureStops;
    return std::isfinite(stops) ? atMost(kMostExposureCost, away * away) : 0.0;
}

double turnCost(const Eigen::Matrix3d &turned, const Eigen::Matrix3d &rotation)
{
    // The squares of the differences add up to 8 sin^2 of half the angle between the two.
    return atMost(kMostRotationCost, (turned - rotation).squaredNorm() / 2.0 * kSquareDegrees);
}

double farStrangersCost(int photos, int overlaps, int shots)
{
    return kFarStrangerCost + kMoreFarStrangersCost * (photos - 1) + kStrangeOverlapCost * overlaps
        + kSkipCost + kSkippedShotCost * shots;
}

bool Walk::hasRoomFor(const ShotPath &path) const
{
    constexpr int kRoom = 3;
    for (int k = 0; k < m_evidence.photoCount(); ++k) {
        const int shot = path.shots[k];
        const Band &band = m_bands[k];
        if (shot < 0 || (band.begin > 0 && shot < band.begin + kRoom)
            || (band.end < m_evidence.shotCount() && shot >= band.end - kRoom)) {
            return false;
        }
    }
    return true;
}

ShotPaths shotPaths(const ShotEvidence &evidence, const ShotAssumption &assumption)
{
    if (assumption.clock && evidence.isLong()) {
        Walk walk(evidence, assumption, kNarrow);
        ShotPaths paths = walk.run();
        if (walk.hasRoomFor(paths.best)) {
            return paths;
        }
    }
    return Walk(evidence, assumption, kWide).run();
}

} // namespace PanoHost
