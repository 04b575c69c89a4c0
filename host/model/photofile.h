// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/photoexif.h"
#include "host/model/photothumbnail.h"
#include "host/model/result.h"

#include <QImage>
#include <QString>

namespace PanoHost
{

class DesktopThumbnails;

/** A photo together with its upright thumbnail. */
struct PhotoReading {
    PhotoInfo info;
    /** Upright, the longer side at most `kThumbnailSide`. */
    QImage thumbnail;
};

/** Prepares the EXIF library; once, in main(), before any thread is started. */
void initializePhotoReading();

/**
 * Reads the EXIF data and size of \p path and makes its thumbnail, from an embedded preview or from
 * the picture itself, or takes it from \p shared, where one that had to be decoded is left for the
 * next time; null for none. Opens the file once. Thread-safe; regular files only; the memory taken
 * is bounded whatever the file claims.
 */
[[nodiscard]] Result<PhotoReading> readPhoto(const QString &path,
                                             const DesktopThumbnails *shared = nullptr);

/** Like `readPhoto` without the thumbnail: reads the file's header only and decodes nothing. */
[[nodiscard]] Result<PhotoInfo> readPhotoInfo(const QString &path);

} // namespace PanoHost
