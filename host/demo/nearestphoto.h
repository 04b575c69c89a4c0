// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/demo/camera.h"

#include <QImage>
#include <QVector>

namespace PanoHost
{

/** A photo and where it looks. */
struct PlacedPhoto {
    QImage pixels; ///< as stored
    Camera camera;
    Pose pose;
};

/**
 * A panorama without any stitching program: each pixel comes from the photo whose centre is
 * nearest, nothing is blended. \p width x \p width / 2 pixels, transparent where no photo reaches.
 */
[[nodiscard]] QImage nearestPhotoPanorama(const QVector<PlacedPhoto> &photos, int width);

} // namespace PanoHost
