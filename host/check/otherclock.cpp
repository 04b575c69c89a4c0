// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/check/otherclock.h"

#include "host/check/clocklines.h"

#include <algorithm>
#include <limits>

namespace PanoHost
{

namespace
{

/** As known of all photos and shots, but for the times of the photos and what pictures say. */
ShotEvidence evidenceOf(const StrangeRun &run, const ShotEvidence &all)
{
    ShotEvidence evidence;
    evidence.inBrackets = all.inBrackets;
    evidence.isBurst = all.isBurst;
    evidence.neighbourCosine = all.neighbourCosine;
    for (int photo : run.photos) {
        evidence.exposures.push_back(all.exposures[photo]);
    }
    std::vector<double> seconds;
    for (int shot : run.shots) {
        seconds.push_back(all.shots.seconds[shot]);
        evidence.levels.push_back(all.levels[shot]);
        if (!all.rotations.empty()) {
            evidence.rotations.push_back(all.rotations[shot]);
        }
    }
    evidence.shots = shotClockOf(std::move(seconds));
    evidence.shots.slackSeconds = all.shots.slackSeconds;
    return evidence;
}

} // namespace

std::vector<StrangeRun> strangeRuns(const std::vector<int> &shots, const std::vector<int> &named,
                                    int shotCount)
{
    std::vector<bool> isMissing(shotCount, true);
    for (int shot : shots) {
        if (shot >= 0) {
            isMissing[shot] = false;
        }
    }
    const auto isTaken = [&shots](int photo) { return shots[photo] >= 0; };
    std::vector<StrangeRun> runs;
    for (auto end = named.begin(); end != named.end();) {
        const auto begin = std::find_if_not(end, named.end(), isTaken);
        end = std::find_if(begin, named.end(), isTaken);
        StrangeRun run{ { begin, end }, {} };
        const bool follows = begin != end && begin != named.begin();
        int next = follows ? shots[*(begin - 1)] + 1 : shotCount;
        for (; next < shotCount && isMissing[next]; ++next) {
            run.shots.push_back(next);
        }
        const bool leads = run.shots.empty() && begin != end && end != named.end();
        int before = leads ? shots[*end] - 1 : -1;
        for (; before >= 0 && isMissing[before]; --before) {
            run.shots.push_back(before);
        }
        if (run.shots.empty()) {
            continue;
        }
        std::sort(run.shots.begin(), run.shots.end());
        if (begin != named.begin() && shots[*(begin - 1)] < run.shots.front()) {
            run.photos.insert(run.photos.begin(), *(begin - 1));
            run.shots.insert(run.shots.begin(), shots[*(begin - 1)]);
        }
        if (end != named.end() && shots[*end] > run.shots.back()) {
            run.photos.push_back(*end);
            run.shots.push_back(shots[*end]);
        }
        runs.push_back(std::move(run));
    }
    return runs;
}

ShotPath pathByOtherClock(const StrangeRun &run, const std::vector<int> &shots,
                          const ShotEvidence &evidence, const ShotAssumption &assumption,
                          const std::function<std::optional<Eigen::Matrix3d>(int, int)> &measure)
{
    constexpr double kSetCost = 8.0;
    constexpr int kMostLines = 4;
    constexpr std::size_t kMostAsked = 12;
    ShotEvidence own = evidenceOf(run, evidence);
    int overlaps = 0;
    const std::size_t pairs = run.photos.size() - 1;
    for (std::size_t i = 0; measure && i < std::min(kMostAsked, pairs); ++i) {
        const std::size_t k = 1 + i * pairs / std::min(kMostAsked, pairs);
        const auto measured = measure(run.photos[k - 1], run.photos[k]);
        own.measured.emplace(static_cast<int>(k), measured);
        overlaps += measured ? 1 : 0;
    }
    std::vector<double> strangeSeconds;
    for (int photo : run.photos) {
        if (shots[photo] < 0) {
            strangeSeconds.push_back(evidence.photos.seconds[photo]);
        }
    }
    const int strangers = static_cast<int>(strangeSeconds.size());
    ShotClock strange = shotClockOf(std::move(strangeSeconds));
    strange.slackSeconds = evidence.photos.slackSeconds;
    // A single time says nothing, as any clock makes it right.
    std::vector<std::optional<ClockLine>> lines{ std::nullopt };
    if (strangers > 1 && strange.isUsable && own.shots.isUsable) {
        const std::vector<ClockLine> likely = clockLines(strange, own.shots, kMostLines);
        lines.assign(likely.begin(), likely.end());
    }
    ShotPath best{ {}, std::numeric_limits<double>::infinity() };
    for (const std::optional<ClockLine> &line : lines) {
        std::vector<double> seconds;
        for (int photo : run.photos) {
            const double second = evidence.photos.seconds[photo];
            const double corrected
                = line ? assumption.clock->cameraSeconds(line->headSeconds(second)) : kUnknown;
            seconds.push_back(shots[photo] < 0 ? corrected : second);
        }
        own.photos = shotClockOf(std::move(seconds));
        own.photos.slackSeconds = evidence.photos.slackSeconds;
        ShotPath path = shotPaths(own, assumption).best;
        path.cost += line ? costOfLine(*line, own.shots) : 0.0;
        if (path.cost < best.cost) {
            best = std::move(path);
        }
    }
    std::vector<int> all = shots;
    for (std::size_t k = 0; k < run.photos.size(); ++k) {
        all[run.photos[k]] = best.shots[k] < 0 ? -1 : run.shots[best.shots[k]];
    }
    const int missing = static_cast<int>(run.shots.size() + strangers - run.photos.size());
    return { all, best.cost + kSetCost - farStrangersCost(strangers, overlaps, missing) };
}

} // namespace PanoHost
