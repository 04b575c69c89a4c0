// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/demo/direction.h"
#include "host/demo/landscape.h"
#include "host/demo/rgb.h"
#include "host/demo/sky.h"
#include "host/demo/terrace.h"

namespace PanoHost
{

inline constexpr quint32 kSceneSeed = 20260;

/**
 * The made-up place that the demo photographs: a stone terrace with a compass rose above a
 * mountain lake. The compass letters stand at their true yaw (N 0, E 90, S 180, W -90), so that a
 * panorama of it can be judged by eye.
 *
 * The finest detail is about 0.2 degrees wide, which photos of 0.1 degrees a pixel and a panorama
 * of 2048 pixels can both carry, and no region is without texture.
 */
class Scene
{
public:
    explicit Scene(quint32 seed = kSceneSeed);

    /** Light from \p direction, a unit vector. Pure and thread-safe. */
    [[nodiscard]] Rgb radiance(const Vec3 &direction) const;

private:
    [[nodiscard]] Rgb farAway(const Vec3 &direction) const;

    Sky m_sky;
    Landscape m_landscape;
    Terrace m_terrace;
};

} // namespace PanoHost
