// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/cameraphotos.h"

#include "tests/host/testphotos.h"

#include <QBuffer>
#include <QDateTime>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QtEndian>

#include <exiv2/exiv2.hpp>

namespace
{

constexpr int kSecondsBetween = 5;

/** Sky above hills, in colours of its own for each \p number. */
QImage landscape(int number)
{
    QImage picture(CameraPhotos::kSize, QImage::Format_RGB32);
    const int width = picture.width();
    const int height = picture.height();
    QLinearGradient sky(0, 0, width / 4.0, height);
    sky.setColorAt(0.0, QColor::fromHsv(number * 36 % 360, 160, 220));
    sky.setColorAt(1.0, QColor::fromHsv((number * 36 + 60) % 360, 60, 250));
    QPainter painter(&picture);
    painter.fillRect(picture.rect(), sky);
    painter.setPen(Qt::NoPen);
    constexpr int kHills = 12;
    for (int hill = 0; hill < kHills; ++hill) {
        painter.setBrush(QColor::fromHsv((number * 36 + hill * 9) % 360, 120, 200 - hill * 12));
        const int across = (hill * 37 + number * 11) % 100 * width / 100;
        painter.drawEllipse(QPoint(across, height + hill * 60), width / 5,
                            height * 2 / 3 - hill * 90);
    }
    return picture;
}

QByteArray jpegOf(const QImage &picture)
{
    constexpr int kQuality = 85;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "JPG", kQuality);
    return bytes;
}

QImage scaled(const QImage &picture, const QSize &size)
{
    return picture.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

QImage letterboxed(const QImage &picture)
{
    QImage framed(CameraPhotos::kThumbnailSize, QImage::Format_RGB32);
    framed.fill(Qt::black);
    const QImage inner = scaled(picture, framed.size());
    QPainter(&framed).drawImage(0, (framed.height() - inner.height()) / 2, inner);
    return framed;
}

Exiv2::ExifData exifOf(int number)
{
    const QDateTime first(QDate(2024, 5, 1), QTime(10, 0), Qt::UTC);
    const std::string time = first.addSecs(qint64(number) * kSecondsBetween)
                                 .toString(QStringLiteral("yyyy:MM:dd HH:mm:ss"))
                                 .toStdString();
    Exiv2::ExifData exif;
    exif["Exif.Image.Make"] = "Imaginary Optics";
    exif["Exif.Image.Model"] = "Pinhole Two";
    exif["Exif.Image.Orientation"] = uint16_t(1);
    exif["Exif.Image.DateTime"] = time;
    exif["Exif.Photo.DateTimeOriginal"] = time;
    exif["Exif.Photo.DateTimeDigitized"] = time;
    exif["Exif.Photo.ExposureTime"] = Exiv2::Rational{ 1, 250 };
    exif["Exif.Photo.FNumber"] = Exiv2::Rational{ 8, 1 };
    exif["Exif.Photo.ISOSpeedRatings"] = uint16_t(100);
    exif["Exif.Photo.FocalLength"] = Exiv2::Rational{ 800, 1 };
    exif["Exif.Photo.FocalLengthIn35mmFilm"] = uint16_t(800);
    exif["Exif.Photo.LensModel"] = "Long Tube 800 mm";
    exif["Exif.Photo.PixelXDimension"] = uint32_t(CameraPhotos::kSize.width());
    exif["Exif.Photo.PixelYDimension"] = uint32_t(CameraPhotos::kSize.height());
    exif["Exif.Photo.ImageUniqueID"]
        = QByteArray::number(number).rightJustified(32, '0').toStdString();
    return exif;
}

/** The segment that holds \p exif in a JPEG file. */
QByteArray exifSegment(const Exiv2::ExifData &exif)
{
    Exiv2::Blob blob;
    Exiv2::ExifParser::encode(blob, Exiv2::littleEndian, exif);
    const QByteArray content = QByteArray("Exif\0\0", 6)
        + QByteArray(reinterpret_cast<const char *>(blob.data()), static_cast<int>(blob.size()));
    QByteArray length(2, Qt::Uninitialized);
    qToBigEndian(static_cast<quint16>(content.size() + length.size()), length.data());
    return QByteArray("\xff\xe1") + length + content;
}

} // namespace

CameraPhotos::CameraPhotos(int pictures)
{
    for (int number = 0; number < pictures; ++number) {
        const QImage picture = landscape(number);
        m_pictures.push_back({ jpegOf(picture), jpegOf(letterboxed(picture)),
                               jpegOf(scaled(picture, kPreviewSize)) });
    }
}

const CameraPhotos::Picture &CameraPhotos::picture(int number) const
{
    return m_pictures.at(static_cast<std::size_t>(number) % m_pictures.size());
}

QByteArray CameraPhotos::jpeg(int number, Inside inside) const
{
    Exiv2::ExifData exif = exifOf(number);
    if (inside == Inside::Thumbnail) {
        const QByteArray &thumbnail = picture(number).thumbnail;
        Exiv2::ExifThumb(exif).setJpegThumbnail(
            reinterpret_cast<const Exiv2::byte *>(thumbnail.constData()), thumbnail.size());
    }
    constexpr int kStartMarkerBytes = 2;
    return QByteArray(picture(number).jpeg).insert(kStartMarkerBytes, exifSegment(exif));
}

QByteArray CameraPhotos::raw(int number) const
{
    return TestPhotos::rawFile(kSize, 1, picture(number).preview);
}
