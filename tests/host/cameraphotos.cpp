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

#include <utility>

namespace
{

constexpr int kSecondsBetween = 5;

/** Sky above hills full of flowers, in colours of its own for each \p number. */
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
    quint32 place = 1;
    constexpr int kFlowers = 30'000;
    for (int flower = 0; flower < kFlowers; ++flower) {
        place = place * 1'664'525U + 1'013'904'223U; // a linear congruential generator
        const int across = static_cast<int>(place >> 16) * width / 65'536;
        const int down = height / 3 + static_cast<int>(place % 1'009) * height / 1'514;
        painter.fillRect(across, down, 6, 5, QColor::fromHsv(flower % 360, 90, 230));
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

/** Adds the numbers \p count, 1, 2... as readers of maker notes want them: bytes first. */
void addNumbers(Exiv2::ExifData &exif, const char *key, int count)
{
    Exiv2::UShortValue numbers;
    numbers.value_.push_back(static_cast<uint16_t>(count * 2));
    for (int i = 1; i < count; ++i) {
        numbers.value_.push_back(static_cast<uint16_t>(i));
    }
    exif.add(Exiv2::ExifKey(key), &numbers);
}

/**
 * What a camera says in its own way, hundreds of numbers in all: most of the time that reading the
 * metadata of a photo takes. Only those of makers that exiv2 knows are read.
 */
void addMakerNote(Exiv2::ExifData &exif)
{
    exif["Exif.Image.Make"] = "Canon";
    exif["Exif.Image.Model"] = "Canon EOS 6D";
    exif["Exif.Canon.0x0006"] = "Canon EOS 6D";
    const std::vector<std::pair<const char *, int>> numbers{
        { "Exif.Canon.0x0001", 50 },    { "Exif.Canon.0x0002", 4 },  { "Exif.Canon.0x0004", 34 },
        { "Exif.Canon.0x0005", 6 },     { "Exif.Canon.0x000f", 20 }, { "Exif.Canon.0x0012", 30 },
        { "Exif.Canon.0x0026", 100 },   { "Exif.Canon.0x0093", 30 }, { "Exif.Canon.0x00a0", 14 },
        { "Exif.Canon.0x4001", 1'250 }, { "Exif.Canon.0x4013", 11 }, { "Exif.Canon.0x4015", 40 },
    };
    for (const auto &[key, count] : numbers) {
        addNumbers(exif, key, count);
    }
}

Exiv2::ExifData exifOf(int number)
{
    const QDateTime first(QDate(2024, 5, 1), QTime(10, 0), Qt::UTC);
    const std::string time = first.addSecs(qint64(number) * kSecondsBetween)
                                 .toString(QStringLiteral("yyyy:MM:dd HH:mm:ss"))
                                 .toStdString();
    Exiv2::ExifData exif;
    addMakerNote(exif);
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

/** The segment of a JPEG file that holds \p content. */
QByteArray segment(const QByteArray &content)
{
    QByteArray length(2, Qt::Uninitialized);
    qToBigEndian(static_cast<quint16>(content.size() + length.size()), length.data());
    return QByteArray("\xff\xe1") + length + content;
}

QByteArray exifSegment(const Exiv2::ExifData &exif)
{
    Exiv2::Blob blob;
    Exiv2::ExifParser::encode(blob, Exiv2::littleEndian, exif);
    return segment(
        QByteArray("Exif\0\0", 6)
        + QByteArray(reinterpret_cast<const char *>(blob.data()), static_cast<int>(blob.size())));
}

/** Not rated, with room for changes: the same in every photo. */
QByteArray xmpSegment()
{
    Exiv2::XmpData xmp;
    xmp["Xmp.xmp.Rating"] = 0;
    std::string packet;
    constexpr uint32_t kPadding = 2048;
    Exiv2::XmpParser::encode(packet, xmp, Exiv2::XmpParser::useCompactFormat, kPadding);
    return segment(QByteArray("http://ns.adobe.com/xap/1.0/\0", 29)
                   + QByteArray::fromStdString(packet));
}

} // namespace

CameraPhotos::CameraPhotos(int pictures)
    : m_xmp(xmpSegment())
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
    return QByteArray(picture(number).jpeg).insert(kStartMarkerBytes, exifSegment(exif) + m_xmp);
}

QByteArray CameraPhotos::raw(int number) const
{
    return TestPhotos::rawFile(kSize, 1, { picture(number).preview });
}
