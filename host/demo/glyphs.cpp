// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/glyphs.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace PanoHost
{
namespace
{

struct Stroke {
    float fromX;
    float fromY;
    float toX;
    float toY;
};

/** The S as a chain of short strokes along two arcs. */
std::vector<Stroke> lettersS()
{
    constexpr int kSteps = 9;
    constexpr float kTurn = 3.9F; // radians of each arc
    std::vector<Stroke> strokes;
    const auto arc = [&strokes](float centreY, float start, float turn) {
        for (int i = 0; i < kSteps; ++i) {
            const float a = start + turn * static_cast<float>(i) / kSteps;
            const float b = start + turn * static_cast<float>(i + 1) / kSteps;
            strokes.push_back({ 0.29F * std::cos(a), centreY + 0.25F * std::sin(a),
                                0.29F * std::cos(b), centreY + 0.25F * std::sin(b) });
        }
    };
    constexpr float kDown = -1.57079633F;
    arc(0.25F, kDown - kTurn, kTurn);
    arc(-0.25F, kDown - kTurn + 3.14159265F, kTurn);
    return strokes;
}

const std::vector<Stroke> &strokesOf(char letter)
{
    static const std::vector<Stroke> kN{ { -0.33F, -0.5F, -0.33F, 0.5F },
                                         { -0.33F, 0.5F, 0.33F, -0.5F },
                                         { 0.33F, -0.5F, 0.33F, 0.5F } };
    static const std::vector<Stroke> kE{ { -0.28F, -0.5F, -0.28F, 0.5F },
                                         { -0.28F, 0.5F, 0.28F, 0.5F },
                                         { -0.28F, 0.02F, 0.18F, 0.02F },
                                         { -0.28F, -0.5F, 0.28F, -0.5F } };
    static const std::vector<Stroke> kS = lettersS();
    static const std::vector<Stroke> kW{ { -0.46F, 0.5F, -0.23F, -0.5F },
                                         { -0.23F, -0.5F, 0.0F, 0.35F },
                                         { 0.0F, 0.35F, 0.23F, -0.5F },
                                         { 0.23F, -0.5F, 0.46F, 0.5F } };
    static const std::vector<Stroke> kNone;
    switch (letter) {
    case 'N':
        return kN;
    case 'E':
        return kE;
    case 'S':
        return kS;
    case 'W':
        return kW;
    default:
        return kNone;
    }
}

float distanceTo(const Stroke &stroke, float x, float y)
{
    const float alongX = stroke.toX - stroke.fromX;
    const float alongY = stroke.toY - stroke.fromY;
    const float place = ((x - stroke.fromX) * alongX + (y - stroke.fromY) * alongY)
        / (alongX * alongX + alongY * alongY);
    const float share = std::clamp(place, 0.0F, 1.0F);
    return std::hypot(x - stroke.fromX - share * alongX, y - stroke.fromY - share * alongY);
}

} // namespace

float distanceToLetter(char letter, float x, float y)
{
    float nearest = std::numeric_limits<float>::max();
    for (const Stroke &stroke : strokesOf(letter)) {
        nearest = std::min(nearest, distanceTo(stroke, x, y));
    }
    return nearest;
}

float letterWidth(char letter)
{
    return letter == 'W' ? 0.92F : letter == 'N' ? 0.66F : 0.57F;
}

} // namespace PanoHost
