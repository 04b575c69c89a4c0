// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "model/lensmodel.h"

#include <QByteArray>
#include <QSize>
#include <QString>

#include <optional>

namespace Exiv2
{
class Image;
}

namespace PanoHost
{

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
    QString camera; ///< maker, model and serial number, as far as the photo names them
    QString lensName; ///< empty: not named
    bool hasAutomaticBalance = false; ///< the camera chose the white balance of this photo alone
    bool isRaw = false; ///< for RAW converters
    bool isPanorama = false; ///< says of itself that it was made of other photos, or is a layout
};

/** What the EXIF data and header of \p image say; the path is left empty. */
[[nodiscard]] PhotoInfo photoInfo(const Exiv2::Image &image);

/** Whether \p image is for RAW converters, of which decoders find a preview at best. */
[[nodiscard]] bool isRaw(const Exiv2::Image &image);

/** The name under which results say that this program made them. */
constexpr const char *kOwnSoftware = "panohost";

/** Whether \p image bears the data by which viewers know a panorama, or is one of this program's
 * results. */
[[nodiscard]] bool isPanorama(const Exiv2::Image &image);
/** The same of an XMP packet. */
[[nodiscard]] bool isPanorama(const QByteArray &xmpPacket);

/** Whether the strips or tiles that \p image, a TIFF, names lie within the file's \p bytes. */
[[nodiscard]] bool isPictureWithin(const Exiv2::Image &image, qint64 bytes);

/** log2(N^2 / t) - log2(ISO / 100), with \p seconds > 0, \p fNumber > 0 and \p iso > 0. */
[[nodiscard]] double exposureValue(double fNumber, double seconds, double iso);

/** The clockwise turn in degrees (0, 90, 180, 270) that EXIF \p orientation asks for. */
[[nodiscard]] int clockwiseDegrees(int orientation);

/** Parses `PhotoInfo::timeText`; 0 when it is no such text. */
[[nodiscard]] qint64 timeMsFromText(const QString &text);

} // namespace PanoHost
