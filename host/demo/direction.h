// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cmath>

namespace PanoHost
{

inline constexpr double kPi = 3.14159265358979323846;

[[nodiscard]] constexpr double radians(double degrees)
{
    return degrees * kPi / 180.0;
}
[[nodiscard]] constexpr double degrees(double radians)
{
    return radians * 180.0 / kPi;
}

/** A vector of the world: x to the east (yaw 90), y to the north (yaw 0), z up. */
struct Vec3 {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

[[nodiscard]] constexpr Vec3 operator+(const Vec3 &a, const Vec3 &b)
{
    return { a.x + b.x, a.y + b.y, a.z + b.z };
}

[[nodiscard]] constexpr Vec3 operator*(double factor, const Vec3 &v)
{
    return { factor * v.x, factor * v.y, factor * v.z };
}

[[nodiscard]] constexpr double dot(const Vec3 &a, const Vec3 &b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

[[nodiscard]] inline Vec3 normalized(const Vec3 &v)
{
    return (1.0 / std::sqrt(dot(v, v))) * v;
}

/** Unit vector; yaw grows to the right, pitch upwards. */
[[nodiscard]] inline Vec3 directionTo(double yawDegrees, double pitchDegrees)
{
    const double yaw = radians(yawDegrees);
    const double pitch = radians(pitchDegrees);
    return { std::cos(pitch) * std::sin(yaw), std::cos(pitch) * std::cos(yaw), std::sin(pitch) };
}

/** -180 to 180. */
[[nodiscard]] inline double yawDegreesOf(const Vec3 &direction)
{
    return degrees(std::atan2(direction.x, direction.y));
}

/** -90 to 90; \p direction need not have unit length. */
[[nodiscard]] inline double pitchDegreesOf(const Vec3 &direction)
{
    return degrees(std::atan2(direction.z, std::hypot(direction.x, direction.y)));
}

/** \p yawDegrees brought to [-180, 180). */
[[nodiscard]] inline double wrappedYawDegrees(double yawDegrees)
{
    return yawDegrees - 360.0 * std::floor((yawDegrees + 180.0) / 360.0);
}

} // namespace PanoHost
