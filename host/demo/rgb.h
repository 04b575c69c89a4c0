// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QRgb>

#include <algorithm>
#include <cmath>

namespace PanoHost
{

/** Linear light with sRGB primaries; 1 is white at the reference exposure, more is allowed. */
struct Rgb {
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;
};

[[nodiscard]] constexpr Rgb operator+(const Rgb &a, const Rgb &b)
{
    return { a.red + b.red, a.green + b.green, a.blue + b.blue };
}

[[nodiscard]] constexpr Rgb operator*(float factor, const Rgb &colour)
{
    return { factor * colour.red, factor * colour.green, factor * colour.blue };
}

/** Filters \p colour by \p filter, component by component. */
[[nodiscard]] constexpr Rgb operator*(const Rgb &filter, const Rgb &colour)
{
    return { filter.red * colour.red, filter.green * colour.green, filter.blue * colour.blue };
}

/** \p a at share 0, \p b at share 1. */
[[nodiscard]] constexpr Rgb mix(const Rgb &a, const Rgb &b, float share)
{
    return (1.0F - share) * a + share * b;
}

/** 0 below \p from, 1 above \p to, smooth in between. */
[[nodiscard]] inline float smoothStep(float from, float to, float value)
{
    const float t = std::clamp((value - from) / (to - from), 0.0F, 1.0F);
    return t * t * (3.0F - 2.0F * t);
}

/** The sRGB curve: linear light, clipped to [0, 1], to 0...255. */
[[nodiscard]] inline int encodedLevel(float linear)
{
    const float clipped = std::clamp(linear, 0.0F, 1.0F);
    const float encoded = clipped <= 0.0031308F ? 12.92F * clipped
                                                : 1.055F * std::pow(clipped, 1.0F / 2.4F) - 0.055F;
    return static_cast<int>(std::lround(encoded * 255.0F));
}

[[nodiscard]] inline QRgb encoded(const Rgb &colour)
{
    return qRgb(encodedLevel(colour.red), encodedLevel(colour.green), encodedLevel(colour.blue));
}

/** Linear light of an sRGB colour written as 0xrrggbb. */
[[nodiscard]] inline Rgb rgbFromHex(unsigned int hex)
{
    const auto linear = [](unsigned int level) {
        const float value = static_cast<float>(level & 0xFFU) / 255.0F;
        return value <= 0.04045F ? value / 12.92F : std::pow((value + 0.055F) / 1.055F, 2.4F);
    };
    return { linear(hex >> 16U), linear(hex >> 8U), linear(hex) };
}

} // namespace PanoHost
