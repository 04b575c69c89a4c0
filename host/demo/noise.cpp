// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/noise.h"

#include <array>
#include <cmath>

namespace PanoHost
{
namespace
{

quint32 scrambled(quint32 value)
{
    value ^= value >> 16U;
    value *= 0x7FEB352DU;
    value ^= value >> 15U;
    value *= 0x846CA68BU;
    return value ^ (value >> 16U);
}

/** Dot product with one of the twelve directions to the middles of a cube's edges. */
float slope(quint32 hash, float x, float y, float z)
{
    static constexpr std::array<std::array<float, 3>, 16> kSlopes{ {
        { 1, 1, 0 },
        { -1, 1, 0 },
        { 1, -1, 0 },
        { -1, -1, 0 },
        { 1, 0, 1 },
        { -1, 0, 1 },
        { 1, 0, -1 },
        { -1, 0, -1 },
        { 0, 1, 1 },
        { 0, -1, 1 },
        { 0, 1, -1 },
        { 0, -1, -1 },
        { 1, 1, 0 },
        { -1, 1, 0 },
        { 0, -1, 1 },
        { 0, -1, -1 }, // four again, to make a power of two
    } };
    const std::array<float, 3> &direction = kSlopes[hash & 15U];
    return direction[0] * x + direction[1] * y + direction[2] * z;
}

float fade(float t)
{
    return t * t * t * (t * (t * 6.0F - 15.0F) + 10.0F);
}

float lerp(float a, float b, float share)
{
    return a + share * (b - a);
}

constexpr quint32 kStepX = 0x9E3779B1U;
constexpr quint32 kStepY = 0x85EBCA77U;
constexpr quint32 kStepZ = 0xC2B2AE3DU;
constexpr quint32 kStepSeed = 0x27D4EB2FU;

} // namespace

float noise(const Vec3 &point, quint32 seed)
{
    const double floorX = std::floor(point.x);
    const double floorY = std::floor(point.y);
    const double floorZ = std::floor(point.z);
    const auto x = static_cast<float>(point.x - floorX);
    const auto y = static_cast<float>(point.y - floorY);
    const auto z = static_cast<float>(point.z - floorZ);
    const quint32 cell = static_cast<quint32>(static_cast<int>(floorX)) * kStepX
        + static_cast<quint32>(static_cast<int>(floorY)) * kStepY
        + static_cast<quint32>(static_cast<int>(floorZ)) * kStepZ + seed * kStepSeed;
    const auto alongX = [&](quint32 corner, float dy, float dz, float u) {
        return lerp(slope(scrambled(corner), x, dy, dz),
                    slope(scrambled(corner + kStepX), x - 1.0F, dy, dz), u);
    };
    const float u = fade(x);
    const float v = fade(y);
    const float bottom = lerp(alongX(cell, y, z, u), alongX(cell + kStepY, y - 1.0F, z, u), v);
    const float top = lerp(alongX(cell + kStepZ, y, z - 1.0F, u),
                           alongX(cell + kStepY + kStepZ, y - 1.0F, z - 1.0F, u), v);
    return lerp(bottom, top, fade(z));
}

float fractalNoise(const Vec3 &point, int octaves, quint32 seed)
{
    float sum = 0.0F;
    float strength = 0.5F;
    double frequency = 1.0;
    for (int octave = 0; octave < octaves; ++octave) {
        sum += strength * noise(frequency * point, seed + static_cast<quint32>(octave));
        strength *= 0.5F;
        frequency *= 2.03;
    }
    return sum;
}

float ridgedNoise(const Vec3 &point, int octaves, quint32 seed)
{
    float sum = 0.0F;
    float strength = 0.5F;
    double frequency = 1.0;
    for (int octave = 0; octave < octaves; ++octave) {
        const float crest
            = 1.0F - std::fabs(noise(frequency * point, seed + static_cast<quint32>(octave)));
        sum += strength * crest * crest;
        strength *= 0.5F;
        frequency *= 2.07;
    }
    return sum;
}

float cellValue(int column, int row, quint32 seed)
{
    const quint32 cell = static_cast<quint32>(column) * kStepX + static_cast<quint32>(row) * kStepY
        + seed * kStepSeed;
    return static_cast<float>(scrambled(cell) >> 8U) / 16777216.0F;
}

} // namespace PanoHost
