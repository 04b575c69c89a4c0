// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/scene.h"

namespace PanoHost
{

Scene::Scene(quint32 seed)
    : m_sky(seed)
    , m_landscape(seed + 1000)
    , m_terrace(seed + 2000)
{
}

Rgb Scene::farAway(const Vec3 &direction) const
{
    return m_landscape.radiance(direction, m_sky);
}

Rgb Scene::radiance(const Vec3 &direction) const
{
    const float terrace = Terrace::coverage(direction);
    if (terrace <= 0.0F) {
        return farAway(direction);
    }
    const Rgb near = m_terrace.radiance(direction);
    return terrace >= 1.0F ? near : mix(farAway(direction), near, terrace);
}

} // namespace PanoHost
