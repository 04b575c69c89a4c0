// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/photoshoot.h"

#include "host/align/geometry.h"
#include "host/demo/exifwriter.h"

#include <QDir>

namespace PanoHost
{
namespace
{

/** A photo's pixel is finer than the scene's finest detail. */
constexpr int kSamplesPerPhotoPixelSide = 1;
constexpr int kSamplesPerTruthPixelSide = 2;

RayLight radianceOf(const Scene &scene)
{
    return [&scene](const Vec3 &direction) { return scene.radiance(direction); };
}

} // namespace

Result<QStringList> takePhotos(const Scene &scene, const ShootPlan &plan, const QString &folder,
                               const JobWatch &watch)
{
    const QVector<PlannedShot> shots = shotsOf(plan);
    QStringList paths;
    LightField light;
    for (const PlannedShot &shot : shots) {
        watch.report(paths.size(), shots.size(), QStringLiteral("taking %1").arg(shot.fileName));
        if (watch.stopWanted()) {
            return interruption();
        }
        if (shot.level == 0) {
            light = exposePhoto(radianceOf(scene), plan.camera, shot.camera,
                                kSamplesPerPhotoPixelSide);
        }
        const Result<QString> written = writePhoto(QDir(folder).absoluteFilePath(shot.fileName),
                                                   developed(light, shot.stops), shot, plan);
        if (!written) {
            return written.error();
        }
        paths.append(written.value());
    }
    return paths;
}

Rotations trueRotations(const ShootPlan &plan)
{
    Rotations rotations;
    const QVector<PlannedShot> shots = shotsOf(plan);
    for (const PlannedShot &shot : shots) {
        if (shot.level == 0) {
            const Pose &camera = shot.camera;
            rotations.push_back(
                rotationOf({ camera.yawDegrees, camera.pitchDegrees, camera.rollDegrees }));
        }
    }
    return rotations;
}

QImage truthOf(const Scene &scene, int width)
{
    return developed(exposeSphere(radianceOf(scene), width, kSamplesPerTruthPixelSide));
}

QImage truthOf(const Scene &scene, const SpherePart &part, const Eigen::Matrix3d &common)
{
    return developed(
        exposePart(turnedBy(common, radianceOf(scene)), part, kSamplesPerTruthPixelSide));
}

} // namespace PanoHost
