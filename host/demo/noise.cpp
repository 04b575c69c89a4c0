// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/noise.h"

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

quint32 hashOf(int x, int y, int z, quint32 seed)
{
    return scrambled(static_cast<quint32>(x) * 0x9E3779B1U + static_cast<quint32>(y) * 0x85EBCA77U
                     + static_cast<quint32>(z) * 0xC2B2AE3DU + seed * 0x27D4EB2FU);
}

/** Dot product with one of the twelve directions to the middles of a cube's edges. */
float slope(quint32 hash, float x, float y, float z)
{
    const quint32 kind = hash % 12U;
    const float first = kind < 8U ? x : y;
    const float second = kind < 4U ? y : z;
    return ((hash & 0x10000U) != 0U ? first : -first)
        + ((hash & 0x20000U) != 0U ? second : -second);
}

float fade(float t)
{
    return t * t * t * (t * (t * 6.0F - 15.0F) + 10.0F);
}

float lerp(float a, float b, float share)
{
    return a + share * (b - a);
}

} // namespace

float noise(const Vec3 &point, quint32 seed)
{
    const double floorX = std::floor(point.x);
    const double floorY = std::floor(point.y);
    const double floorZ = std::floor(point.z);
    const int x0 = static_cast<int>(floorX);
    const int y0 = static_cast<int>(floorY);
    const int z0 = static_cast<int>(floorZ);
    const float x = static_cast<float>(point.x - floorX);
    const float y = static_cast<float>(point.y - floorY);
    const float z = static_cast<float>(point.z - floorZ);
    const auto corner = [&](int i, int j, int k) {
        return slope(hashOf(x0 + i, y0 + j, z0 + k, seed), x - static_cast<float>(i),
                     y - static_cast<float>(j), z - static_cast<float>(k));
    };
    const float u = fade(x);
    const float v = fade(y);
    const float bottom = lerp(lerp(corner(0, 0, 0), corner(1, 0, 0), u),
                              lerp(corner(0, 1, 0), corner(1, 1, 0), u), v);
    const float top = lerp(lerp(corner(0, 0, 1), corner(1, 0, 1), u),
                           lerp(corner(0, 1, 1), corner(1, 1, 1), u), v);
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
    return static_cast<float>(hashOf(column, row, 0, seed) >> 8U) / 16777216.0F;
}

} // namespace PanoHost
