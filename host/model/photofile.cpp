// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/photofile.h"

#include "host/model/decodebounds.h"
#include "host/model/desktopthumbnails.h"
#include "host/model/exivimage.h"
#include "host/model/lostpageguard.h"
#include "host/model/photodevice.h"
#include "host/model/safefile.h"
#include "host/model/said.h"
#include "host/model/tifffile.h"

#include <QDateTime>
#include <QImageReader>

#include <exiv2/image.hpp>

#include <algorithm>

namespace PanoHost
{

namespace
{

QString softwareKey()
{
    return QStringLiteral("Software");
}

/** A photo that is open, its header read. */
struct OpenPhoto {
    PhotoInfo info;
    bool pictureIsPhoto = false; ///< what an image reader decodes is the photo itself
    std::unique_ptr<PhotoDevice> device;
    std::unique_ptr<Exiv2::Image> exiv; ///< reads from `device`; null: unknown to exiv2
};

Failure unreadable(const QString &path)
{
    return { ExitCode::InputRefused, path, Said::tr("cannot read (not a photo?)"), {} };
}

Result<OpenPhoto> openPhoto(const QString &path)
{
    auto opened = openRegularFile(path);
    if (!opened) {
        return opened.error();
    }
    OpenPhoto photo;
    photo.device = std::make_unique<PhotoDevice>(std::move(opened).value());
    PhotoDevice &device = *photo.device;
    const QByteArray format = QImageReader::imageFormat(&device);
    if (!hasPictureData(device, format)) {
        return unreadable(path);
    }
    photo.exiv = readExivImage(device);
    if (photo.exiv) {
        photo.info = photoInfo(*photo.exiv);
    } else if (format == "tiff") { // exiv2 reads none above 4 GB
        photo.info.isPanorama = isPanorama(tiffXmp(device));
    }
    photo.info.path = path;
    if (isPhotoFormat(format) && !photo.info.isRaw) {
        device.seek(0);
        QImageReader reader(&device, format);
        const QSize decoded = reader.size();
        photo.info.isPanorama
            = photo.info.isPanorama || reader.text(softwareKey()) == QLatin1String(kOwnSoftware);
        photo.pictureIsPhoto = !decoded.isEmpty();
        if (photo.pictureIsPhoto) {
            photo.info.storedSize = decoded;
        }
        if (photo.exiv && format == "tiff" && !isPictureWithin(*photo.exiv, device.size())) {
            return unreadable(path);
        }
    }
    if (photo.info.storedSize.isEmpty()) {
        return unreadable(path);
    }
    return photo;
}

/** Not an EXIF thumbnail, which is found as quickly the next time. */
bool isOfFullSize(const QImage &thumbnail, const PhotoInfo &info)
{
    const int longer = std::max(info.storedSize.width(), info.storedSize.height());
    return std::max(thumbnail.width(), thumbnail.height()) == std::min(longer, kThumbnailSide);
}

} // namespace

void markAsOwn(QImage &picture)
{
    picture.setText(softwareKey(), QLatin1String(kOwnSoftware));
}

void initializePhotoReading()
{
    initializeExiv();
    LostPageGuard::install();
}

Result<PhotoReading> readPhoto(const QString &path, const DesktopThumbnails *shared)
{
    const LostPageGuard guard;
    const auto photo = openPhoto(path);
    if (!photo) {
        return photo.error();
    }
    const OpenPhoto &opened = photo.value();
    // Of the file that is open, whatever the path names by now.
    const QDateTime modified = opened.device->modified();
    const qint64 bytes = opened.device->size();
    if (const auto kept = shared == nullptr ? std::nullopt : shared->find(path, modified, bytes)) {
        return PhotoReading{ opened.info, *kept };
    }
    QImage thumbnail
        = photoThumbnail(*opened.device, opened.exiv.get(), opened.info, opened.pictureIsPhoto);
    if (thumbnail.isNull() || guard.lostAny()) {
        return unreadable(path);
    }
    if (shared != nullptr && isOfFullSize(thumbnail, opened.info)) {
        shared->keep(path, modified, bytes, thumbnail);
    }
    return PhotoReading{ opened.info, std::move(thumbnail) };
}

Result<StoredPixels> readStoredPixels(const QString &path, int leastWidth)
{
    constexpr int kMostDivisor = 8;
    const LostPageGuard guard;
    const auto photo = openPhoto(path);
    if (!photo) {
        return photo.error();
    }
    const auto refused = [&path](const QString &why) {
        return Failure{ ExitCode::InputRefused, path, why, {} };
    };
    if (!photo.value().pictureIsPhoto) {
        return refused(Said::tr("its pixels cannot be decoded (a RAW file?)"));
    }
    PhotoDevice &device = *photo.value().device;
    device.seek(0);
    QImageReader reader(&device);
    StoredPixels pixels{ {}, photo.value().info.storedSize, 1 };
    QSize size = pixels.storedSize;
    if (reader.format() == "jpeg") {
        while (pixels.divisor < kMostDivisor && size.width() / 2 >= leastWidth
               && size.height() >= 2) {
            pixels.divisor *= 2;
            size = { pixels.storedSize.width() / pixels.divisor,
                     pixels.storedSize.height() / pixels.divisor };
        }
        // The decoder makes one pixel of whole ones only within a part that it is asked for.
        reader.setClipRect(QRect(QPoint(0, 0), size * pixels.divisor));
        reader.setScaledSize(size);
    }
    if (!decodable(reader)) {
        return refused(Said::tr("too large to decode"));
    }
    const DecodingTurn turn(reader);
    pixels.picture = reader.read();
    if (pixels.picture.size() != size || guard.lostAny()) {
        return unreadable(path);
    }
    return pixels;
}

bool isDamaged(const QString &path)
{
    const LostPageGuard guard;
    const auto photo = openPhoto(path);
    if (!photo) {
        return true;
    }
    PhotoDevice &device = *photo.value().device;
    device.seek(0);
    const QImageReader reader(&device);
    const bool isLookedInto = photo.value().pictureIsPhoto && decodable(reader);
    return isLookedInto && (!looksComplete(device, reader.format()) || guard.lostAny());
}

Result<PhotoInfo> readPhotoInfo(const QString &path)
{
    const LostPageGuard guard;
    const auto photo = openPhoto(path);
    if (!photo) {
        return photo.error();
    }
    if (guard.lostAny()) {
        return unreadable(path);
    }
    return photo.value().info;
}

} // namespace PanoHost
