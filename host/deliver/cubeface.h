// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/stitch/stitchedpicture.h"
#include "host/stitch/vipsfile.h"

#include <array>

namespace PanoHost
{

/** A side of a cube around the camera, seen from its middle. */
struct CubeFace {
    const char *name;
    /** Where the side's middle, its right and its lower edge lie: to the right, up and ahead of who
     * looks at the panorama's middle. */
    std::array<int, 3> ahead;
    std::array<int, 3> right;
    std::array<int, 3> down;
};

/** Those that stand are upright; the others continue the front at its upper and lower edge. */
constexpr std::array<CubeFace, 6> kCubeFaces{ {
    { "front", { 0, 0, 1 }, { 1, 0, 0 }, { 0, -1, 0 } },
    { "right", { 1, 0, 0 }, { 0, 0, -1 }, { 0, -1, 0 } },
    { "back", { 0, 0, -1 }, { -1, 0, 0 }, { 0, -1, 0 } },
    { "left", { -1, 0, 0 }, { 0, 0, 1 }, { 0, -1, 0 } },
    { "up", { 0, 1, 0 }, { 1, 0, 0 }, { 0, 0, 1 } },
    { "down", { 0, -1, 0 }, { 1, 0, 0 }, { 0, 0, -1 } },
} };

/** Pixels to a side that keep the detail of a sphere that is \p sphereWidth pixels around; even. */
[[nodiscard]] int cubeFaceSide(int sphereWidth);

/** Takes the sides of a cube from a panorama. Thread-safe. */
class CubeView
{
public:
    /** \p file holds \p picture; both must outlive this. */
    CubeView(const VipsFile &file, const StitchedPicture &picture);

    /**
     * Sets row \p y of \p face, \p side pixels of four \p T each, the picture's kind of sample.
     * Answers whether photos reach any of it.
     */
    template <typename T> bool row(const CubeFace &face, int side, int y, T *pixels) const;

private:
    template <typename T> bool sample(double x, double y, T *pixel) const;
    template <typename T> [[nodiscard]] const T *at(int x, int y) const;

    const VipsFile &m_file;
    QSize m_sphere;
    QPoint m_corner;
};

} // namespace PanoHost
