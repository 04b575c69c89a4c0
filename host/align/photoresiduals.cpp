// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/photoresiduals.h"

#include "host/align/geometry.h"
#include "host/align/median.h"

namespace PanoHost
{

namespace
{

/** One image as it is placed. */
struct PlacedLens {
    Eigen::Matrix3d rotation;
    AlignLens lens;
};

} // namespace

PhotoResiduals photoResiduals(const PtoFile &project)
{
    std::vector<PlacedLens> placed;
    for (const PtoImage &image : project.images()) {
        placed.push_back({ rotationOf(image.angles), lensOf(image) });
    }
    std::vector<std::vector<double>> lengths(placed.size());
    const auto add
        = [&](int from, const Eigen::Vector2d &pixel, int to, const Eigen::Vector2d &match) {
              const PlacedLens &one = placed[static_cast<size_t>(from)];
              const PlacedLens &other = placed[static_cast<size_t>(to)];
              const Eigen::Vector3d ray = one.rotation * one.lens.rayOf(pixel);
              if (const auto seen = other.lens.pixelOf(other.rotation.transpose() * ray)) {
                  lengths[static_cast<size_t>(to)].push_back((*seen - match).norm());
              }
          };
    for (const PtoPoint &point : project.points()) {
        if (!point.isWrong) {
            const Eigen::Vector2d first(point.x1, point.y1);
            const Eigen::Vector2d second(point.x2, point.y2);
            add(point.first, first, point.second, second);
            add(point.second, second, point.first, first);
        }
    }
    std::vector<std::optional<double>> residuals(placed.size());
    for (size_t i = 0; i < placed.size(); ++i) {
        if (!lengths[i].empty()) {
            residuals[i] = median(lengths[i]);
        }
    }
    return residuals;
}

} // namespace PanoHost
