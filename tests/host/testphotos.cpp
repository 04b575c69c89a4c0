// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/testphotos.h"

#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QtEndian>

#include <exiv2/exiv2.hpp>

#include <array>
#include <functional>
#include <vector>

namespace TestPhotos
{

namespace
{

constexpr quint16 kShort = 3;
constexpr quint16 kLong = 4;

struct Tag {
    quint16 id = 0;
    quint16 type = kLong;
    quint32 value = 0; ///< or where the values are, when there is more than one
    quint32 count = 1;
};

template <typename T> void append(QByteArray &bytes, T value)
{
    std::array<char, sizeof(T)> raw{};
    qToLittleEndian(value, raw.data());
    bytes.append(raw.data(), int(sizeof(T)));
}

QByteArray directory(const std::vector<Tag> &tags)
{
    QByteArray bytes;
    append(bytes, quint16(tags.size()));
    for (const Tag &tag : tags) {
        append(bytes, tag.id);
        append(bytes, tag.type);
        append(bytes, tag.count);
        append(bytes, tag.value);
    }
    append(bytes, quint32(0));
    return bytes;
}

void changeMetadata(const QString &path, const std::function<void(Exiv2::Image &)> &change)
{
    const auto image = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
    image->readMetadata();
    change(*image);
    image->writeMetadata();
}

} // namespace

Exif ordinaryExif()
{
    return { { "Exif.Photo.FocalLengthIn35mmFilm", "24" },
             { "Exif.Photo.FNumber", "8/1" },
             { "Exif.Photo.ExposureTime", "1/100" },
             { "Exif.Photo.ISOSpeedRatings", "100" },
             { "Exif.Photo.DateTimeOriginal", "2024:05:01 10:00:00" } };
}

QImage quarters(const QSize &size)
{
    QImage picture(size, QImage::Format_RGB32);
    const int w = size.width() / 2;
    const int h = size.height() / 2;
    QPainter painter(&picture);
    painter.fillRect(0, 0, w, h, Qt::red);
    painter.fillRect(w, 0, size.width() - w, h, Qt::green);
    painter.fillRect(0, h, w, size.height() - h, Qt::blue);
    painter.fillRect(w, h, size.width() - w, size.height() - h, Qt::yellow);
    return picture;
}

QString seenQuarters(const QImage &image)
{
    QString letters;
    for (const int y : { image.height() / 4, 3 * image.height() / 4 }) {
        for (const int x : { image.width() / 4, 3 * image.width() / 4 }) {
            const QRgb rgb = image.pixel(x, y);
            const bool red = qRed(rgb) > 127;
            const bool green = qGreen(rgb) > 127;
            letters += QLatin1Char(red && green ? 'Y' : red ? 'R' : green ? 'G' : 'B');
        }
    }
    return letters;
}

QString writeJpeg(const QString &path, const QImage &picture, const Exif &exif)
{
    writeFile(path, jpegBytes(picture));
    if (!exif.isEmpty()) {
        addExif(path, exif);
    }
    return path;
}

void addExif(const QString &path, const Exif &exif)
{
    changeMetadata(path, [&exif](Exiv2::Image &image) {
        for (auto entry = exif.begin(); entry != exif.end(); ++entry) {
            image.exifData()[entry.key().toStdString()] = entry.value().toStdString();
        }
    });
}

QString writeOrdinary(const QString &path, const QSize &size)
{
    return writeJpeg(path, quarters(size), ordinaryExif());
}

void embedThumbnail(const QString &path, const QByteArray &jpeg, const QSize &size)
{
    changeMetadata(path, [&](Exiv2::Image &image) {
        Exiv2::ExifThumb(image.exifData())
            .setJpegThumbnail(reinterpret_cast<const Exiv2::byte *>(jpeg.constData()), jpeg.size());
        if (!size.isEmpty()) {
            image.exifData()["Exif.Thumbnail.ImageWidth"] = quint32(size.width());
            image.exifData()["Exif.Thumbnail.ImageLength"] = quint32(size.height());
        }
    });
}

void embedXmp(const QString &path, const QByteArray &space)
{
    const QByteArray packet
        = R"(<x:xmpmeta xmlns:x="adobe:ns:meta/"><rdf:RDF )"
          R"(xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#"><rdf:Description rdf:about="" )"
          R"(xmlns:)"
        + space + R"(="http://example.org/)" + space + R"(/"><)" + space + ":a>1</" + space
        + ":a></rdf:Description></rdf:RDF></x:xmpmeta>";
    changeMetadata(path, [&packet](Exiv2::Image &image) {
        image.setXmpPacket(packet.toStdString());
        image.writeXmpFromPacket(true);
    });
}

QByteArray rawFile(const QSize &size, int orientation, const QVector<QByteArray> &previews)
{
    constexpr int kHeaderBytes = 8;
    constexpr int kTagBytes = 12;
    constexpr int kFirstTags = 9;
    constexpr int kSubTags = 7;
    constexpr int kSubBytes = 2 + kSubTags * kTagBytes + 4;
    // the photo, then each preview but for the first, which is in the first directory
    const int subs = previews.size();
    const int subOffset = kHeaderBytes + 2 + kFirstTags * kTagBytes + 4;
    const int listOffset = subOffset + subs * kSubBytes;
    QByteArray data;
    for (int i = 0; i < subs; ++i) {
        append(data, quint32(subOffset + i * kSubBytes));
    }
    std::vector<quint32> offsets;
    for (const QByteArray &preview : previews) {
        offsets.push_back(quint32(listOffset + data.size()));
        data += preview;
    }

    QByteArray bytes("II*\0", 4);
    append(bytes, quint32(kHeaderBytes));
    bytes
        += directory({ { 0x00FE, kLong, 1 }, // a reduced picture
                       { 0x0100, kLong, 160 },
                       { 0x0101, kLong, 120 },
                       { 0x0103, kShort, 6 },
                       { 0x0106, kShort, 2 },
                       { 0x0112, kShort, quint32(orientation) },
                       { 0x014A, kLong, quint32(subs > 1 ? listOffset : subOffset), quint32(subs) },
                       { 0x0201, kLong, offsets[0] },
                       { 0x0202, kLong, quint32(previews[0].size()) } });
    bytes += directory({ { 0x00FE, kLong, 0 }, // the photo itself
                         { 0x0100, kLong, quint32(size.width()) },
                         { 0x0101, kLong, quint32(size.height()) },
                         { 0x0103, kShort, 1 },
                         { 0x0106, kShort, 32803 },
                         { 0x0111, kLong, offsets[0] },
                         { 0x0117, kLong, quint32(previews[0].size()) } });
    for (int i = 1; i < subs; ++i) {
        bytes += directory({ { 0x00FE, kLong, 1 },
                             { 0x0100, kLong, 160 },
                             { 0x0101, kLong, 120 },
                             { 0x0103, kShort, 6 },
                             { 0x0106, kShort, 6 },
                             { 0x0201, kLong, offsets[size_t(i)] },
                             { 0x0202, kLong, quint32(previews[i].size()) } });
    }
    return bytes + data;
}

QByteArray jpegBytes(const QImage &picture)
{
    return bytesOf(picture, "JPG", 95);
}

QByteArray bytesOf(const QImage &picture, const char *format, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, format, quality);
    return bytes;
}

QString writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
    return path;
}

} // namespace TestPhotos
