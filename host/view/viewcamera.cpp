// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/view/viewcamera.h"

#include "host/align/geometry.h"
#include "host/model/ptoline.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace PanoHost
{

namespace
{

constexpr double kLargestPixelsPerDegree = 4000.0;
/** What is around a fitted panorama, part of the screen on each side. */
constexpr double kMargin = 0.03;
/** A whole sphere is looked at with such a lens, degrees across the longer side. */
constexpr double kSphereViewDegrees = 90.0;

double focalFor(double side, double degrees)
{
    return side / 2.0 / std::tan(qDegreesToRadians(degrees / 2.0));
}

} // namespace

Eigen::Vector3d directionAt(double yawDegrees, double pitchDegrees)
{
    const double yaw = qDegreesToRadians(yawDegrees);
    const double pitch = qDegreesToRadians(pitchDegrees);
    return { std::sin(yaw) * std::cos(pitch), std::sin(pitch), std::cos(yaw) * std::cos(pitch) };
}

double ViewCamera::focalPixels() const
{
    return qRadiansToDegrees(pixelsPerDegree);
}

Eigen::Matrix3d ViewCamera::toCamera() const
{
    return rotationOf({ yawDegrees, pitchDegrees, 0.0 }).transpose();
}

std::optional<Eigen::Vector3d> ViewCamera::directionOf(const QPointF &point) const
{
    const double right = point.x() - size.width() / 2.0;
    const double up = size.height() / 2.0 - point.y();
    if (mode == ViewMode::Sphere) {
        const Eigen::Vector3d ray(right, up, focalPixels());
        return Eigen::Vector3d(toCamera().transpose() * ray.normalized());
    }
    const double yaw = right / pixelsPerDegree;
    const double pitch = pitchDegrees + up / pixelsPerDegree;
    if (std::abs(yaw) > 180.0 || std::abs(pitch) > 90.0) {
        return {};
    }
    return directionAt(yawDegrees + yaw, pitch);
}

std::optional<QPointF> ViewCamera::pointOf(const Eigen::Vector3d &direction) const
{
    const QPointF middle(size.width() / 2.0, size.height() / 2.0);
    if (mode == ViewMode::Sphere) {
        const Eigen::Vector3d seen = toCamera() * direction;
        if (!(seen.z() > kLeastViewCosine * seen.norm())) {
            return {};
        }
        const double perUnit = focalPixels() / seen.z();
        return middle + QPointF(seen.x() * perUnit, -seen.y() * perUnit);
    }
    const double yaw = qRadiansToDegrees(std::atan2(direction.x(), direction.z()));
    const double pitch
        = qRadiansToDegrees(std::atan2(direction.y(), std::hypot(direction.x(), direction.z())));
    return middle
        + QPointF(wrappedDegrees(yaw - yawDegrees), pitchDegrees - pitch) * pixelsPerDegree;
}

double ViewCamera::cornerDegrees() const
{
    const double half = std::hypot(size.width(), size.height()) / 2.0;
    return qRadiansToDegrees(std::atan2(half, focalPixels()));
}

ViewCamera ViewCamera::dragged(const QPointF &pixels) const
{
    ViewCamera camera = *this;
    // Near the poles a turn moves little: without a bound the picture would spin.
    const double shrink
        = mode == ViewMode::Sphere ? std::max(std::cos(qDegreesToRadians(pitchDegrees)), 0.2) : 1.0;
    camera.yawDegrees -= pixels.x() / pixelsPerDegree / shrink;
    camera.pitchDegrees += pixels.y() / pixelsPerDegree;
    return camera.bounded();
}

ViewCamera ViewCamera::zoomed(double factor, const QPointF &point) const
{
    ViewCamera camera = *this;
    camera.pixelsPerDegree *= factor;
    camera = camera.bounded();
    if (mode == ViewMode::Flat) {
        // Of what the point is away from the middle, the screen shows more or less now.
        const QPointF away(point.x() - size.width() / 2.0, point.y() - size.height() / 2.0);
        const QPointF degrees = away / pixelsPerDegree - away / camera.pixelsPerDegree;
        camera.yawDegrees += degrees.x();
        camera.pitchDegrees -= degrees.y();
        return camera.bounded();
    }
    const auto before = directionOf(point);
    const auto after = camera.directionOf(point);
    const auto yawOf
        = [](const Eigen::Vector3d &d) { return qRadiansToDegrees(std::atan2(d.x(), d.z())); };
    const auto pitchOf = [](const Eigen::Vector3d &d) {
        return qRadiansToDegrees(std::atan2(d.y(), std::hypot(d.x(), d.z())));
    };
    camera.yawDegrees += wrappedDegrees(yawOf(*before) - yawOf(*after));
    camera.pitchDegrees += pitchOf(*before) - pitchOf(*after);
    return camera.bounded();
}

ViewCamera ViewCamera::fitted(const Coverage &coverage) const
{
    ViewCamera camera = *this;
    const double high = coverage.highestPitchDegrees;
    const double low = coverage.lowestPitchDegrees;
    camera.yawDegrees = coverage.yawCentreDegrees;
    camera.pitchDegrees = (high + low) / 2.0;
    const QSizeF room = size * (1.0 - 2.0 * kMargin);
    const double across = std::clamp(coverage.yawSpanDegrees, 0.01, 360.0);
    const double down = std::clamp(high - low, 0.01, 180.0);
    if (mode == ViewMode::Flat) {
        camera.pixelsPerDegree = std::min(room.width() / across, room.height() / down);
        return camera.bounded();
    }
    const double focal = std::min(focalFor(room.width(), std::min(across, kSphereViewDegrees)),
                                  focalFor(room.height(), std::min(down, kSphereViewDegrees)));
    camera.pixelsPerDegree = qDegreesToRadians(focal);
    return camera.bounded();
}

ViewCamera ViewCamera::bounded() const
{
    ViewCamera camera = *this;
    const double side = std::max(std::max(size.width(), size.height()), 1.0);
    const double least = mode == ViewMode::Flat
        ? std::min(size.width() / 360.0, size.height() / 180.0) / 2.0
        : qDegreesToRadians(focalFor(side, kWidestViewDegrees));
    camera.pixelsPerDegree
        = std::clamp(pixelsPerDegree, std::max(least, 0.01), kLargestPixelsPerDegree);
    camera.yawDegrees = wrappedDegrees(yawDegrees);
    camera.pitchDegrees = std::clamp(pitchDegrees, -90.0, 90.0);
    return camera;
}

} // namespace PanoHost
