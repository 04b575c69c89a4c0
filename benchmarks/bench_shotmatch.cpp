// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT

// Which photo belongs to which shot, against sorting the same photos, and how it grows.
#include "benchmarks/bars.h"
#include "host/check/shotmatch.h"
#include "tests/host/brokenshoots.h"

#include <algorithm>
#include <cmath>

using namespace PanoHost;

namespace
{

/** At least \p least shots, of which some went wrong. */
MadeShoot shootOf(int least, const QVector<Fault> &faults)
{
    constexpr int kShotsOfSphere = 26;
    ShootRecipe recipe;
    recipe.faults = faults;
    recipe.spheres = (least + kShotsOfSphere - 1) / kShotsOfSphere;
    return madeShoot(recipe);
}

double secondsToMatch(const MadeShoot &shoot, ShotMatch *match)
{
    return Bars::leastSeconds(
        3, [&] { *match = matchShots(shoot.shots, shoot.bracketCount, shoot.photos, {}); });
}

double secondsToSort(const MadeShoot &shoot)
{
    return Bars::leastSeconds(5, [&] {
        QVector<PhotoInfo> photos = shoot.photos;
        std::sort(photos.begin(), photos.end(), [](const PhotoInfo &one, const PhotoInfo &other) {
            return std::make_pair(one.timeMs, one.path) < std::make_pair(other.timeMs, other.path);
        });
    });
}

Bars::Figure timeOfSorting(const QVector<Fault> &faults)
{
    const MadeShoot shoot = shootOf(10'000, faults);
    ShotMatch match;
    const double matching = secondsToMatch(shoot, &match);
    const double sorting = secondsToSort(shoot);
    return { matching / sorting,
             Bars::text("%d photos in %.3g ms against %.3g ms", shoot.photos.size(), matching * 1e3,
                        sorting * 1e3),
             match.usesTimes ? "" : "times are not used" };
}

Bars::Figure growth(const QVector<Fault> &faults)
{
    const MadeShoot few = shootOf(10'000, faults);
    const MadeShoot many = shootOf(70'000, faults);
    ShotMatch match;
    const double small = secondsToMatch(few, &match);
    const double large = secondsToMatch(many, &match);
    return { Bars::exponent(few.photos.size(), small, many.photos.size(), large),
             Bars::text("%.3g ms, %.3g ms", small * 1e3, large * 1e3), "" };
}

} // namespace

int main(int argc, char **argv)
{
    using Bars::Need;
    const Bars::Bar sorting{ Need::AtMost, 20.0, "x" };
    const Bars::Bar linear{ Need::AtMost, 1.2, "" };
    const QVector<Fault> some{ Fault::MissingSeveral, Fault::Doubled, Fault::HourOff };
    Bars::add("matching photos to shots/10,000 sound ones by their times/time of sorting them",
              sorting, [] { return timeOfSorting({}); });
    Bars::add("matching photos to shots/10,000, some missing, an hour off/time of sorting them",
              sorting, [&] { return timeOfSorting(some); });
    Bars::add("matching photos to shots/from 10,000 to 70,000/cost exponent", linear,
              [&] { return growth(some); });
    return Bars::run(argc, argv);
}
