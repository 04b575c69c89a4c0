// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPoint>
#include <QSize>
#include <QString>

namespace PanoHost
{

/**
 * A stitched panorama in a work folder: an equirectangular picture of the sphere or of a part of
 * it, in libvips' own format. Bands: red, green, blue, alpha (0 where no photo reaches).
 */
struct StitchedPicture {
    enum class Depth {
        Bits8,
        Bits16,
        Radiance, ///< 32-bit float, linear light, sRGB's primaries; alpha is 0 or 1
    };

    QString path; ///< absolute; ends in ".v"
    QSize size; ///< pixels
    Depth depth = Depth::Bits8;
    QSize sphere; ///< the whole sphere at this scale, pixels, 2 to 1
    QPoint onSphere; ///< the picture's upper left corner on it; all of it lies on the sphere
    double centreYawDegrees = 0.0; ///< of the head, in the middle of the sphere
    /** Radiance only: the exposure value (EV at ISO 100) of a photo that shows a radiance of 1 as
     * just white. */
    double exposureValue = 0.0;
};

} // namespace PanoHost
