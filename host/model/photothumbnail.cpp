// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/photothumbnail.h"

#include "host/model/decodebounds.h"
#include "host/model/photoexif.h"

#include <QBuffer>
#include <QImageReader>
#include <QTransform>

#include <exiv2/exiv2.hpp>

#include <algorithm>
#include <array>
#include <cmath>

namespace PanoHost
{

namespace
{

/** Embedded previews are JPEGs; a larger one is no preview. */
constexpr size_t kMostPreviewBytes = size_t{ 64 } * 1024 * 1024;
/** Previews are not looked for in larger files. */
constexpr size_t kMostListedBytes = size_t{ 384 } * 1024 * 1024;
/** An EXIF thumbnail whose shorter side has fewer pixels shows too little. */
constexpr int kLeastThumbnailSide = 120;

int longerSide(const QSize &size)
{
    return std::max(size.width(), size.height());
}

/** The size of the thumbnail for a picture of \p size. */
QSize thumbnailSize(const QSize &size)
{
    const int longer = longerSide(size);
    if (longer <= kThumbnailSide) {
        return size;
    }
    const double scale = double(kThumbnailSide) / longer;
    return QSize(qRound(size.width() * scale), qRound(size.height() * scale)).expandedTo({ 1, 1 });
}

/** The picture of \p reader at thumbnail size; null when it is damaged or too large. */
QImage scaledPicture(QImageReader &reader)
{
    const QSize size = reader.size();
    if (size.isEmpty() || !decodable(reader)) {
        return {};
    }
    if (thumbnailSize(size) != size) {
        reader.setScaledSize(thumbnailSize(size));
    }
    const DecodingTurn turn(reader);
    return reader.read();
}

QImageIOHandler::Transformations turnOf(int orientation)
{
    using Handler = QImageIOHandler;
    constexpr std::array<Handler::Transformation, 8> kTurns{
        Handler::TransformationNone,
        Handler::TransformationMirror,
        Handler::TransformationRotate180,
        Handler::TransformationFlip,
        Handler::TransformationFlipAndRotate90,
        Handler::TransformationRotate90,
        Handler::TransformationMirrorAndRotate90,
        Handler::TransformationRotate270,
    };
    return kTurns.at(size_t(orientation - 1));
}

QImage turned(const QImage &picture, QImageIOHandler::Transformations turn)
{
    const QImage mirrored = picture.mirrored(turn.testFlag(QImageIOHandler::TransformationMirror),
                                             turn.testFlag(QImageIOHandler::TransformationFlip));
    return turn.testFlag(QImageIOHandler::TransformationRotate90)
        ? mirrored.transformed(QTransform().rotate(90))
        : mirrored;
}

bool isBlack(const QImage &picture)
{
    constexpr int kDarkest = 32;
    qint64 sum = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            sum += qGray(picture.pixel(x, y));
        }
    }
    return sum <= qint64(kDarkest) * picture.width() * picture.height();
}

/**
 * \p picture without the black bars that bring it to another ratio than that of \p photo; null
 * when it has another ratio and no bars: it shows something else.
 */
QImage withoutBars(const QImage &picture, const QSize &photo)
{
    const QSize size = picture.size();
    const double scale
        = std::min(double(size.width()) / photo.width(), double(size.height()) / photo.height());
    const QSize inner
        = QSize(qRound(photo.width() * scale), qRound(photo.height() * scale)).expandedTo({ 1, 1 });
    const QSize bars = size - inner;
    // Previews leave out a few pixels at the edge of the sensor, and are rounded.
    const auto rounding = [](int side) { return std::max(2, side * 3 / 100); };
    if (bars.width() <= rounding(size.width()) && bars.height() <= rounding(size.height())) {
        return picture;
    }
    const QRect kept(QPoint(bars.width() / 2, bars.height() / 2), inner);
    const bool wide = bars.height() > 0;
    const QRect first
        = wide ? QRect(0, 0, size.width(), kept.top()) : QRect(0, 0, kept.left(), size.height());
    const QRect second = wide ? QRect(QPoint(0, kept.bottom() + 1), picture.rect().bottomRight())
                              : QRect(QPoint(kept.right() + 1, 0), picture.rect().bottomRight());
    return isBlack(picture.copy(first)) && isBlack(picture.copy(second)) ? picture.copy(kept)
                                                                         : QImage();
}

/** Decoders fill up a picture whose data ends early with its last colour. */
bool endsEarly(const QImage &picture)
{
    const int from = picture.height() - std::max(picture.height() / 8, 1);
    const QRgb last = picture.pixel(picture.width() - 1, picture.height() - 1);
    for (int y = from; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != last) {
                return false;
            }
        }
    }
    return true;
}

/** Which embedded pictures will do. */
enum class Accept {
    Equals, ///< those as good as the photo itself
    Any, ///< all that can be decoded, for photos that cannot
};

/**
 * The upright thumbnail from an embedded picture that is said to be of \p claimed pixels; null when
 * it must not be used.
 */
QImage embeddedThumbnail(QByteArray bytes, const QSize &claimed, const PhotoInfo &info,
                         Accept accept)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setAutoTransform(false);
    if (!isPhotoFormat(reader.format())) {
        return {};
    }
    const bool strict = accept == Accept::Equals;
    if (strict && (reader.size() != claimed || !looksComplete(buffer, reader.format()))) {
        return {};
    }
    QImage picture = scaledPicture(reader);
    if (picture.isNull()) {
        return {};
    }
    const QImage inner = withoutBars(picture, info.storedSize);
    if (strict && (inner.isNull() || endsEarly(inner))) {
        return {};
    }
    // Most previews leave the turn to the file around them.
    const QImageIOHandler::Transformations own = reader.transformation();
    return turned(inner.isNull() ? picture : inner,
                  own != QImageIOHandler::TransformationNone ? own : turnOf(info.orientation));
}

QByteArray bytesOf(const Exiv2::byte *bytes, long size)
{
    return { reinterpret_cast<const char *>(bytes), int(size) };
}

QSize sizeOf(const Exiv2::PreviewProperties &preview)
{
    return { int(preview.width_), int(preview.height_) };
}

/** The previews of bounded size, the smallest first. */
Exiv2::PreviewPropertiesList boundedPreviews(const Exiv2::PreviewManager &previews)
{
    Exiv2::PreviewPropertiesList list = previews.getPreviewProperties();
    list.erase(std::remove_if(list.begin(), list.end(),
                              [](const Exiv2::PreviewProperties &preview) {
                                  return preview.size_ == 0 || preview.size_ > kMostPreviewBytes;
                              }),
               list.end());
    std::stable_sort(list.begin(), list.end(), [](const auto &left, const auto &right) {
        return longerSide(sizeOf(left)) < longerSide(sizeOf(right));
    });
    return list;
}

QImage fromExifThumbnail(const Exiv2::ExifData &exif, const PhotoInfo &info)
{
    const Exiv2::DataBuf thumbnail = Exiv2::ExifThumbC(exif).copy();
    if (thumbnail.size_ <= 0) {
        return {};
    }
    QByteArray bytes = bytesOf(thumbnail.pData_, thumbnail.size_);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    const QSize size = QImageReader(&buffer).size();
    if (std::min(size.width(), size.height()) < kLeastThumbnailSide) {
        return {};
    }
    QSize claimed = size;
    const auto width = exif.findKey(Exiv2::ExifKey("Exif.Thumbnail.ImageWidth"));
    const auto height = exif.findKey(Exiv2::ExifKey("Exif.Thumbnail.ImageLength"));
    if (width != exif.end() && height != exif.end()) {
        claimed = QSize(int(width->toLong()), int(height->toLong()));
    }
    return embeddedThumbnail(bytes, claimed, info, Accept::Equals);
}

/** Listing the previews copies each of them, up to the whole file. */
bool mayBeListed(const Exiv2::Image &exiv)
{
    constexpr int kJpegLengthTag = 0x0202;
    const Exiv2::ExifData &exif = exiv.exifData();
    return exiv.io().size() <= kMostListedBytes
        && std::none_of(exif.begin(), exif.end(), [](const Exiv2::Exifdatum &entry) {
               return entry.tag() == kJpegLengthTag && entry.count() > 0
                   && static_cast<unsigned long>(entry.toLong()) > kMostPreviewBytes;
           });
}

QImage fromEmbedded(const Exiv2::Image &exiv, const PhotoInfo &info, Accept accept)
{
    if (!mayBeListed(exiv)) {
        return {};
    }
    const Exiv2::PreviewManager previews(exiv);
    Exiv2::PreviewPropertiesList list = boundedPreviews(previews);
    if (accept == Accept::Any) {
        std::reverse(list.begin(), list.end());
    }
    for (const Exiv2::PreviewProperties &preview : list) {
        const QSize size = sizeOf(preview);
        if (accept == Accept::Equals && longerSide(size) < kThumbnailSide) {
            continue;
        }
        const Exiv2::PreviewImage image = previews.getPreviewImage(preview);
        QImage thumbnail
            = embeddedThumbnail(bytesOf(image.pData(), image.size()), size, info, accept);
        if (!thumbnail.isNull()) {
            return thumbnail;
        }
    }
    return accept == Accept::Equals ? fromExifThumbnail(exiv.exifData(), info) : QImage();
}

QImage embedded(const Exiv2::Image *exiv, const PhotoInfo &info, Accept accept)
{
    try {
        return exiv == nullptr ? QImage() : fromEmbedded(*exiv, info, accept);
    } catch (const std::exception &) {
        return {};
    }
}

} // namespace

QImage greyThumbnail(const PhotoInfo &info)
{
    QSize size = info.storedSize;
    if (clockwiseDegrees(info.orientation) % 180 != 0) {
        size.transpose();
    }
    QImage picture(thumbnailSize(size), QImage::Format_RGB32);
    picture.fill(Qt::gray);
    return picture;
}

QImage photoThumbnail(QIODevice &device, const Exiv2::Image *exiv, const PhotoInfo &info,
                      bool pictureIsPhoto)
{
    device.seek(0);
    const bool complete
        = !pictureIsPhoto || looksComplete(device, QImageReader::imageFormat(&device));
    QImage equal = complete ? embedded(exiv, info, Accept::Equals) : QImage();
    if (!equal.isNull()) {
        return equal;
    }
    device.seek(0);
    QImageReader reader(&device);
    if (pictureIsPhoto && decodable(reader)) {
        reader.setAutoTransform(true);
        return scaledPicture(reader);
    }
    const QImage any = embedded(exiv, info, Accept::Any);
    return any.isNull() ? greyThumbnail(info) : any;
}

} // namespace PanoHost
