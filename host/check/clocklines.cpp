// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/clocklines.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace PanoHost
{

namespace
{

constexpr double kMostDrift = 0.03;
constexpr double kMostMisfit = 16.0; ///< squared seconds
constexpr int kSamples = 64;

struct LineCandidate {
    ClockLine line;
    double misfit = 0.0;
};

/** Evenly spread indices below \p count, all when there are few. */
std::vector<int> spread(int count, int most)
{
    std::vector<int> indices;
    const int samples = std::min(count, most);
    indices.reserve(samples);
    for (int i = 0; i < samples; ++i) {
        indices.push_back(
            samples == 1 ? 0
                         : static_cast<int>(static_cast<qint64>(i) * (count - 1) / (samples - 1)));
    }
    return indices;
}

double nearest(const std::vector<double> &rising, double time)
{
    const auto after = std::lower_bound(rising.begin(), rising.end(), time);
    const double up = after == rising.end() ? HUGE_VAL : *after - time;
    const double down = after == rising.begin() ? HUGE_VAL : time - *(after - 1);
    return std::min(up, down);
}

class Candidates
{
public:
    Candidates(const ShotClock &photos, const ShotClock &shots)
        : m_photos(photos)
        , m_shots(shots)
        , m_slack(photos.slackSeconds + shots.slackSeconds)
        , m_bySample(spread(std::min(count(photos), count(shots)), kSamples))
    {
    }

    void gather();
    [[nodiscard]] std::vector<ClockLine> best(int most);

private:
    static int count(const ShotClock &clock) { return static_cast<int>(clock.seconds.size()); }
    [[nodiscard]] double cost(double away) const
    {
        const double more = std::max(0.0, std::abs(away) - m_slack);
        return std::min(kMostMisfit, more * more);
    }
    [[nodiscard]] double misfit(const ClockLine &line) const;
    void add(double offset, double drift);
    void addDrifting(int photo, int shot);
    [[nodiscard]] std::vector<int> shotsFor(int photo) const;

    const ShotClock &m_photos;
    const ShotClock &m_shots;
    double m_slack;
    std::vector<int> m_bySample;
    std::vector<LineCandidate> m_all;
};

double Candidates::misfit(const ClockLine &line) const
{
    const int n = count(m_photos);
    const int m = count(m_shots);
    double sum = 0.0;
    for (int i : m_bySample) {
        // Each of the fewer has its partner; and whoever was there first, or went last, mostly has
        // the first or last.
        if (n <= m) {
            const double head = line.headSeconds(m_photos.rising[i]);
            sum += cost(nearest(m_shots.rising, head));
            sum += 0.25
                * std::min(cost(head - m_shots.rising[i]), cost(head - m_shots.rising[m - n + i]));
        } else {
            const double camera = line.cameraSeconds(m_shots.rising[i]);
            sum += cost(nearest(m_photos.rising, camera));
            sum += 0.25
                * std::min(cost(camera - m_photos.rising[i]),
                           cost(camera - m_photos.rising[n - m + i]));
        }
    }
    return sum + costOfLine(line, m_shots);
}

void Candidates::add(double offset, double drift)
{
    const ClockLine line{ offset, drift, m_shots.rising.front() };
    m_all.push_back({ line, misfit(line) });
}

/** The shots that may be those of \p photo: all of few, else those about as far from start or end.
 */
std::vector<int> Candidates::shotsFor(int photo) const
{
    constexpr int kFew = 256;
    constexpr int kNear = 32;
    const int m = count(m_shots);
    std::set<int> shots;
    if (m <= kFew) {
        for (int shot = 0; shot < m; ++shot) {
            shots.insert(shot);
        }
    }
    for (int middle : { photo, m - count(m_photos) + photo }) {
        for (int shot = middle - kNear; m > kFew && shot <= middle + kNear; ++shot) {
            if (shot >= 0 && shot < m) {
                shots.insert(shot);
            }
        }
    }
    return { shots.begin(), shots.end() };
}

/** Lines through \p photo and \p shot that meet another pair much later. */
void Candidates::addDrifting(int photo, int shot)
{
    constexpr int kFewFaults = 3;
    constexpr double kNoteworthySeconds = 0.5;
    const int n = count(m_photos);
    for (int later : { n - 1, n - 2, n - 1 - n / 4, n / 2 }) {
        for (int fault = -kFewFaults; fault <= kFewFaults; ++fault) {
            const int other = shot + later - photo + fault;
            if (later <= photo || other <= shot || other >= count(m_shots)) {
                continue;
            }
            const double camera = m_photos.rising[later] - m_photos.rising[photo];
            const double head = m_shots.rising[other] - m_shots.rising[shot];
            const double drift = head > 0.0 ? camera / head - 1.0 : HUGE_VAL;
            if (std::abs(drift) <= kMostDrift && std::abs(camera - head) > kNoteworthySeconds) {
                const double origin = m_shots.rising.front();
                add(m_photos.rising[photo] - m_shots.rising[shot]
                        - drift * (m_shots.rising[shot] - origin),
                    drift);
            }
        }
    }
}

void Candidates::gather()
{
    constexpr int kMostPairs = 4096;
    const int n = count(m_photos);
    const int m = count(m_shots);
    add(0.0, 0.0);
    const bool isSmall = static_cast<qint64>(n) * m <= kMostPairs;
    // Many photos for few shots: any of them may be the first that counts.
    const int anchors = isSmall ? n : std::max(8, std::min(n, kMostPairs / std::max(1, m)));
    for (int photo : spread(n, anchors)) {
        for (int shot : shotsFor(photo)) {
            add(m_photos.rising[photo] - m_shots.rising[shot], 0.0);
        }
    }
    for (int photo : std::set<int>{ 0, std::min(1, n - 1), n / 8 }) {
        for (int shot : shotsFor(photo)) {
            addDrifting(photo, shot);
        }
    }
}

std::vector<ClockLine> Candidates::best(int most)
{
    std::stable_sort(m_all.begin(), m_all.end(),
                     [](const LineCandidate &one, const LineCandidate &other) {
                         return one.misfit < other.misfit;
                     });
    constexpr double kSameSeconds = 0.7;
    const double same = std::max(kSameSeconds, m_slack / 8.0);
    const double first = m_shots.rising.front();
    const double last = m_shots.rising.back();
    // Of many photos the samples speak for all: what misses them by a second each is hopeless.
    constexpr int kMany = 300;
    const double mostMisfit = std::min(count(m_photos), count(m_shots)) < kMany
        ? HUGE_VAL
        : m_all.front().misfit + kSamples;
    std::vector<ClockLine> lines;
    for (const LineCandidate &candidate : m_all) {
        if (candidate.misfit > mostMisfit) {
            break;
        }
        const bool isNew = std::none_of(lines.begin(), lines.end(), [&](const ClockLine &line) {
            return std::abs(line.cameraSeconds(first) - candidate.line.cameraSeconds(first)) < same
                && std::abs(line.cameraSeconds(last) - candidate.line.cameraSeconds(last)) < same;
        });
        if (isNew) {
            lines.push_back(candidate.line);
        }
        if (static_cast<int>(lines.size()) == most) {
            break;
        }
    }
    return lines;
}

} // namespace

std::vector<ClockLine> clockLines(const ShotClock &photos, const ShotClock &shots, int most)
{
    Candidates candidates(photos, shots);
    candidates.gather();
    return candidates.best(most);
}

ClockLine fittedLine(const ClockLine &line, const ShotClock &photos, const ShotClock &shots,
                     const std::vector<int> &pairs)
{
    constexpr int kRounds = 8;
    ClockLine fitted = line;
    for (int round = 0; round < kRounds; ++round) {
        double weights = 0.0;
        double sumX = 0.0;
        double sumY = 0.0;
        double sumXX = 0.0;
        double sumXY = 0.0;
        for (std::size_t k = 0; k < pairs.size(); ++k) {
            if (pairs[k] < 0 || !std::isfinite(photos.seconds[k])
                || !std::isfinite(shots.seconds[pairs[k]])) {
                continue;
            }
            const double x = shots.seconds[pairs[k]] - fitted.origin;
            const double y = photos.seconds[k] - shots.seconds[pairs[k]];
            const double away = photos.seconds[k] - fitted.cameraSeconds(shots.seconds[pairs[k]]);
            constexpr double kTypicalSeconds = 0.5;
            const double weight = 1.0 / (1.0 + std::pow(away / kTypicalSeconds, 4.0));
            weights += weight;
            sumX += weight * x;
            sumY += weight * y;
            sumXX += weight * x * x;
            sumXY += weight * x * y;
        }
        const double spread = sumXX * weights - sumX * sumX;
        if (weights < 1.0) {
            return fitted;
        }
        const bool hasSlope = spread > 1e-6 * weights * weights;
        const double drift = hasSlope ? (sumXY * weights - sumX * sumY) / spread : 0.0;
        fitted.drift = std::clamp(drift, -kMostDrift, kMostDrift);
        fitted.offset = (sumY - fitted.drift * sumX) / weights;
    }
    return fitted;
}

double costInOrder(const ShotClock &photos, const ShotClock &shots, double drift,
                   double toleranceSeconds)
{
    constexpr double kUselessCost = 4.0; // for each time that says nothing
    constexpr double kSetCost = 8.0;
    constexpr double kNudgedCost = 12.0; // a clock is set by minutes at least, but for telephones
    constexpr double kNudgeSeconds = 60.0;
    constexpr std::size_t kMostOffsets = 24;
    struct Near {
        int count = 0;
        double sum = 0.0;
    };
    std::vector<double> offsets;
    std::map<double, Near> nears; // by whole seconds
    for (std::size_t i = 0; i < std::min(photos.seconds.size(), shots.seconds.size()); ++i) {
        const double head = shots.seconds[i];
        const double offset = photos.seconds[i] - head - drift * (head - shots.rising.front());
        if (std::isfinite(offset)) {
            offsets.push_back(offset);
            for (const double step : { -1.0, 0.0, 1.0 }) {
                Near &near = nears[std::round(offset) + step];
                ++near.count;
                near.sum += offset;
            }
        }
    }
    std::vector<std::pair<int, double>> often;
    often.reserve(nears.size());
    for (const auto &[second, near] : nears) {
        often.emplace_back(-near.count, near.sum / near.count);
    }
    std::sort(often.begin(), often.end());
    often.resize(std::min(often.size(), kMostOffsets));
    const double slack = photos.slackSeconds + shots.slackSeconds;
    std::vector<double> costs;
    costs.reserve(often.size());
    for (const auto &candidate : often) {
        costs.push_back(costOfLine({ candidate.second, drift, shots.rising.front() }, shots));
    }
    for (const double offset : offsets) {
        std::vector<double> next;
        next.reserve(often.size());
        for (std::size_t to = 0; to < often.size(); ++to) {
            double least = costs[to];
            for (std::size_t from = 0; from < often.size(); ++from) {
                const double step = std::abs(often[to].second - often[from].second);
                least = std::min(least,
                                 costs[from] + (step < kNudgeSeconds ? kNudgedCost : kSetCost));
            }
            const double away = std::max(0.0, std::abs(offset - often[to].second) - slack);
            next.push_back(least + std::min(kMostMisfit, std::pow(away / toleranceSeconds, 2.0)));
        }
        costs = std::move(next);
    }
    const double useless = kUselessCost * static_cast<double>(offsets.size());
    return costs.empty() ? 0.0 : std::min(useless, *std::min_element(costs.begin(), costs.end()));
}

double costOfLine(const ClockLine &line, const ShotClock &shots)
{
    constexpr double kFewSeconds = 3.0;
    constexpr double kLargestZone = 26.0 * 3600.0;
    constexpr double kOddHourCost = 3.0;
    constexpr double kOddCost = 6.0;
    constexpr double kDriftCost = 4.0;
    constexpr double kNoteworthySeconds = 1.5;
    const double slack = kFewSeconds + shots.slackSeconds;
    const double offset = std::abs(line.offset);
    const double beyond = std::abs(std::remainder(offset, kQuarterHourSeconds));
    double cost = kOddCost;
    if (offset <= slack) {
        cost = 0.0;
    } else if (offset <= kLargestZone && beyond <= slack) {
        cost = kOddHourCost;
    }
    const double drifted = line.drift * (shots.rising.back() - shots.rising.front());
    return std::abs(drifted) > kNoteworthySeconds ? cost + kDriftCost : cost;
}

} // namespace PanoHost
