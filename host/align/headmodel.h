// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/geometry.h"

#include <vector>

namespace PanoHost
{

/** One photo that is to be placed: where the head says that it points. */
struct AlignView {
    Angles recorded; ///< of the head, without the turn of the stored pixels
    /** Clockwise degrees that the camera, or its stored pixels, is turned about the lens's axis:
     * what EXIF orientation and the camera's own turn add up to. */
    double turnDegrees = 0.0;
    int lens = 0; ///< index into the model's lenses
    /** The view whose stack this one belongs to, as one of its levels with angles of its own; -1:
     * itself. Levels are tied to it instead of to the record. */
    int stack = -1;
};

/**
 * A head that nearly does what it records, and the camera on it:
 *
 *   rotation = head(yaw * yawScale + dYaw, pitch * pitchScale + dPitch, roll + dRoll)
 *              * mount(0, mountPitch, mountRoll) * turn
 */
struct HeadModel {
    std::vector<AlignView> views;
    std::vector<Angles>
        corrections; ///< one per view: what the head did besides the record, degrees
    std::vector<AlignLens> lenses;
    double mountPitchDegrees = 0.0;
    double mountRollDegrees = 0.0;
    double yawScale = 1.0;
    double pitchScale = 1.0;

    /** Camera to world, by everything that is known so far. */
    [[nodiscard]] Eigen::Matrix3d rotation(int view) const;
    [[nodiscard]] const AlignLens &lensOf(int view) const;
};

/** The same spot in two photos; stored pixels, (0, 0) is the middle of the first. */
struct TiePoint {
    int first = 0; ///< index of a view
    int second = 0;
    Eigen::Vector2d inFirst = Eigen::Vector2d::Zero();
    Eigen::Vector2d inSecond = Eigen::Vector2d::Zero();
};

} // namespace PanoHost
