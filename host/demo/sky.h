// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/demo/direction.h"
#include "host/demo/rgb.h"

#include <QtGlobal>

namespace PanoHost
{

inline constexpr double kSunYawDegrees = 62.0;
inline constexpr double kSunPitchDegrees = 24.0;

/** Half the width of the softened edges in the scene. */
inline constexpr float kEdgeDegrees = 0.11F;

/** Sky with sun, clouds and balloons; its lowest part also gives the colour of the haze. */
class Sky
{
public:
    explicit Sky(quint32 seed);

    /** Light of the sky in \p direction, a unit vector; below the horizon that of the haze. */
    [[nodiscard]] Rgb radiance(const Vec3 &direction) const;
    /** The colour into which far things fade: the sky without sun disc and clouds. */
    [[nodiscard]] Rgb haze(const Vec3 &direction) const;
    /** Unit vector to the sun. */
    [[nodiscard]] static Vec3 sun();

private:
    [[nodiscard]] Rgb withClouds(const Rgb &behind, const Vec3 &direction) const;

    quint32 m_seed;
};

} // namespace PanoHost
