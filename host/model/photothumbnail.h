// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QImage>

class QIODevice;

namespace Exiv2
{
class Image;
}

namespace PanoHost
{

struct PhotoInfo;

/** The longer side of a thumbnail, pixels. */
constexpr int kThumbnailSide = 256;

/**
 * The upright thumbnail of the photo in \p device, of which \p info is known: the smallest embedded
 * preview of at least `kThumbnailSide` pixels, the EXIF thumbnail when it is not too small, or the
 * picture itself, scaled while it is decoded. Embedded pictures that are damaged, claim too much
 * or show another picture are passed over. \p exiv is null when exiv2 does not know the file.
 *
 * \p pictureIsPhoto says that an image reader finds the photo itself in \p device; null when it is
 * unreadable. For other photos, and for those too large to decode, any preview will do;
 * `greyThumbnail` stands for those that have none.
 */
[[nodiscard]] QImage photoThumbnail(QIODevice &device, const Exiv2::Image *exiv,
                                    const PhotoInfo &info, bool pictureIsPhoto);

/** Stands for the photo \p info where there is no picture: as large as its thumbnail would be. */
[[nodiscard]] QImage greyThumbnail(const PhotoInfo &info);

} // namespace PanoHost
