// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/align/alignpictures.h"

#include "host/demo/noise.h"

#include <algorithm>
#include <cmath>

using namespace PanoHost;

namespace AlignPictures
{

RayLight texture(quint32 seed)
{
    return [seed](const Vec3 &direction) {
        // Cells from 1 / 3 radian down to 1 / 192.
        const float light = 0.25F + 0.2F * fractalNoise(3.0 * direction, 2, seed)
            + 0.2F * fractalNoise(48.0 * direction, 3, seed + 1);
        return Rgb{ light, light, light };
    };
}

RayLight facade()
{
    return [faint = texture(11)](const Vec3 &direction) {
        constexpr double kStep = 4.0;
        const double yaw = yawDegreesOf(direction) + 360.0;
        const double pitch = pitchDegreesOf(direction) + 360.0;
        const double x = std::abs(std::remainder(yaw, kStep));
        const double y = std::abs(std::remainder(pitch, kStep));
        const bool frame = x < 1.0 && y < 1.3;
        const bool pane = x < 0.8 && y < 1.1 && x > 0.15 && std::abs(y - 0.3) > 0.1;
        const float wall = pane ? 0.05F : frame ? 0.8F : 0.4F;
        return 0.9F * Rgb{ wall, wall, wall } + 0.15F * faint(direction);
    };
}

QImage photo(const RayLight &radiance, const Camera &camera, const Pose &pose)
{
    return developed(exposePhoto(radiance, camera, pose, 1));
}

GreyPicture grey(const QImage &picture)
{
    return { picture.convertToFormat(QImage::Format_Grayscale8), 1.0, 1.0 };
}

AlignLens lensOf(const Camera &camera)
{
    AlignLens lens;
    lens.size = camera.size;
    lens.focalPixels = camera.focalPixels();
    lens.model
        = camera.projection == Projection::Rectilinear ? LensModel::Standard : LensModel::Fisheye;
    return lens;
}

Angles anglesOf(const Pose &pose)
{
    return { pose.yawDegrees, pose.pitchDegrees, pose.rollDegrees };
}

Shot::Shot(const RayLight &radiance, const Camera &itsCamera, const Pose &itsPose)
    : camera(itsCamera)
    , pose(itsPose)
    , lens(lensOf(itsCamera))
    , features(featuresOf(grey(photo(radiance, itsCamera, itsPose))))
{
}

std::vector<double> errors(const PairMatches &matches, const Shot &first, const Shot &second)
{
    const View from(first.camera, first.pose);
    const View to(second.camera, second.pose);
    std::vector<double> distances;
    for (const auto &pair : matches.pairs) {
        const FeatureSet::Place one = first.features.places[static_cast<size_t>(pair.first)];
        const FeatureSet::Place other = second.features.places[static_cast<size_t>(pair.second)];
        // The demo's camera counts from the corner of the first pixel.
        const auto seen = to.pixelAt(from.directionAt(one.x + 0.5, one.y + 0.5));
        distances.push_back(seen ? std::hypot(seen->x() - 0.5 - other.x, seen->y() - 0.5 - other.y)
                                 : 1e6);
    }
    return distances;
}

double median(std::vector<double> values)
{
    if (values.empty()) {
        return 1e6;
    }
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace AlignPictures
