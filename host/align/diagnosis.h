// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/headmodel.h"

#include <optional>
#include <vector>

namespace PanoHost
{

/** From view \p view on, in shooting order, an axis stands elsewhere. */
struct Slip {
    int view = 0;
    double yawDegrees = 0.0;
    double pitchDegrees = 0.0;
};

/** One view stands elsewhere. */
struct Bump {
    int view = 0;
    double degrees = 0.0;
};

/**
 * Where the corrections of the views in \p tied (ascending) step to another level and stay there:
 * the largest such step; nothing when the head only has its play.
 */
[[nodiscard]] std::optional<Slip> findSlip(const HeadModel &model, const std::vector<int> &tied);

/** Puts what follows the slip where the axis really stands; its corrections become as small again.
 */
void undoSlip(HeadModel &model, const Slip &slip);

/** Views in \p tied whose corrections stand out from all others'. */
[[nodiscard]] std::vector<Bump> findBumps(const HeadModel &model, const std::vector<int> &tied);

/** How far the head's axes come from where they are told to go: one standard deviation, robust,
 * over the views in \p tied and both axes; nothing for fewer than four. */
[[nodiscard]] std::optional<double> playOf(const HeadModel &model, const std::vector<int> &tied);

/** The residual of \p point as projected by \p model: pixels of the second photo; nothing where the
 * lens does not see it. */
[[nodiscard]] std::optional<Eigen::Vector2d> residualOf(const HeadModel &model,
                                                        const TiePoint &point);

/**
 * The median residual in pixels of \p points (right ones only, grouped by pair) when neighbours
 * in a pair err the same way, which noise does not, and photos do not err the same way at the same
 * place, which a lens would: the camera's nodal point moved. Nothing when residuals are below
 * \p leastPixels or look like noise.
 */
[[nodiscard]] std::optional<double>
parallaxPixels(const HeadModel &model, const std::vector<TiePoint> &points, double leastPixels);

/** The rotation of the world that brings the photos' common vertical upright: every camera's
 * horizontal edge as level as can be, all photos turned alike. */
[[nodiscard]] Eigen::Matrix3d levelling(const HeadModel &model);

} // namespace PanoHost
