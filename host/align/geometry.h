// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/angles.h"
#include "host/model/ptofile.h"
#include "model/lensmodel.h"

#include <QSize>

#include <Eigen/Core>

#include <algorithm>
#include <optional>

/*
 * The world: x to the right, y up, z into the scene at yaw 0. A rotation turns directions of the
 * camera into those of the world. Pixels as in a Hugin project: x to the right and y down, (0, 0)
 * is the middle of the first stored pixel.
 */
namespace PanoHost
{

/** Camera to world: rolled first, then pitched, then turned. */
[[nodiscard]] Eigen::Matrix3d rotationOf(const Angles &angles);
/** The angles of \p rotation: yaw and roll in [-180, 180], pitch in [-90, 90]. */
[[nodiscard]] Angles anglesOf(const Eigen::Matrix3d &rotation);
/** The angle between two rotations, degrees. */
[[nodiscard]] double degreesBetween(const Eigen::Matrix3d &one, const Eigen::Matrix3d &other);

/** A rectilinear lens does not see what is this far to the side: the cosine of the angle. */
constexpr double kLeastCosine = 0.05;

/** How directions come to pixels, with Hugin's polynomial for what lenses do wrong. */
struct AlignLens {
    QSize size; ///< stored pixels
    LensModel model = LensModel::Standard;
    double focalPixels = 0.0;
    /** Radii in halves of the shorter side: photo = ideal * (a r^3 + b r^2 + c r + 1 - a - b - c).
     */
    double a = 0.0;
    double b = 0.0;
    double c = 0.0;

    /** Pixels; the unit of the radii. */
    [[nodiscard]] double halfShorterSide() const
    {
        return std::min(size.width(), size.height()) / 2.0;
    }
    /** The unit vector, in the camera's own frame, of what pixel \p pixel sees. */
    [[nodiscard]] Eigen::Vector3d rayOf(const Eigen::Vector2d &pixel) const;
    /** Where \p ray (any length, the camera's own frame) meets the photo's plane, inside the photo
     * or not; nothing where no such lens sees it. */
    [[nodiscard]] std::optional<Eigen::Vector2d> pixelOf(const Eigen::Vector3d &ray) const;
    /** \p margin pixels around the photo count as inside. */
    [[nodiscard]] bool contains(const Eigen::Vector2d &pixel, double margin = 0.0) const;
};

/** The lens of \p image as its project has it now. */
[[nodiscard]] AlignLens lensOf(const PtoImage &image);

} // namespace PanoHost
