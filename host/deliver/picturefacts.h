// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/deliver/pictureorigin.h"
#include "host/stitch/stitchedpicture.h"

#include <QByteArray>

namespace PanoHost
{

/** What a picture's file says besides its pixels, as such files hold it. */
struct PictureFacts {
    QByteArray xmp; ///< a packet
    QByteArray exif; ///< a TIFF header and what belongs to it
    QByteArray iccProfile; ///< empty: sRGB
};

/**
 * The facts of a picture of \p size, which carries on \p origin. With a \p panorama it is all of
 * that: its place on the sphere is among them, for viewers. Either way a photo reader knows by them
 * that this program has made it.
 */
[[nodiscard]] PictureFacts factsOf(const PictureOrigin &origin, const QSize &size,
                                   const StitchedPicture *panorama);

} // namespace PanoHost
