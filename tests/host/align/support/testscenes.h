// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/demo/camera.h"

namespace TestShoots
{

/** What is photographed. All but the room are infinitely far away. */
enum class TestScene {
    Terrace, ///< the demo's: texture everywhere
    OpenSky, ///< the same below `kOpenSkyPitchDegrees`, above it nothing but an even sky
    PlainBelt, ///< the demo's with an even belt of `kPlainBeltDegrees` about the horizon
    Facade, ///< the same window every `kWindowDegrees`, between plaster
    Haze, ///< the demo's with a quarter of its contrast
    FineTerrace, ///< the demo's with grain of half the size, for lenses of twice the length
    Room, ///< the demo's, painted on the walls of a room of `kRoom`
};

constexpr double kOpenSkyPitchDegrees = 22.0;
constexpr double kPlainBeltDegrees = 6.0; ///< either way
constexpr double kWindowDegrees = 4.0;

/** A box around the head, which stands at (0, 0, 0); metres. */
struct Room {
    PanoHost::Vec3 from;
    PanoHost::Vec3 to;
};
constexpr Room kRoom{ { -3.0, -2.0, -1.5 }, { 2.5, 2.5, 1.3 } };

/** The light of \p scene for an eye at \p eye, metres off the head's axes. Thread-safe. */
[[nodiscard]] PanoHost::RayLight lightOf(TestScene scene, const PanoHost::Vec3 &eye = {});

} // namespace TestShoots
