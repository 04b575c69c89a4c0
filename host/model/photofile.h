// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/result.h"
#include "model/lensmodel.h"

#include <QImage>
#include <QSize>
#include <QString>

#include <optional>

namespace PanoHost
{

/** The longer side of a thumbnail, pixels. */
constexpr int kThumbnailSide = 256;

/** What is known about one photo. */
struct PhotoInfo {
    QString path;
    /** Pixels as stored in the file, before the orientation is applied; empty: not known. */
    QSize storedSize;
    /** EXIF orientation, 1 to 8; 1 when the file says nothing or nonsense. */
    int orientation = 1;
    /** 35 mm equivalent focal length; 0: not known. */
    double focal35mm = 0.0;
    /** `NotChosen` when the photo does not name its lens. */
    LensModel lens = LensModel::NotChosen;
    /** log2(N^2 / t) - log2(ISO / 100); nothing when the photo names no exposure time. */
    std::optional<double> exposureValue;
    /** Capture time of the camera's clock, milliseconds since 1970 (read as UTC); 0: not known. */
    qint64 timeMs = 0;
    /** The same as "2024-05-01T10:00:00" or "2024-05-01T10:00:00.250"; empty: not known. */
    QString timeText;
};

/** A photo together with its upright thumbnail. */
struct PhotoReading {
    PhotoInfo info;
    /** Upright, the longer side at most `kThumbnailSide`. */
    QImage thumbnail;
};

/** Prepares the EXIF library; once, in main(), before any thread is started. */
void initializePhotoReading();

/**
 * Reads the EXIF data and size of \p path and makes its thumbnail, from the picture itself or,
 * for RAW files, from the embedded preview. Thread-safe; regular files only; the memory taken is
 * bounded whatever the file claims.
 */
[[nodiscard]] Result<PhotoReading> readPhoto(const QString &path);

/** Like `readPhoto` without the thumbnail: reads the file's header only. */
[[nodiscard]] Result<PhotoInfo> readPhotoInfo(const QString &path);

/** log2(N^2 / t) - log2(ISO / 100), with \p seconds > 0, \p fNumber > 0 and \p iso > 0. */
[[nodiscard]] double exposureValue(double fNumber, double seconds, double iso);

/** The clockwise turn in degrees (0, 90, 180, 270) that EXIF \p orientation asks for. */
[[nodiscard]] int clockwiseDegrees(int orientation);

/** Parses `PhotoInfo::timeText`; 0 when it is no such text. */
[[nodiscard]] qint64 timeMsFromText(const QString &text);

} // namespace PanoHost
