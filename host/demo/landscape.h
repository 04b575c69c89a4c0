// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/demo/direction.h"
#include "host/demo/rgb.h"
#include "host/demo/sky.h"

#include <vector>

namespace PanoHost
{

/** A skyline all around, looked up by yaw. */
class Skyline
{
public:
    /** \p heights in degrees, evenly spread over a full turn from yaw 0. */
    explicit Skyline(std::vector<float> heights);

    /** Pitch of the skyline in degrees. */
    [[nodiscard]] float heightAt(double yawDegrees) const;

private:
    std::vector<float> m_heights;
};

/** Mountains, forests, meadow and lake in front of a sky. */
class Landscape
{
public:
    explicit Landscape(quint32 seed);

    /** What is seen in \p direction, a unit vector; the sky where no land is. */
    [[nodiscard]] Rgb radiance(const Vec3 &direction, const Sky &sky) const;

private:
    struct Point; // a direction with its angles

    [[nodiscard]] Rgb land(const Point &point, const Sky &sky) const;
    [[nodiscard]] Rgb alps(const Point &point, const Sky &sky) const;
    [[nodiscard]] Rgb hills(const Point &point, const Sky &sky) const;
    [[nodiscard]] Rgb forest(const Point &point, const Sky &sky) const;
    [[nodiscard]] Rgb water(const Point &point, const Sky &sky) const;
    [[nodiscard]] Rgb meadow(const Point &point) const;

    quint32 m_seed;
    Skyline m_alps;
    Skyline m_hills;
    Skyline m_forest;
    Skyline m_shore; ///< pitch of the near end of the water; above 0 where there is only meadow
};

} // namespace PanoHost
