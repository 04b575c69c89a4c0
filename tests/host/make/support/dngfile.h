// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QSize>
#include <QString>

#include <array>
#include <functional>

/** What the sensor of a made-up camera records. */
struct DngPicture {
    QSize size; ///< of the mosaic
    /** Red, green and blue, sRGB's primaries, of the spot that a pixel sees; 1 is white. */
    std::function<std::array<double, 3>(int x, int y)> light;
    /** How much of white light's red and blue the camera says that it has recorded; of green all.
     */
    double statedRed = 0.5;
    double statedBlue = 0.625;
    int orientation = 1;
    bool hasPreview = true; ///< a small one, which comes first
};

/** Writes \p picture to \p path as an uncompressed DNG. */
[[nodiscard]] bool writeDng(const QString &path, const DngPicture &picture);
