// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/demo/shootplan.h"
#include "host/model/result.h"

#include <QImage>
#include <QRect>

namespace PanoHost
{

/**
 * Saves \p photo as JPEG with the EXIF data that a camera would write for \p shot: 35 mm equivalent
 * focal length, time with sub-seconds, exposure, f-number, ISO and orientation. Answers the path.
 */
[[nodiscard]] Result<QString> writePhoto(const QString &path, const QImage &photo,
                                         const PlannedShot &shot, const ShootPlan &plan);

/**
 * Saves \p panorama, the equirectangular picture of the part \p covered of a sphere of
 * \p sphereSize pixels, as JPEG with the GPano XMP data by which viewers know it. The file appears
 * complete or not at all. Answers the path.
 */
[[nodiscard]] Result<QString> writePanorama(const QString &path, const QImage &panorama,
                                            const QSize &sphereSize, const QRect &covered);

} // namespace PanoHost
