// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/align/support/testscenes.h"

#include "host/demo/noise.h"
#include "host/demo/scene.h"

#include <cmath>
#include <limits>

using namespace PanoHost;
using TestShoots::kRoom;

namespace
{

constexpr Rgb kEvenSky{ 0.22F, 0.36F, 0.62F };
constexpr Rgb kGrey{ 0.3F, 0.3F, 0.3F };
constexpr float kFadeDegrees = 3.0F;

const Scene &terrace()
{
    static const Scene scene;
    return scene;
}

Rgb openSky(const Vec3 &direction)
{
    const auto pitch = static_cast<float>(pitchDegreesOf(direction));
    const auto top = static_cast<float>(TestShoots::kOpenSkyPitchDegrees);
    const float sky = smoothStep(top - kFadeDegrees, top, pitch);
    return sky >= 1.0F ? kEvenSky : mix(terrace().radiance(direction), kEvenSky, sky);
}

Rgb plainBelt(const Vec3 &direction)
{
    const auto away = static_cast<float>(std::fabs(pitchDegreesOf(direction)));
    const auto edge = static_cast<float>(TestShoots::kPlainBeltDegrees);
    const float texture = smoothStep(edge, edge + kFadeDegrees, away);
    return texture <= 0.0F ? kGrey : mix(kGrey, terrace().radiance(direction), texture);
}

/** How far \p value lies beyond \p half of the middle of its period; below 0: inside. */
float beyond(double value, double period, float half)
{
    return static_cast<float>(std::fabs(value - period * std::round(value / period))) - half;
}

float inside(float outside)
{
    return smoothStep(kEdgeDegrees, -kEdgeDegrees, outside);
}

/** Windows alike to a hair; only the plaster between them has a face of its own. */
Rgb facade(const Vec3 &direction)
{
    constexpr double kFloorDegrees = 6.0;
    constexpr float kRoofDegrees = 60.0F;
    const double yaw = yawDegreesOf(direction);
    const double pitch = pitchDegreesOf(direction);
    const float away = static_cast<float>(std::fabs(pitch)) - kRoofDegrees;
    if (away > kEdgeDegrees) {
        return terrace().radiance(direction);
    }
    const float across = beyond(yaw, TestShoots::kWindowDegrees, 1.1F);
    const float along = beyond(pitch, kFloorDegrees, 1.8F);
    const float frame = std::max(across, along);
    const float bars = std::min(beyond(yaw, TestShoots::kWindowDegrees, 0.15F),
                                beyond(pitch - 0.5, kFloorDegrees, 0.15F));
    const float plaster = 1.0F + 0.25F * fractalNoise(40.0 * direction, 3, 900);
    const Rgb glass = mix(rgbFromHex(0x27343f), rgbFromHex(0xd8d2c4), inside(bars));
    const Rgb window = mix(rgbFromHex(0xe9e4d8), glass, inside(frame + 0.3F));
    const Rgb wall = mix(plaster * rgbFromHex(0xb98d62), window, inside(frame));
    return mix(terrace().radiance(direction), wall, inside(away));
}

Rgb haze(const Vec3 &direction)
{
    return mix(kGrey, terrace().radiance(direction), 0.25F);
}

Rgb fineTerrace(const Vec3 &direction)
{
    const float grain = fractalNoise(80.0 * direction, 3, 910);
    return (1.0F + 0.5F * grain) * terrace().radiance(direction);
}

/** The way along one axis to the wall that a ray meets first, in lengths of its direction. */
double wayTo(double from, double to, double eye, double direction)
{
    if (direction == 0.0) {
        return std::numeric_limits<double>::infinity();
    }
    return ((direction > 0.0 ? to : from) - eye) / direction;
}

Rgb wallOfRoom(const Vec3 &eye, const Vec3 &direction)
{
    const double way = std::min({ wayTo(kRoom.from.x, kRoom.to.x, eye.x, direction.x),
                                  wayTo(kRoom.from.y, kRoom.to.y, eye.y, direction.y),
                                  wayTo(kRoom.from.z, kRoom.to.z, eye.z, direction.z) });
    return terrace().radiance(normalized(eye + way * direction));
}

} // namespace

RayLight TestShoots::lightOf(TestScene scene, const Vec3 &eye)
{
    switch (scene) {
    case TestScene::OpenSky:
        return openSky;
    case TestScene::PlainBelt:
        return plainBelt;
    case TestScene::Facade:
        return facade;
    case TestScene::Haze:
        return haze;
    case TestScene::FineTerrace:
        return fineTerrace;
    case TestScene::Room:
        return [eye](const Vec3 &direction) { return wallOfRoom(eye, direction); };
    case TestScene::Terrace:
        break;
    }
    return [](const Vec3 &direction) { return terrace().radiance(direction); };
}
