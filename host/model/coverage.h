// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "model/lensmodel.h"

#include <QSize>
#include <QVector>

namespace PanoHost
{

/** A photo on the sphere. */
struct Frame {
    QSize size; ///< stored pixels
    double focalPixels = 0.0;
    LensModel lens = LensModel::Standard;
    double yawDegrees = 0.0;
    double pitchDegrees = 0.0;
    double rollDegrees = 0.0; ///< clockwise as seen from behind the camera
};

/** The part of the sphere that photos cover. */
struct Coverage {
    double yawCentreDegrees = 0.0; ///< in [-180, 180)
    double yawSpanDegrees = 0.0; ///< 360 when no hole is left
    double lowestPitchDegrees = 0.0;
    double highestPitchDegrees = 0.0;
};

/**
 * The smallest yaw range, across the join if need be, and the pitch range that hold all
 * \p frames: everything outside their largest hole. At least one frame.
 */
[[nodiscard]] Coverage coverageOf(const QVector<Frame> &frames);

} // namespace PanoHost
