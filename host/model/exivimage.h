// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <memory>

namespace Exiv2
{
class Image;
}

namespace PanoHost
{

class PhotoDevice;

/** Prepares the EXIF library; once, before any thread is started. */
void initializeExiv();
/** "0.27.6" */
[[nodiscard]] QString exivVersion();

/**
 * What exiv2 knows about the photo in \p device, its metadata read; null when it does not know the
 * format or the file is damaged. Reads through \p device, which must outlive the image, and moves
 * its position; opens nothing. Thread-safe for different devices.
 */
[[nodiscard]] std::unique_ptr<Exiv2::Image> readExivImage(PhotoDevice &device);

} // namespace PanoHost
