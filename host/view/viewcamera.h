// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/coverage.h"

#include <QPointF>
#include <QSizeF>

#include <Eigen/Core>

#include <optional>

/*
 * Where things stand on the screen. The world is that of host/align/geometry.h: x to the right, y
 * up, z into the scene at yaw 0; yaw to the right, pitch up. Screens count down from their upper
 * left corner.
 */
namespace PanoHost
{

/** The unit vector at this yaw and pitch, degrees. */
[[nodiscard]] Eigen::Vector3d directionAt(double yawDegrees, double pitchDegrees);

enum class ViewMode {
    Flat, ///< the whole sphere as a map: longitude across, latitude down
    Sphere, ///< a look around from inside
};

/** The way between directions and points of the screen. */
struct ViewCamera {
    ViewMode mode = ViewMode::Flat;
    double yawDegrees = 0.0; ///< in the middle of the screen
    double pitchDegrees = 0.0;
    double pixelsPerDegree = 3.0; ///< in the middle of the screen
    QSizeF size{ 1.0, 1.0 }; ///< of the screen, pixels

    /** Of a sphere, pixels: what lies a radian beside the middle is as far away as its tangent. */
    [[nodiscard]] double focalPixels() const;
    /** The world's directions as the camera has them. */
    [[nodiscard]] Eigen::Matrix3d toCamera() const;
    /** What is seen at \p point; nothing beside the map. */
    [[nodiscard]] std::optional<Eigen::Vector3d> directionOf(const QPointF &point) const;
    /** Where \p direction stands, on the screen or beside it; nothing for what lies behind. On the
     * map it is the nearest of all places, within half a turn of the middle. */
    [[nodiscard]] std::optional<QPointF> pointOf(const Eigen::Vector3d &direction) const;
    /** The angle between the middle and the corners of the screen, degrees; of a sphere. */
    [[nodiscard]] double cornerDegrees() const;

    /** What lay in the middle lies \p pixels further on, as far as the poles allow. */
    [[nodiscard]] ViewCamera dragged(const QPointF &pixels) const;
    /** \p factor times as large; what is seen at \p point stays there. */
    [[nodiscard]] ViewCamera zoomed(double factor, const QPointF &point) const;
    /** All of \p coverage with a margin, as large as can be. */
    [[nodiscard]] ViewCamera fitted(const Coverage &coverage) const;

private:
    [[nodiscard]] ViewCamera bounded() const;
};

/** Seen from inside, what stands further to the side than this is smeared. */
constexpr double kWidestViewDegrees = 120.0;
/** Of what lies nearly beside or behind the eye nothing is drawn: the cosine of the angle. */
constexpr double kLeastViewCosine = 0.05;

} // namespace PanoHost
