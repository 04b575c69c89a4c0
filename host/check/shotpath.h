// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <Eigen/Core>

#include <limits>
#include <map>
#include <optional>
#include <vector>

/*
 * The cheapest way to walk through photos and recorded shots side by side. Costs are those of twice
 * the logarithm of a likelihood: 6 more is e^3 times less likely.
 */
namespace PanoHost
{

/** A second, an exposure or another number that is not known. */
constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();
/** Time zones differ by whole ones. */
constexpr double kQuarterHourSeconds = 900.0;

/** When photos were taken, or shots recorded, in their order. */
struct ShotClock {
    std::vector<double> seconds; ///< any origin; NaN: not known
    std::vector<double> rising; ///< the same without gaps, and never falling
    bool isWholeSeconds = false; ///< fractions are cut off
    double slackSeconds = 0.0; ///< the true times differ so much from these, either way
    /** Otherwise it says nothing: too few times, all the same, or falling too often. */
    bool isUsable = false;
};
/** Whether \p second, between two that are near each other, is far from both: no clock was set to
 * and fro. */
[[nodiscard]] bool isWildTime(double before, double second, double after);
/** \p seconds in order, NaN where not known; wild ones become that. A clock without seconds is
 * recognised. */
[[nodiscard]] ShotClock shotClockOf(std::vector<double> seconds);

/** From the head's clock to the camera's. */
struct ClockLine {
    double offset = 0.0; ///< camera minus head at the origin, seconds
    double drift = 0.0; ///< seconds that the camera gains in a second
    double origin = 0.0; ///< of the head's clock

    [[nodiscard]] double cameraSeconds(double head) const
    {
        return head + offset + drift * (head - origin);
    }
    [[nodiscard]] double headSeconds(double camera) const
    {
        return origin + (camera - offset - origin) / (1.0 + drift);
    }
};

/** What is known of photos and shots, both in the order in which they were taken. */
struct ShotEvidence {
    ShotClock photos;
    ShotClock shots;
    std::vector<double> exposures; ///< of the photos, stops; NaN: not known
    std::vector<int> levels; ///< of the shots: which exposure of its position
    std::vector<Eigen::Matrix3d> rotations; ///< of the shots, camera to world; may be empty
    double neighbourCosine = 1.0; ///< shots that look less apart are neighbours
    /** What pictures say of photo k - 1 and photo k, by k: see `MeasureRotation`. */
    std::map<int, std::optional<Eigen::Matrix3d>> measured;
    bool isBurst = false; ///< several photos of a shot are to be expected
    bool inBrackets = false;

    [[nodiscard]] int photoCount() const { return static_cast<int>(exposures.size()); }
    [[nodiscard]] int shotCount() const { return static_cast<int>(levels.size()); }
    /** So many that what agrees throughout does not do so by chance. */
    [[nodiscard]] bool isLong() const { return photoCount() >= 300 && shotCount() >= 300; }
};

/** What a walk takes for granted. */
struct ShotAssumption {
    std::optional<ClockLine> clock; ///< nothing: times say nothing
    double toleranceSeconds = 1.0; ///< standard deviation of a photo's time
    std::vector<double> levelExposures; ///< by level; empty: exposures say nothing
};

/** How badly a photo of exposure \p stops, or NaN, fits a level of \p level stops. */
[[nodiscard]] double exposureCost(double stops, double level);
/** How badly it fits two shots that the later one, turned by what pictures say, is \p turned where
 * the earlier one is \p rotation. */
[[nodiscard]] double turnCost(const Eigen::Matrix3d &turned, const Eigen::Matrix3d &rotation);

/** How unlikely it is that \p photos, of which \p overlaps overlap with the one before, were taken
 * long before or after any shot, and that \p shots in a row have no photo. */
[[nodiscard]] double farStrangersCost(int photos, int overlaps, int shots);

/** One way to pair them: for each photo its shot; -1: it is of none. */
struct ShotPath {
    std::vector<int> shots;
    double cost = 0.0;
};

/** The two cheapest ways that pair differently. */
struct ShotPaths {
    ShotPath best;
    std::optional<ShotPath> second;
    bool isCramped = false; ///< a better way may have been out of reach: too many photos and shots
};
/** With at least one photo and one shot. Time and memory grow with their number only. */
[[nodiscard]] ShotPaths shotPaths(const ShotEvidence &evidence, const ShotAssumption &assumption);

} // namespace PanoHost
