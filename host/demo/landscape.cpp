// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/landscape.h"

#include "host/demo/noise.h"

namespace PanoHost
{
namespace
{

constexpr int kSkylineSteps = 16384;

/** A skyline from a function of the point on the unit circle. */
template <typename Height> Skyline skylineOf(const Height &height)
{
    std::vector<float> heights(kSkylineSteps);
    for (int i = 0; i < kSkylineSteps; ++i) {
        heights[static_cast<size_t>(i)] = height(directionTo(i * 360.0 / kSkylineSteps, 0.0));
    }
    return Skyline(std::move(heights));
}

Skyline alpineSkyline(quint32 seed)
{
    return skylineOf([seed](const Vec3 &d) {
        const float massif = fractalNoise(1.1 * d, 2, seed);
        const float peaks = ridgedNoise(2.3 * d, 6, seed + 7);
        return 1.0F + 9.0F * massif + 21.0F * peaks * peaks;
    });
}

Skyline hillSkyline(quint32 seed)
{
    return skylineOf([seed](const Vec3 &d) {
        return 4.0F + 5.4F * fractalNoise(2.3 * d, 4, seed + 20)
            + 0.35F * noise(70.0 * d, seed + 27);
    });
}

/** Rows of conifers on low ground: triangles of differing width and height. */
Skyline forestSkyline(quint32 seed)
{
    constexpr int kTrees = 420;
    constexpr double kSpacingDegrees = 360.0 / kTrees;
    return skylineOf([seed](const Vec3 &d) {
        const double yaw = yawDegreesOf(d) + 180.0;
        const int nearest = static_cast<int>(yaw / kSpacingDegrees);
        float top = 0.0F;
        for (int i = nearest - 3; i <= nearest + 3; ++i) {
            const int tree = (i + kTrees) % kTrees;
            const double middle
                = (static_cast<double>(i) + cellValue(tree, 1, seed)) * kSpacingDegrees;
            const Vec3 ground = 2.2 * directionTo(middle - 180.0, 0.0);
            const float low = 0.6F + 2.6F * noise(ground, seed + 30);
            const float tall
                = (0.9F + 1.5F * cellValue(tree, 2, seed)) * smoothStep(-0.4F, 0.8F, low);
            const auto away = static_cast<float>(std::fabs(yaw - middle));
            top = std::max(top, low + tall * (1.0F - away / (0.30F + 0.16F * tall)));
            top = std::max(top, low);
        }
        return top;
    });
}

Skyline shoreline(quint32 seed)
{
    return skylineOf([seed](const Vec3 &d) {
        const float bay = static_cast<float>(dot(d, directionTo(48.0, 0.0)));
        return 1.2F - 11.0F * smoothStep(-0.35F, 0.55F, bay)
            + 1.8F * fractalNoise(3.0 * d, 3, seed + 33);
    });
}

} // namespace

struct Landscape::Point {
    explicit Point(const Vec3 &d)
        : direction(d)
        , yawDegrees(yawDegreesOf(d))
        , pitchDegrees(static_cast<float>(pitchDegreesOf(d)))
        , toSun(0.5F + 0.5F * static_cast<float>(dot(d, directionTo(kSunYawDegrees, 0.0))))
    {
    }

    Vec3 direction;
    double yawDegrees;
    float pitchDegrees;
    float toSun; ///< 1 below the sun, 0 opposite
};

Skyline::Skyline(std::vector<float> heights)
    : m_heights(std::move(heights))
{
}

float Skyline::heightAt(double yawDegrees) const
{
    const double turns = yawDegrees / 360.0 - std::floor(yawDegrees / 360.0);
    const double place = turns * static_cast<double>(m_heights.size());
    const auto before = static_cast<size_t>(place) % m_heights.size();
    const auto after = (before + 1) % m_heights.size();
    const auto share = static_cast<float>(place - std::floor(place));
    return (1.0F - share) * m_heights[before] + share * m_heights[after];
}

Landscape::Landscape(quint32 seed)
    : m_seed(seed)
    , m_alps(alpineSkyline(seed))
    , m_hills(hillSkyline(seed))
    , m_forest(forestSkyline(seed))
    , m_shore(shoreline(seed))
{
}

Rgb Landscape::alps(const Point &point, const Sky &sky) const
{
    const Vec3 &d = point.direction;
    const Vec3 ribs{ 13.0 * d.x, 13.0 * d.y, 9.0 * d.z };
    const Vec3 sideways = directionTo(kSunYawDegrees, 35.0);
    const Vec3 lit{ ribs.x + 0.22 * sideways.x, ribs.y + 0.22 * sideways.y,
                    ribs.z + 0.22 * sideways.z };
    const float relief = ridgedNoise(ribs, 4, m_seed + 70);
    const float slope = relief - ridgedNoise(lit, 4, m_seed + 70);
    const float light = std::clamp(0.58F + 2.6F * slope, 0.12F, 1.15F);
    const float snow = smoothStep(-1.2F, 1.6F, point.pitchDegrees - 6.5F + 6.0F * (relief - 0.55F));
    const Rgb rock = mix(rgbFromHex(0x5a6478), rgbFromHex(0x8a7d74), relief);
    const Rgb sunlit = mix(rock, rgbFromHex(0xffffff), snow);
    const Rgb shadow = mix(0.55F * rock, rgbFromHex(0x8ea6cc), snow);
    const float mist = 0.22F + 0.58F * smoothStep(9.0F, 0.5F, point.pitchDegrees);
    return mix(mix(shadow, light * sunlit, smoothStep(0.25F, 0.75F, light)), sky.haze(d), mist);
}

Rgb Landscape::hills(const Point &point, const Sky &sky) const
{
    const Vec3 &d = point.direction;
    const float woods = fractalNoise(22.0 * d, 3, m_seed + 80);
    const float trees = noise(75.0 * d, m_seed + 86);
    const Rgb grass = mix(rgbFromHex(0x7d9a4a), rgbFromHex(0x9fae5a), 0.5F + woods);
    const Rgb wood = mix(rgbFromHex(0x2f5540), rgbFromHex(0x446b46), 0.5F + 0.7F * trees);
    const Rgb cover = mix(grass, wood, smoothStep(-0.16F, 0.05F, woods));
    const float light = 0.85F + 0.35F * fractalNoise(9.0 * d, 3, m_seed + 88) + 0.16F * trees;
    const float mist = 0.28F + 0.42F * smoothStep(4.5F, 0.0F, point.pitchDegrees);
    return mix(light * cover, sky.haze(d), mist);
}

Rgb Landscape::forest(const Point &point, const Sky &sky) const
{
    const Vec3 &d = point.direction;
    const Vec3 upright{ 80.0 * d.x, 80.0 * d.y, 42.0 * d.z };
    const float branches = fractalNoise(upright, 2, m_seed + 90);
    const float depth
        = std::clamp(m_forest.heightAt(point.yawDegrees) - point.pitchDegrees, 0.0F, 3.0F);
    const Rgb dark = mix(rgbFromHex(0x16301f), rgbFromHex(0x2c4424), point.toSun);
    const Rgb bright = mix(rgbFromHex(0x3f6b3a), rgbFromHex(0x7c8a3a), point.toSun);
    const float light = std::clamp(0.55F + 0.9F * branches - 0.10F * depth, 0.0F, 1.0F);
    return mix(mix(dark, bright, light), sky.haze(d), 0.06F);
}

Rgb Landscape::meadow(const Point &point) const
{
    const Vec3 &d = point.direction;
    const double reach = 1.0 / (0.05 + std::fabs(d.z));
    const Vec3 ground{ reach * d.x, reach * d.y, 0.0 };
    const float patches = fractalNoise(0.9 * ground, 4, m_seed + 100);
    const float blades = noise(78.0 * d, m_seed + 106);
    const float flowers = smoothStep(0.42F, 0.6F, noise(64.0 * d, m_seed + 108));
    const Rgb grass = mix(rgbFromHex(0x55802c), rgbFromHex(0xa9b350), 0.5F + 0.9F * patches);
    const Rgb bloom
        = cellValue(static_cast<int>(std::floor(point.yawDegrees / 9.0)), 3, m_seed) < 0.5F
        ? rgbFromHex(0xf4e27a)
        : rgbFromHex(0xf2f0ee);
    return mix((0.92F + 0.30F * blades) * grass, bloom,
               0.75F * flowers * smoothStep(0.0F, 0.2F, patches));
}

Rgb Landscape::land(const Point &point, const Sky &sky) const
{
    const auto over = [&](const Skyline &skyline) {
        return smoothStep(-kEdgeDegrees, kEdgeDegrees,
                          skyline.heightAt(point.yawDegrees) - point.pitchDegrees);
    };
    const float trees = over(m_forest);
    const float hill = trees < 1.0F ? over(m_hills) : 1.0F;
    const float alp = trees < 1.0F && hill < 1.0F ? over(m_alps) : 1.0F;
    Rgb light;
    if (alp < 1.0F) {
        light = sky.radiance(point.direction);
    }
    if (alp > 0.0F && hill < 1.0F && trees < 1.0F) {
        light = mix(light, alps(point, sky), alp);
    }
    if (hill > 0.0F && trees < 1.0F) {
        light = mix(light, hills(point, sky), hill);
    }
    return trees > 0.0F ? mix(light, forest(point, sky), trees) : light;
}

Rgb Landscape::water(const Point &point, const Sky &sky) const
{
    const float depth = -point.pitchDegrees;
    const Vec3 &d = point.direction;
    const float ripple = fractalNoise({ 24.0 * d.x, 24.0 * d.y, 150.0 * d.z }, 3, m_seed + 110);
    const double mirrored = 1.15 * depth + 0.9 * ripple * smoothStep(0.0F, 2.5F, depth);
    const Point above(directionTo(point.yawDegrees + 0.5 * ripple, std::max(0.05, mirrored)));
    const Rgb reflection = land(above, sky);
    const Rgb tint = mix(rgbFromHex(0x2e6f86), rgbFromHex(0x1c5570), smoothStep(0.0F, 7.0F, depth));
    const float glitter = smoothStep(0.985F, 1.0F, point.toSun) * smoothStep(0.08F, 0.35F, ripple);
    const Rgb surface = mix(reflection, tint, 0.24F + 0.10F * ripple);
    return mix(surface, rgbFromHex(0xfff3cf), 0.75F * glitter);
}

Rgb Landscape::radiance(const Vec3 &direction, const Sky &sky) const
{
    const Point point(direction);
    if (point.pitchDegrees > kEdgeDegrees) {
        return land(point, sky);
    }
    const float shore = m_shore.heightAt(point.yawDegrees);
    const float dry = smoothStep(-kEdgeDegrees, kEdgeDegrees, shore - point.pitchDegrees);
    Rgb ground;
    if (dry > 0.0F) {
        ground = meadow(point);
    }
    if (dry < 1.0F) {
        const float beach = smoothStep(-0.55F, -0.25F, shore - point.pitchDegrees);
        ground = mix(mix(water(point, sky), rgbFromHex(0xd9c79a), beach), ground, dry);
    }
    const float below = smoothStep(kEdgeDegrees, -kEdgeDegrees, point.pitchDegrees);
    return below < 1.0F ? mix(land(point, sky), ground, below) : ground;
}

} // namespace PanoHost
