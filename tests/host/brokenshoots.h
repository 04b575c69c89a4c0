// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/check/shotmatch.h"

#include <QStringList>
#include <QVector>

#include <Eigen/Core>

/** What may go wrong with a shoot, or be odd about it. */
enum class Fault {
    Aborted,
    MissingOne,
    MissingSeveral,
    Doubled,
    MissingAndDoubled, ///< as many photos as shots
    Rollover,
    TwoCards,
    HourOff,
    MinutesOff, ///< the clock, by 17
    Drifting, ///< by a second in a minute
    BracketMissing,
    BracketDoubled,
    BracketInterrupted,
    TestShot,
    OtherShoot, ///< by the same camera, in the same folder
    OtherCamera,
    Burst,
};

/** A shoot made up for tests: record, photos, and what is true. */
struct MadeShoot {
    QVector<PanoHead::NotedShot> shots;
    int bracketCount = 1;
    QVector<PanoHost::PhotoInfo> photos; ///< in no order
    QVector<int> truth; ///< for each photo its shot; -1: none
    QVector<Eigen::Matrix3d> rotations; ///< of the photos, camera to world
    double offsetSeconds = 0.0; ///< camera minus head
    double secondsPerMinute = 0.0;

    /** Knows the true rotation of photos that look up to 46 degrees apart, with a noise of 0.3
     * degrees; counts in \p asked how often. */
    [[nodiscard]] PanoHost::MeasureRotation pictures(int *asked = nullptr) const;
};

/** How the photos tell their times. */
enum class Times { SubSeconds, WholeSeconds, WholeMinutes, Same, None };

/** What clocks do to the times of a shoot that is sound. */
enum class OddClock {
    Sound,
    HeadWildOnce, ///< one shot of 2099
    HeadNone,
    HeadSomeNone,
    HeadSame,
    HeadBackwards,
    HeadOtherZone,
    HeadWholeMinutes,
    CameraWholeMinutes,
    CameraSame,
    CameraNone,
    CameraSomeNone,
    CameraWildOnce, ///< one photo of 1980
    CameraLateOnce, ///< one second late: twice second s, and none in s + 1
    CameraEarlyOnce,
    CameraSetOnTheWay, ///< by an hour
    CameraCorrectedOnTheWay, ///< by seconds, as by a telephone
    CameraDrifts, ///< a second in a minute
    CameraRaces, ///< six seconds in a minute
    CameraRandom, ///< times that say nothing
};

struct RowOfShots {
    double pitchDegrees;
    int count; ///< evenly spread over a full turn
};

/** How a shoot is made. */
struct ShootRecipe {
    int seed = 1;
    int playSeed = 0; ///< shoots of one are taken from the same places; 0: each has its own
    QVector<RowOfShots> rows{ { 0.0, 10 }, { 45.0, 8 }, { -45.0, 6 }, { 90.0, 1 }, { -90.0, 1 } };
    QVector<Fault> faults;
    bool inBrackets = false; ///< of three; faults of brackets ask for it by themselves
    Times times = Times::WholeSeconds;
    bool hasHeadTimes = true;
    bool hasOddNames = false; ///< words, in the order of time
    double offsetSeconds = 0.0; ///< odd clocks
    /** The shot after a doubled one may be missing: when a photo is a second late, no clock tells.
     */
    bool isSubtle = true;
    int spheres = 1; ///< how often the rows are taken
};
[[nodiscard]] MadeShoot madeShoot(const ShootRecipe &recipe);

/** The same with odd times; draws come from \p seed. */
[[nodiscard]] MadeShoot withClock(MadeShoot shoot, OddClock clock, int seed);

[[nodiscard]] const char *nameOf(Fault fault);
[[nodiscard]] QVector<Fault> allFaults();
[[nodiscard]] const char *nameOf(OddClock clock);
[[nodiscard]] QVector<OddClock> allOddClocks();
