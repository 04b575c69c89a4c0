// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/geometry.h"
#include "host/model/result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace PanoHost
{

/** What became of one photo with angles of its own. */
struct AlignedPhoto {
    QString path;
    int points = 0; ///< right ones
    Angles recorded; ///< in the record's frame
    Angles aligned; ///< in the project's frame
    double movedDegrees = 0.0; ///< by the points, away from where head, mount and scales put it

    /** Fewer points do not hold a photo: the record does. */
    static constexpr int kHoldingPoints = 3;
    [[nodiscard]] bool isTied() const { return points >= kHoldingPoints; }
};

/** From one photo on an axis of the head stands elsewhere than recorded. */
struct SlippedAxis {
    QString path; ///< the first photo after it
    double yawDegrees = 0.0;
    double pitchDegrees = 0.0;
};

/** One photo stands elsewhere than recorded, its neighbours do not. */
struct BumpedPhoto {
    QString path;
    double degrees = 0.0;
};

/** What an alignment has found out. Degrees and pixels of the stored photos. */
struct AlignmentReport {
    QVector<AlignedPhoto> photos;
    int pairCount = 0; ///< looked at
    int matchedPairCount = 0;
    int pointCount = 0; ///< right ones
    int wrongPointCount = 0;
    double medianPixels = 0.0; ///< residual of the right points
    std::optional<double>
        playDegrees; ///< how well the head repeats; nothing: too few photos are tied
    double recordedFocal35mm = 0.0;
    double focal35mm = 0.0; ///< 0: photos of several sizes, or none
    double distortionA = 0.0;
    double distortionB = 0.0;
    double distortionC = 0.0;
    double mountPitchDegrees = 0.0;
    double mountRollDegrees = 0.0;
    bool isGrid = false; ///< then the next two were learnt
    double yawScale = 1.0;
    double pitchScale = 1.0;
    QVector<SlippedAxis> slips;
    QVector<BumpedPhoto> bumps;
    std::optional<double> parallaxPixels; ///< residuals that only a moving viewpoint explains
    double cornerLight = 1.0; ///< how much of the middle's light arrives in the corners
    QVector<double> exposureShifts; ///< in stops, one per photo; empty: no photometry
    QStringList notes; ///< what else the user should know, a sentence each
    bool isPlaced = false; ///< photos were moved; false: as recorded, `notes` says why

    [[nodiscard]] int tiedCount() const;
};

/** The report for people: a sentence each, the most important first. */
[[nodiscard]] QStringList sentences(const AlignmentReport &report);

/** As a JSON document in \p folder (photos are named relative to it), the way back, and its schema.
 */
[[nodiscard]] QByteArray alignmentToJson(const AlignmentReport &report, const QString &folder);
[[nodiscard]] Result<AlignmentReport> alignmentFromJson(const QByteArray &json,
                                                        const QString &folder);
[[nodiscard]] QByteArray alignmentSchema();

} // namespace PanoHost
