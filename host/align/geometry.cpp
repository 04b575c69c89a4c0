// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/geometry.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace PanoHost
{

namespace
{

/** The ideal radius of the photo's \p radius: the inverse of Hugin's polynomial, by Newton. */
double idealRadius(double radius, const AlignLens &lens)
{
    constexpr int kSteps = 8;
    const double d = 1.0 - lens.a - lens.b - lens.c;
    double r = radius;
    for (int i = 0; i < kSteps; ++i) {
        const double value = r * (((lens.a * r + lens.b) * r + lens.c) * r + d);
        const double slope = ((4.0 * lens.a * r + 3.0 * lens.b) * r + 2.0 * lens.c) * r + d;
        r -= (value - radius) / std::max(slope, 0.05);
    }
    return r;
}

bool isDistorted(const AlignLens &lens)
{
    return lens.a != 0.0 || lens.b != 0.0 || lens.c != 0.0;
}

} // namespace

Eigen::Matrix3d rotationOf(const Angles &angles)
{
    const double yaw = qDegreesToRadians(angles.yaw);
    const double pitch = qDegreesToRadians(angles.pitch);
    const double roll = qDegreesToRadians(angles.roll);
    Eigen::Matrix3d turn;
    turn << std::cos(yaw), 0.0, std::sin(yaw), 0.0, 1.0, 0.0, -std::sin(yaw), 0.0, std::cos(yaw);
    Eigen::Matrix3d tilt;
    tilt << 1.0, 0.0, 0.0, 0.0, std::cos(pitch), std::sin(pitch), 0.0, -std::sin(pitch),
        std::cos(pitch);
    Eigen::Matrix3d spin;
    spin << std::cos(roll), std::sin(roll), 0.0, -std::sin(roll), std::cos(roll), 0.0, 0.0, 0.0,
        1.0;
    return turn * tilt * spin;
}

Angles anglesOf(const Eigen::Matrix3d &rotation)
{
    // The last column is the camera's axis: (sin yaw cos pitch, sin pitch, cos yaw cos pitch).
    const double cosine = std::hypot(rotation(0, 2), rotation(2, 2));
    Angles angles;
    angles.pitch = qRadiansToDegrees(std::atan2(rotation(1, 2), cosine));
    constexpr double kPole = 1e-9;
    if (cosine > kPole) {
        angles.yaw = qRadiansToDegrees(std::atan2(rotation(0, 2), rotation(2, 2)));
        angles.roll = qRadiansToDegrees(std::atan2(-rotation(1, 0), rotation(1, 1)));
        return angles;
    }
    // Straight up or down only yaw and roll together are known.
    angles.yaw = qRadiansToDegrees(std::atan2(-rotation(2, 0), rotation(0, 0)));
    return angles;
}

double degreesBetween(const Eigen::Matrix3d &one, const Eigen::Matrix3d &other)
{
    // Exact for small angles too, where the trace is not: |A - B| = 2 sqrt(2) sin(angle / 2).
    const double sine = (one - other).norm() / (2.0 * M_SQRT2);
    return qRadiansToDegrees(2.0 * std::asin(std::min(1.0, sine)));
}

Eigen::Vector3d AlignLens::rayOf(const Eigen::Vector2d &pixel) const
{
    Eigen::Vector2d plane(pixel.x() - (size.width() - 1) / 2.0,
                          (size.height() - 1) / 2.0 - pixel.y());
    const double radius = plane.norm();
    if (isDistorted(*this) && radius > 0.0) {
        const double unit = halfShorterSide();
        plane *= idealRadius(radius / unit, *this) * unit / radius;
    }
    plane /= focalPixels;
    if (model != LensModel::Fisheye) {
        return Eigen::Vector3d(plane.x(), plane.y(), 1.0).normalized();
    }
    const double angle = plane.norm();
    const double scale = angle > 0.0 ? std::sin(angle) / angle : 1.0;
    return { plane.x() * scale, plane.y() * scale, std::cos(angle) };
}

std::optional<Eigen::Vector2d> AlignLens::pixelOf(const Eigen::Vector3d &ray) const
{
    Eigen::Vector2d plane = ray.head<2>();
    if (model != LensModel::Fisheye) {
        if (!(ray.z() > kLeastCosine * ray.norm())) {
            return {};
        }
        plane *= focalPixels / ray.z();
    } else {
        const double sine = plane.norm();
        const double angle = std::atan2(sine, ray.z());
        plane *= focalPixels * (sine > 0.0 ? angle / sine : 1.0);
    }
    if (isDistorted(*this)) {
        const double r = plane.norm() / halfShorterSide();
        plane *= ((a * r + b) * r + c) * r + 1.0 - a - b - c;
    }
    return Eigen::Vector2d((size.width() - 1) / 2.0 + plane.x(),
                           (size.height() - 1) / 2.0 - plane.y());
}

bool AlignLens::contains(const Eigen::Vector2d &pixel, double margin) const
{
    return pixel.x() >= -0.5 - margin && pixel.x() <= size.width() - 0.5 + margin
        && pixel.y() >= -0.5 - margin && pixel.y() <= size.height() - 0.5 + margin;
}

AlignLens lensOf(const PtoImage &image)
{
    return { image.size, image.lens, image.focalPixels(), image.a, image.b, image.c };
}

} // namespace PanoHost
