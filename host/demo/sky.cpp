// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/sky.h"

#include "host/demo/noise.h"

#include <array>

namespace PanoHost
{
namespace
{

struct Balloon {
    double yawDegrees;
    double pitchDegrees;
    float radiusDegrees;
    unsigned int stripe;
    unsigned int otherStripe;
};

constexpr std::array<Balloon, 4> kBalloons{ {
    { -33.0, 25.0, 4.2F, 0xd8342b, 0xf6e7c8 },
    { 16.0, 37.0, 2.6F, 0xf2b233, 0x8c2f6b },
    { 134.0, 22.0, 3.0F, 0x1f7a8c, 0xf4d35e },
    { -118.0, 31.0, 2.2F, 0x5b3a9e, 0xf08a4b },
} };

/** Half the width of a balloon at height \p v above its middle, both in radii. */
float halfWidth(float v)
{
    if (v > 0.0F) {
        return std::sqrt(std::max(0.0F, 1.0F - v * v));
    }
    const float taper = -v / 1.55F;
    return std::max(0.0F, 1.0F - 0.80F * taper * taper - 0.04F * taper);
}

Rgb balloonColour(const Balloon &balloon, float u, float v)
{
    if (v < -1.62F) {
        return rgbFromHex(0x5a3d22);
    }
    const float across = std::clamp(u / std::max(0.05F, halfWidth(v)), -1.0F, 1.0F);
    const float stripes = std::sin(5.0F * std::asin(across) + 0.6F);
    const float band = smoothStep(0.10F, 0.16F, std::fabs(v + 0.12F));
    const Rgb fabric = mix(rgbFromHex(balloon.stripe), rgbFromHex(balloon.otherStripe),
                           smoothStep(-0.25F, 0.25F, stripes) * band);
    const float light = 0.55F + 0.55F * std::sqrt(1.0F - 0.98F * across * across) + 0.12F * v;
    return light * fabric;
}

/** Draws the balloon over \p behind where \p direction meets it. */
Rgb withBalloon(const Rgb &behind, const Balloon &balloon, const Vec3 &direction)
{
    const Vec3 middle = directionTo(balloon.yawDegrees, balloon.pitchDegrees);
    if (dot(direction, middle) < std::cos(radians(3.0 * balloon.radiusDegrees))) {
        return behind;
    }
    const double perRadius = 1.0 / radians(balloon.radiusDegrees);
    const auto u = static_cast<float>(
        perRadius * dot(direction, directionTo(balloon.yawDegrees + 90.0, 0.0)));
    const auto v = static_cast<float>(
        perRadius * dot(direction, directionTo(balloon.yawDegrees, balloon.pitchDegrees + 90.0)));
    const float soft = kEdgeDegrees / balloon.radiusDegrees;
    const bool basket = v < -1.62F;
    const float edge = basket ? 0.20F : halfWidth(std::clamp(v, -1.55F, 1.0F));
    const float sides = smoothStep(-soft, soft, edge - std::fabs(u));
    const float top = smoothStep(-soft, soft, 1.0F - std::hypot(u, std::max(0.0F, v)));
    const float bottom = basket ? smoothStep(-soft, soft, v + 2.05F) : 1.0F;
    const float neck = smoothStep(0.0F, soft, std::fabs(v + 1.62F));
    return mix(behind, balloonColour(balloon, u, v), sides * top * bottom * neck);
}

} // namespace

Sky::Sky(quint32 seed)
    : m_seed(seed)
{
}

Vec3 Sky::sun()
{
    return directionTo(kSunYawDegrees, kSunPitchDegrees);
}

Rgb Sky::haze(const Vec3 &direction) const
{
    const auto height = static_cast<float>(std::max(0.0, direction.z));
    const float toSun = 0.5F + 0.5F * static_cast<float>(dot(direction, sun()));
    const Rgb horizon = mix(rgbFromHex(0xb9cfe0), rgbFromHex(0xffdcae), toSun * toSun * toSun);
    const Rgb middle = mix(rgbFromHex(0x6fa3d6), rgbFromHex(0xa9c4dc), toSun * toSun * toSun);
    const Rgb zenith = rgbFromHex(0x2f66ae);
    const Rgb low = mix(horizon, middle, smoothStep(0.0F, 0.42F, height));
    const Rgb sky = mix(low, zenith, smoothStep(0.25F, 1.0F, height));
    const float glow = std::pow(toSun, 14.0F);
    return sky + 0.35F * glow * rgbFromHex(0xffd28a);
}

Rgb Sky::withClouds(const Rgb &behind, const Vec3 &direction) const
{
    const double height = std::max(0.0, direction.z);
    const double scale = 2.3 / (height + 0.38);
    const Vec3 place{ scale * direction.x, scale * direction.y, 0.37 };
    const float warp = noise(1.3 * place, m_seed + 40);
    const Vec3 bent{ place.x + 0.45 * warp, place.y - 0.35 * warp, place.z };
    const float density = fractalNoise(1.15 * bent, 5, m_seed + 50);
    const Vec3 towardSun{ bent.x + 0.16 * sun().x, bent.y + 0.16 * sun().y, bent.z };
    const float shade = density - fractalNoise(1.15 * towardSun, 4, m_seed + 50);
    const auto low = static_cast<float>(height);
    const float cover = smoothStep(-0.06F, 0.20F, density) * smoothStep(0.02F, 0.22F, low);

    const double along = 0.8 * place.x + 0.6 * place.y;
    const double across = 0.8 * place.y - 0.6 * place.x;
    const Vec3 streak{ 1.0 * along + 0.8 * warp, 4.6 * across + 1.1 * warp, 3.1 };
    const float veil = fractalNoise(streak, 4, m_seed + 60);
    const float feather = 0.60F * smoothStep(-0.10F, 0.42F, veil);
    const Rgb streaked = mix(behind, rgbFromHex(0xf3f6fa), feather);

    const float bright = std::clamp(0.62F + 2.1F * shade, 0.0F, 1.0F);
    const float toSun = 0.5F + 0.5F * static_cast<float>(dot(direction, sun()));
    const Rgb lit = mix(rgbFromHex(0xfdfdfd), rgbFromHex(0xfff0d2), toSun * toSun);
    const Rgb dark = mix(rgbFromHex(0x8fa3bd), rgbFromHex(0xbda99a), toSun * toSun * toSun);
    return mix(streaked, mix(dark, lit, bright), 0.92F * cover);
}

Rgb Sky::radiance(const Vec3 &direction) const
{
    Rgb light = withClouds(haze(direction), direction);
    const auto fromSun
        = static_cast<float>(degrees(std::acos(std::clamp(dot(direction, sun()), -1.0, 1.0))));
    light = light + (0.55F * std::exp(-fromSun / 3.2F)) * rgbFromHex(0xfff0c4);
    light = mix(light, rgbFromHex(0xfffbe6), smoothStep(1.55F, 1.2F, fromSun));
    for (const Balloon &balloon : kBalloons) {
        light = withBalloon(light, balloon, direction);
    }
    return light;
}

} // namespace PanoHost
