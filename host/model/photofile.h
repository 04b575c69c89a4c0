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

/** Has \p picture say, when it is saved as PNG or JPEG, that it is a result of this program: read
 * as a photo it is `PhotoInfo::isPanorama`. */
void markAsOwn(QImage &picture);

/** A photo's pixels as they are stored: not turned. */
struct StoredPixels {
    QImage picture;
    QSize storedSize;
    /** 1, 2, 4 or 8 stored pixels to a side of one of the picture's, from the upper left corner on;
     * stored columns and rows that are left over at the other end are not shown. */
    int divisor = 1;
};

/**
 * Decodes the photo \p path, JPEGs with the largest divisor that leaves \p leastWidth pixels to
 * their width. Refuses what cannot be read, RAW files and what takes too much memory. Thread-safe.
 */
[[nodiscard]] Result<StoredPixels> readStoredPixels(const QString &path, int leastWidth);

/**
 * Whether the photo \p path is gone, is none, or ends before its picture does. RAW files and what
 * takes too much memory are not looked into. Decodes nothing; thread-safe.
 */
[[nodiscard]] bool isDamaged(const QString &path);

/** Like `readPhoto` without the thumbnail: reads the file's header only and decodes nothing. */
[[nodiscard]] Result<PhotoInfo> readPhotoInfo(const QString &path);

} // namespace PanoHost
