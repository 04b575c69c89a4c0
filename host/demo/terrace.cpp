// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/terrace.h"

#include "host/demo/glyphs.h"
#include "host/demo/noise.h"
#include "host/demo/sky.h"

#include <array>

namespace PanoHost
{
namespace
{

constexpr float kRadius = 3.0F; // of the wall's inner face
constexpr float kCopingRadius = 3.4F; // of its outer edge
constexpr float kWallTop = -0.42F;
constexpr float kCopingFoot = -0.49F;
constexpr float kTile = 0.5F;
constexpr float kRoseRadius = 0.92F;

/** The width that the soft edges have on a surface at \p distance. */
float softness(float distance)
{
    return distance * static_cast<float>(radians(kEdgeDegrees));
}

/** 1 inside (\p signedDistance below 0), 0 outside, soft at the edge. */
float inside(float signedDistance, float soft)
{
    return smoothStep(soft, -soft, signedDistance);
}

/** Distance to the nearest multiple of \p spacing. */
float toLine(float value, float spacing)
{
    return std::fabs(value - spacing * std::round(value / spacing));
}

struct Label {
    double yawDegrees;
    std::array<char, 2> letters;
    unsigned int colour;
};

constexpr std::array<Label, 8> kLabels{ {
    { 0.0, { 'N', ' ' }, 0xb3261e },
    { 45.0, { 'N', 'E' }, 0x3c4a5c },
    { 90.0, { 'E', ' ' }, 0x16407a },
    { 135.0, { 'S', 'E' }, 0x3c4a5c },
    { 180.0, { 'S', ' ' }, 0x16407a },
    { -135.0, { 'S', 'W' }, 0x3c4a5c },
    { -90.0, { 'W', ' ' }, 0x16407a },
    { -45.0, { 'N', 'W' }, 0x3c4a5c },
} };

/** The label's share at \p along (right of its yaw) and \p up on the wall. */
float labelShare(const Label &label, float along, float up, float soft)
{
    const bool pair = label.letters[1] != ' ';
    const float height = pair ? 0.18F : 0.30F;
    const float thickness = pair ? 0.14F : 0.125F; // of the letter's height, each side of a stroke
    float nearest = 9.0F;
    const float width = letterWidth(label.letters[0]);
    const float gap = 0.42F;
    const float total = pair ? width + gap + letterWidth(label.letters[1]) : width;
    float left = -total / 2.0F;
    for (const char letter : label.letters) {
        if (letter == ' ') {
            continue;
        }
        const float middle = left + letterWidth(letter) / 2.0F;
        nearest = std::min(nearest, distanceToLetter(letter, along / height - middle, up / height));
        left += letterWidth(letter) + gap;
    }
    return inside((nearest - thickness) * height, soft);
}

/** How much of the sun reaches the point: the wall throws its shadow onto the floor. */
float sunOnFloor(float x, float y)
{
    const Vec3 sun = Sky::sun();
    const auto flat = static_cast<float>(std::hypot(sun.x, sun.y));
    const float toX = static_cast<float>(sun.x) / flat;
    const float toY = static_cast<float>(sun.y) / flat;
    const float along = x * toX + y * toY;
    const float reach
        = -along + std::sqrt(std::max(0.0F, along * along + kRadius * kRadius - x * x - y * y));
    const float height = reach * static_cast<float>(sun.z) / flat;
    return smoothStep(-0.03F, 0.03F, height - (kWallTop + 1.0F));
}

/** One point of a compass rose: half light, half dark, from the middle to its tip. */
struct RosePoint {
    double yawDegrees;
    float length;
    float waist; ///< the notches beside it lie at (waist, waist)
    unsigned int light;
    unsigned int dark;
};

constexpr std::array<RosePoint, 8> kRosePoints{ {
    { 45.0, 0.56F, 0.14F, 0xc78f3d, 0x8c5d22 },
    { 135.0, 0.56F, 0.14F, 0xc78f3d, 0x8c5d22 },
    { -135.0, 0.56F, 0.14F, 0xc78f3d, 0x8c5d22 },
    { -45.0, 0.56F, 0.14F, 0xc78f3d, 0x8c5d22 },
    { 180.0, 0.84F, 0.125F, 0x3a6fb5, 0x12335f },
    { 90.0, 0.84F, 0.125F, 0x3a6fb5, 0x12335f },
    { -90.0, 0.84F, 0.125F, 0x3a6fb5, 0x12335f },
    { 0.0, 0.84F, 0.125F, 0xd8453a, 0x8f1d17 },
} };

Rgb withRosePoint(const Rgb &behind, const RosePoint &point, float x, float y, float soft)
{
    const auto sine = static_cast<float>(std::sin(radians(point.yawDegrees)));
    const auto cosine = static_cast<float>(std::cos(radians(point.yawDegrees)));
    const float along = x * sine + y * cosine;
    const float across = x * cosine - y * sine;
    const float toTip = point.length - point.waist;
    const float edge = ((along - point.length) * point.waist + std::fabs(across) * toTip)
        / std::hypot(toTip, point.waist);
    const float diagonal = (std::fabs(across) - along) * 0.70710678F;
    const Rgb colour
        = mix(rgbFromHex(point.light), rgbFromHex(point.dark), smoothStep(-soft, soft, across));
    return mix(behind, colour, inside(std::max(edge, diagonal), soft));
}

/** The compass rose at (\p x, \p y): an eight-pointed star on a round inlay. */
Rgb withRose(const Rgb &stone, float x, float y, float soft)
{
    constexpr float kDotTurn = 0.19634954F; // radians from one dot of the ring to the next
    const float radius = std::hypot(x, y);
    const float angle = std::atan2(x, y);
    Rgb colour = mix(stone, rgbFromHex(0xe9dcc0), 0.85F * inside(radius - kRoseRadius, soft));
    const float ring = std::min(std::fabs(radius - 0.86F), std::fabs(radius - 0.60F)) - 0.012F;
    colour = mix(colour, rgbFromHex(0x6d5334), inside(ring, soft));
    const float toDot = angle - kDotTurn * (std::floor(angle / kDotTurn) + 0.5F);
    const float dot = std::hypot(radius - 0.73F, 0.73F * toDot);
    colour = mix(colour, rgbFromHex(0x16407a), inside(dot - 0.035F, soft));
    for (const RosePoint &point : kRosePoints) {
        colour = withRosePoint(colour, point, x, y, soft);
    }
    return mix(colour, rgbFromHex(0xf0d9a0), inside(radius - 0.045F, soft));
}

} // namespace

Terrace::Terrace(quint32 seed)
    : m_seed(seed)
{
}

float Terrace::coverage(const Vec3 &direction)
{
    static const auto kTopDegrees
        = static_cast<float>(degrees(std::atan(kWallTop / kCopingRadius)));
    return inside(static_cast<float>(pitchDegreesOf(direction)) - kTopDegrees, kEdgeDegrees);
}

Rgb Terrace::coping(const Vec3 &direction) const
{
    const auto yaw = static_cast<float>(yawDegreesOf(direction));
    const float grain = fractalNoise(40.0 * direction, 3, m_seed + 200);
    const float joint = inside(toLine(yaw - 3.0F, 6.0F) - 0.10F, kEdgeDegrees);
    const Rgb stone = (1.0F + 0.35F * grain) * rgbFromHex(0xe2d6bd);
    return mix(stone, rgbFromHex(0x80735e), 0.7F * joint);
}

Rgb Terrace::wall(const Vec3 &direction) const
{
    const auto flat = static_cast<float>(std::hypot(direction.x, direction.y));
    const float up = kRadius * static_cast<float>(direction.z) / flat;
    const double yaw = yawDegreesOf(direction);
    const float soft = softness(kRadius);
    const float overhang = smoothStep(-soft, soft, up - kCopingFoot);
    if (overhang >= 1.0F) {
        return coping(direction);
    }
    const float along = kRadius * static_cast<float>(radians(yaw));
    const float degreesPerBlock = 7.5F;
    const int course = static_cast<int>(std::floor((up + 1.0F) / 0.17F));
    const auto turned = static_cast<float>(yaw + 180.0 + (course % 2) * 0.5 * degreesPerBlock);
    const int block = static_cast<int>(std::floor(turned / degreesPerBlock)) % 48;
    const float joint
        = std::min(toLine(up + 1.0F, 0.17F),
                   kRadius * static_cast<float>(radians(toLine(turned, degreesPerBlock))));
    const float grain = fractalNoise(38.0 * direction, 3, m_seed + 210);
    const float tone = 0.84F + 0.28F * cellValue(block, course, m_seed) + 0.55F * grain;
    Rgb stone = tone
        * mix(rgbFromHex(0xc9b594), rgbFromHex(0xb0a79c), cellValue(block, course, m_seed + 1));
    stone = mix(stone, rgbFromHex(0x6f6250), 0.75F * inside(joint - 0.008F, soft));

    const float tick
        = std::fmod(std::fabs(std::round(static_cast<float>(yaw) / 10.0F)), 3.0F) < 0.5F ? 0.075F
                                                                                         : 0.04F;
    const float toTick
        = kRadius * static_cast<float>(radians(toLine(static_cast<float>(yaw), 10.0F)));
    const float scale = std::max(toTick - 0.012F, kCopingFoot - 0.012F - tick - up);
    stone = mix(stone, rgbFromHex(0x33302c), 0.85F * inside(scale, soft));
    for (const Label &label : kLabels) {
        const float right
            = kRadius * static_cast<float>(radians(wrappedYawDegrees(yaw - label.yawDegrees)));
        if (std::fabs(right) > 0.5F) {
            continue;
        }
        const float plaque = std::hypot(std::max(0.0F, std::fabs(right) - 0.18F),
                                        std::max(0.0F, std::fabs(up + 0.755F) - 0.13F))
            - 0.085F;
        stone = mix(stone, (1.0F + 0.25F * grain) * rgbFromHex(0xf5efe0), inside(plaque, soft));
        stone = mix(stone, rgbFromHex(label.colour),
                    inside(std::fabs(plaque + 0.025F) - 0.009F, soft));
        stone = mix(stone, rgbFromHex(label.colour), labelShare(label, right, up + 0.755F, soft));
    }
    const float facing
        = -static_cast<float>(dot({ direction.x / flat, direction.y / flat, 0.0 }, Sky::sun()));
    const float light = 0.60F + 0.62F * std::max(0.0F, facing) + 0.05F * std::sin(along);
    const float foot = 0.72F + 0.28F * smoothStep(-1.0F, -0.90F, up);
    return mix((light * foot) * stone, coping(direction), overhang);
}

Rgb Terrace::paving(float x, float y, const Vec3 &direction) const
{
    const float distance = std::sqrt(x * x + y * y + 1.0F);
    const float soft = softness(distance);
    const int column = static_cast<int>(std::floor(x / kTile));
    const int row = static_cast<int>(std::floor(y / kTile));
    const float grain = fractalNoise(30.0 * direction, 3, m_seed + 220);
    const float stains = fractalNoise({ 2.2 * x, 2.2 * y, 5.0 }, 3, m_seed + 226);
    const float tone
        = 0.80F + 0.26F * cellValue(column, row, m_seed + 2) + 0.5F * grain + 0.25F * stains;
    const Rgb warm = (column + row) % 2 == 0 ? rgbFromHex(0xcdb693) : rgbFromHex(0xb59a78);
    const Rgb tile
        = tone * mix(warm, rgbFromHex(0xa8a39a), 0.5F * cellValue(column, row, m_seed + 3));
    // Seen at a slant a joint looks narrower, and must not become finer than the photos can carry.
    const float width = 0.011F + 0.4F * soft;
    const float joint = std::min(toLine(x, kTile), toLine(y, kTile)) - width;
    return mix(tile, rgbFromHex(0x5d4f3d), 0.8F * inside(joint, soft * distance));
}

/** Terrazzo: darker and lighter chips, which give the plain inlays something to be matched by. */
Rgb Terrace::withChips(const Rgb &stone, float strength, const Vec3 &direction) const
{
    const float dark = smoothStep(0.24F, 0.40F, noise(24.0 * direction, m_seed + 240));
    const float light = smoothStep(0.26F, 0.42F, noise(26.0 * direction, m_seed + 241));
    const Rgb chipped = mix(stone, 0.55F * stone, strength * dark);
    return mix(chipped, 1.55F * stone + 0.03F * Rgb{ 1.0F, 1.0F, 1.0F }, strength * light);
}

Rgb Terrace::floor(const Vec3 &direction) const
{
    const auto x = static_cast<float>(direction.x / -direction.z);
    const auto y = static_cast<float>(direction.y / -direction.z);
    const float radius = std::hypot(x, y);
    Rgb stone = paving(x, y, direction);
    if (radius < kRoseRadius + 0.1F) {
        stone = withRose(stone, x, y, softness(std::sqrt(1.0F + radius * radius)));
    }
    const float inlaid = smoothStep(kRoseRadius + 0.1F, kRoseRadius - 0.1F, radius);
    stone = withChips(stone, 0.35F + 0.45F * inlaid, direction);
    const float grain = 1.0F + 0.30F * noise(34.0 * direction, m_seed + 230);
    const float border = inside(std::fabs(radius - 2.72F) - 0.07F, 0.03F);
    stone = mix(stone, grain * rgbFromHex(0x7b5a44), 0.8F * border);
    const float corner = 0.70F + 0.30F * smoothStep(kRadius, kRadius - 0.30F, radius);
    const float sun = sunOnFloor(x, y);
    const Rgb light = mix(rgbFromHex(0xb4bfd4), 1.16F * rgbFromHex(0xfff3dd), sun);
    return (corner * grain) * (light * stone);
}

Rgb Terrace::radiance(const Vec3 &direction) const
{
    static const auto kTop = static_cast<float>(degrees(std::atan(kWallTop / kRadius)));
    static const auto kFoot = static_cast<float>(degrees(std::atan(-1.0F / kRadius)));
    const auto pitch = static_cast<float>(pitchDegreesOf(direction));
    const float top = smoothStep(-kEdgeDegrees, kEdgeDegrees, pitch - kTop);
    const float paved = inside(pitch - kFoot, kEdgeDegrees);
    if (paved >= 1.0F) {
        return floor(direction);
    }
    const Rgb face = mix(wall(direction), 1.08F * coping(direction), top);
    return paved > 0.0F ? mix(face, floor(direction), paved) : face;
}

} // namespace PanoHost
