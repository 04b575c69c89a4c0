// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/demo/direction.h"
#include "host/demo/rgb.h"

#include <QtGlobal>

namespace PanoHost
{

/**
 * A round terrace around the camera: a paved floor with a compass rose below the tripod, and a
 * low wall with a degree scale and the compass letters at their true yaw. Lengths are in eye
 * heights: the floor is 1 below the camera.
 */
class Terrace
{
public:
    explicit Terrace(quint32 seed);

    /** Share of the terrace in what is seen in \p direction, 0 to 1. */
    [[nodiscard]] static float coverage(const Vec3 &direction);
    /** Light of wall or floor; \p direction must point below the wall's upper edge. */
    [[nodiscard]] Rgb radiance(const Vec3 &direction) const;

private:
    [[nodiscard]] Rgb wall(const Vec3 &direction) const;
    [[nodiscard]] Rgb coping(const Vec3 &direction) const;
    [[nodiscard]] Rgb floor(const Vec3 &direction) const;
    [[nodiscard]] Rgb withChips(const Rgb &stone, float strength, const Vec3 &direction) const;
    [[nodiscard]] Rgb paving(float x, float y, const Vec3 &direction) const;

    quint32 m_seed;
};

} // namespace PanoHost
