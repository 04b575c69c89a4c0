// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/photoexif.h"
#include "importers/headfacts.h"

#include <QVector>

#include <Eigen/Core>

#include <functional>
#include <optional>

namespace PanoHost
{

/**
 * The rotation from photo \p one's camera to photo \p other's, as their pictures show it: it turns
 * a direction as seen by the first into the same as seen by the second, with x to the right, y up
 * and z into the scene of a camera as the head knows it (without the camera's own turn). Nothing
 * when they do not overlap. Indices into the photos given; neighbours in time. Asked once for a
 * pair.
 */
using MeasureRotation = std::function<std::optional<Eigen::Matrix3d>(int one, int other)>;

/** Where one photo belongs. */
struct PhotoPlace {
    enum class Kind {
        Alone, ///< the only one of its shot
        Doubled, ///< one of several of its shot
        InFront, ///< of no shot: one of a few before the first, as for a test
        OtherCamera, ///< of no shot: its size is another
        OtherShoot, ///< of no shot: taken at another time, or in between
    };
    Kind kind = Kind::OtherShoot;
    int shot = -1; ///< -1: none
};

/** How the camera's clock differs from the head's. */
struct ClockDifference {
    double seconds = 0.0; ///< camera minus head at the first shot
    double secondsPerMinute = 0.0; ///< that the camera's clock gains
    double minutes = 0.0; ///< from the first shot to the last
    /** Of `seconds`, what summer time or a zone explains: whole quarters of an hour, when the rest
     * is a few seconds; else 0. */
    double hours = 0.0;
};

/** How the order of the photos' names and that of their times differ. */
enum class NamesAndTimes {
    Agree, ///< also when there are no times
    Rollover, ///< the camera's counter went from 9999 to 0000
    Restart, ///< it started again: another card, say
    Differ,
};

/** Which photo belongs to which shot. Photos and shots are indices into what was given. */
struct ShotMatch {
    /** For each shot its photo; of several the last in time; -1: none. */
    QVector<int> photoOfShot;
    QVector<PhotoPlace> places; ///< one per photo
    /** All photos of each shot that has several, in the order of time. */
    QVector<QVector<int>> doubled;

    std::optional<ClockDifference> clock; ///< nothing: no times to compare
    NamesAndTimes namesAndTimes = NamesAndTimes::Agree;
    bool isBurst = false; ///< the camera takes several photos for each shot
    bool usesTimes = false; ///< otherwise those of head or camera are of no use
    bool usesExposures = false; ///< the bracket's levels are told by them

    /** How likely this is right, against the second reading: 0.5 to 1; 0: nothing to pair. */
    double sureness = 0.0;
    /** The best reading that pairs differently, for each photo its shot or -1; empty: none. */
    QVector<int> secondReading;

    bool doubtsTimes = false; ///< they leave out what is of this shoot all the same
    bool refutesNames = false; ///< pictures say that not each photo is of the next shot by name
    bool neededPictures = false; ///< names, times and counts do not settle it alone
    int measuredPairs = 0; ///< how often the pictures were asked

    [[nodiscard]] bool isSure() const;
    /** Whether every shot has its one photo and no photo is left over. */
    [[nodiscard]] bool isComplete() const;
};

/** Seconds by which what clocks show is compared, whatever their zones; NaN: no time. */
[[nodiscard]] double secondsShown(const QDateTime &time);

/**
 * Pairs \p photos, in any order, with the \p shots of a record that takes \p bracketCount photos at
 * a position. \p measure may be empty. It is asked only around places where names, times and counts
 * disagree, and everywhere when there are no times. Time and memory are bounded by the number of
 * photos and shots.
 */
[[nodiscard]] ShotMatch matchShots(const QVector<PanoHead::NotedShot> &shots, int bracketCount,
                                   const QVector<PhotoInfo> &photos,
                                   const MeasureRotation &measure);

} // namespace PanoHost
