// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/demo/camera.h"

#include <Eigen/Core>

#include <vector>

namespace PanoHost
{

/** Camera to world, one per position. */
using Rotations = std::vector<Eigen::Matrix3d>;
/** Which positions, as indices. */
using Chosen = std::vector<int>;

/** The positions 0 to \p count - 1. */
[[nodiscard]] Chosen allOf(int count);

/** How far photos are from where they truly pointed, degrees. */
struct AttitudeErrors {
    double rms = 0.0;
    double largest = 0.0;
};

/**
 * The rotation that, in front of all of \p found, brings \p chosen as near to \p truth as one
 * rotation can (least squares over all three axes).
 */
[[nodiscard]] Eigen::Matrix3d commonRotation(const Rotations &truth, const Rotations &found,
                                             const Chosen &chosen);

/** The errors of \p chosen after \p common has turned all of \p found. */
[[nodiscard]] AttitudeErrors attitudeErrors(const Rotations &truth, const Rotations &found,
                                            const Eigen::Matrix3d &common, const Chosen &chosen);

/** The errors of all of them after the best common rotation. */
[[nodiscard]] AttitudeErrors attitudeErrors(const Rotations &truth, const Rotations &found);

/** \p radiance as it is seen in the frame of found rotations, which \p common brings to the true
 * one. */
[[nodiscard]] RayLight turnedBy(const Eigen::Matrix3d &common, RayLight radiance);

} // namespace PanoHost
