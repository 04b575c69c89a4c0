// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/attitudeerrors.h"

#include "host/align/geometry.h"

#include <Eigen/LU>
#include <Eigen/SVD>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace PanoHost
{

Chosen allOf(int count)
{
    Chosen all(static_cast<size_t>(count));
    std::iota(all.begin(), all.end(), 0);
    return all;
}

Eigen::Matrix3d commonRotation(const Rotations &truth, const Rotations &found, const Chosen &chosen)
{
    Eigen::Matrix3d sum = Eigen::Matrix3d::Zero();
    for (const int i : chosen) {
        sum += truth.at(i) * found.at(i).transpose();
    }
    const Eigen::JacobiSVD<Eigen::Matrix3d> svd(sum, Eigen::ComputeFullU | Eigen::ComputeFullV);
    const Eigen::Matrix3d mirrored = svd.matrixU() * svd.matrixV().transpose();
    const Eigen::Vector3d signs(1.0, 1.0, mirrored.determinant() < 0.0 ? -1.0 : 1.0);
    return svd.matrixU() * signs.asDiagonal() * svd.matrixV().transpose();
}

AttitudeErrors attitudeErrors(const Rotations &truth, const Rotations &found,
                              const Eigen::Matrix3d &common, const Chosen &chosen)
{
    AttitudeErrors errors;
    double squares = 0.0;
    for (const int i : chosen) {
        const double degrees = degreesBetween(truth.at(i), common * found.at(i));
        squares += degrees * degrees;
        errors.largest = std::max(errors.largest, degrees);
    }
    errors.rms = chosen.empty() ? 0.0 : std::sqrt(squares / static_cast<double>(chosen.size()));
    return errors;
}

AttitudeErrors attitudeErrors(const Rotations &truth, const Rotations &found)
{
    const Chosen all = allOf(static_cast<int>(truth.size()));
    return attitudeErrors(truth, found, commonRotation(truth, found, all), all);
}

RayLight turnedBy(const Eigen::Matrix3d &common, RayLight radiance)
{
    // The world of rotations has y up, that of directions has y to the north.
    return [common, radiance = std::move(radiance)](const Vec3 &direction) {
        const Eigen::Vector3d seen
            = common * Eigen::Vector3d(direction.x, direction.z, direction.y);
        return radiance({ seen.x(), seen.z(), seen.y() });
    };
}

} // namespace PanoHost
