// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/demo/attitudeerrors.h"
#include "host/demo/scene.h"
#include "host/demo/shootplan.h"
#include "host/model/jobwatch.h"
#include "host/model/result.h"

#include <QStringList>

namespace PanoHost
{

/**
 * Takes all photos of \p plan and writes them into \p folder, which exists. Files of the same
 * names are replaced. Answers their paths in shooting order.
 */
[[nodiscard]] Result<QStringList> takePhotos(const Scene &scene, const ShootPlan &plan,
                                             const QString &folder, const JobWatch &watch);

/** Where the camera (its stored pixels) truly points at each position of \p plan. */
[[nodiscard]] Rotations trueRotations(const ShootPlan &plan);

/** What a faultless panorama of \p scene looks like: \p width x \p width / 2 pixels. */
[[nodiscard]] QImage truthOf(const Scene &scene, int width);

/** The same for \p part of it, in the frame of rotations that \p common brings to the true one. */
[[nodiscard]] QImage truthOf(const Scene &scene, const SpherePart &part,
                             const Eigen::Matrix3d &common = Eigen::Matrix3d::Identity());

} // namespace PanoHost
