// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/panorama.h"
#include "host/view/drawlist.h"

/** Shoots for the picture of a shoot, and how it must look: worked out photo by photo. */
namespace ViewShoots
{

/** One position per pose, photos of 1200 x 800 pixels. */
struct Pose {
    double yaw = 0.0;
    double pitch = 0.0;
    double roll = 0.0;
};
[[nodiscard]] PanoHost::Panorama shootOf(const QVector<Pose> &poses, double focal35mm,
                                         LensModel lens = LensModel::Standard);
/** \p count photos of 5 degrees on a sphere, in rows; the poles too. */
[[nodiscard]] PanoHost::Panorama sphereOf(int count);
void link(PanoHost::Panorama *panorama, int from, int to);

/** The colour of photo \p frame. */
[[nodiscard]] QRgb colourOf(int frame);
/** Each frame in its colour. */
[[nodiscard]] PanoHost::FrameFill plainFill(const PanoHost::Patch &patch);

/** The frame in front at the middle of the pixel (\p x, \p y), by the demo's camera; -1: none. */
[[nodiscard]] int frontFrame(const PanoHost::Panorama &panorama, const PanoHost::ViewCamera &camera,
                             int x, int y);

/** How many pixels of \p picture show another frame than that, not counting those beside another
 * frame's; as a share of all. */
[[nodiscard]] double wrongShare(const QImage &picture, const PanoHost::Panorama &panorama,
                                const PanoHost::ViewCamera &camera);

} // namespace ViewShoots
