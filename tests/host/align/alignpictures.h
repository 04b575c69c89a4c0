// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/features.h"
#include "host/align/matching.h"
#include "host/demo/camera.h"

#include <QImage>

/** Pictures for the tests of aligning, made by the demo's camera: its geometry is the oracle. */
namespace AlignPictures
{

/** Grey light full of detail, from 20 degrees down to about 0.3. */
[[nodiscard]] PanoHost::RayLight texture(quint32 seed = 7);

/** The same window every four degrees, on a wall with faint texture of its own. */
[[nodiscard]] PanoHost::RayLight facade();

[[nodiscard]] QImage photo(const PanoHost::RayLight &radiance, const PanoHost::Camera &camera,
                           const PanoHost::Pose &pose);

/** \p picture as it is, without being reduced. */
[[nodiscard]] PanoHost::GreyPicture grey(const QImage &picture);

[[nodiscard]] PanoHost::AlignLens lensOf(const PanoHost::Camera &camera);
[[nodiscard]] PanoHost::Angles anglesOf(const PanoHost::Pose &pose);

/** A photo of the demo's camera, with what is found in it. */
struct Shot {
    Shot(const PanoHost::RayLight &radiance, const PanoHost::Camera &camera,
         const PanoHost::Pose &pose);

    [[nodiscard]] PanoHost::MatchSide side() const { return { features, lens }; }
    [[nodiscard]] Eigen::Matrix3d rotation() const { return rotationOf(anglesOf(pose)); }

    PanoHost::Camera camera;
    PanoHost::Pose pose;
    PanoHost::AlignLens lens;
    PanoHost::FeatureSet features;
};

/** How far, in pixels of \p second, the partners of \p matches are from where the demo's camera
 * sees the same direction; far away for what it does not see. */
[[nodiscard]] std::vector<double> errors(const PanoHost::PairMatches &matches, const Shot &first,
                                         const Shot &second);

[[nodiscard]] double median(std::vector<double> values);

} // namespace AlignPictures
