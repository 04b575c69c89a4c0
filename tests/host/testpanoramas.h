// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/panorama.h"

#include <QString>
#include <QVector>

/** Panoramas whose photos need not exist. */
namespace TestPanoramas
{

/** A photo of 1200 x 800 pixels in /photos. */
[[nodiscard]] PanoHost::PhotoInfo photoNamed(const QString &name);
[[nodiscard]] PanoHost::Position positionAt(double yaw, double pitch,
                                            const QVector<PanoHost::PhotoInfo> &photos);
/** One row of \p count stacks of \p each photos all around: 1.jpg, 2.jpg, ... */
[[nodiscard]] PanoHost::Panorama row(int count, int each = 1);

/** Where the photos of the next two are. */
inline const QString kFolder = QStringLiteral("/work/pano");
/** Two positions, with a value in every field that is written. */
[[nodiscard]] PanoHost::Panorama sample();
/** A description full of odd values, different for each \p seed. */
[[nodiscard]] PanoHost::Panorama randomPanorama(unsigned seed);

} // namespace TestPanoramas
