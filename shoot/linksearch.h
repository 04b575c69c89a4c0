// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "model/authorizedlink.h"

#include <QVector>

namespace PanoHead
{

/** Where a position points. Radians, 32-bit as in the description; any number of turns. */
struct Direction {
    float yaw;
    float pitch;
};

/**
 * Half the diagonal angle of view of a 36 x 24 mm frame behind a rectilinear lens, radians.
 * atan(diagonal / (f + f)) with the sum in 32-bit; negative for a negative focal length.
 */
[[nodiscard]] float halfFieldOfView(float focalMm);

/**
 * Appends the links between neighbouring positions to \p links.
 *
 * B is a neighbour of A when half the field of view exceeds 0.65 of their angular distance. The
 * link is written from A when B lies beside it to the right (type 2) or below it (type 1), so a
 * pair gets one link; two positions with the same direction get none or two, since the cosine of
 * their distance is not clamped. Order: ascending A, then ascending B. Directions that are not
 * finite have no neighbours.
 */
void appendNeighbourLinks(QVector<AuthorizedLink> &links, const QVector<Direction> &positions,
                          float halfFieldOfViewRadians);

/** Where a photo points, with the lens it was taken through. */
struct PhotoDirection {
    float yawDegrees;
    float pitchDegrees;
    float focalMm; ///< 35 mm equivalent; 0 sees half the sphere, not a number sees nothing
};

/**
 * Appends a link of type 0 for every pair i < j whose angular distance, times 0.7, is below half
 * the diagonal angle of view of either photo. Identical directions always link: here the cosine is
 * clamped. Order: ascending i, then ascending j.
 */
void appendCloseLinks(QVector<AuthorizedLink> &links, const QVector<PhotoDirection> &photos);

} // namespace PanoHead
