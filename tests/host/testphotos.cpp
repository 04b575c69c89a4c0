// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/testphotos.h"

#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QtEndian>

#include <exiv2/exiv2.hpp>

#include <array>
#include <vector>

namespace TestPhotos
{

namespace
{

struct Tag {
    quint16 id = 0;
    quint16 type = 4; ///< 3 SHORT, 4 LONG, 7 UNDEFINED
    quint32 value = 0;
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
        append(bytes, quint32(1));
        append(bytes, tag.value);
    }
    append(bytes, quint32(0));
    return bytes;
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

QString writeJpeg(const QString &path, const QImage &picture, const Exif &exif)
{
    writeFile(path, jpegBytes(picture));
    if (exif.isEmpty()) {
        return path;
    }
    Exiv2::ExifData data;
    for (auto entry = exif.begin(); entry != exif.end(); ++entry) {
        data[entry.key().toStdString()] = entry.value().toStdString();
    }
    const auto image = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
    image->readMetadata();
    image->setExifData(data);
    image->writeMetadata();
    return path;
}

QString writeOrdinary(const QString &path, const QSize &size)
{
    return writeJpeg(path, quarters(size), ordinaryExif());
}

QByteArray rawFile(const QSize &size, int orientation, const QByteArray &preview)
{
    constexpr quint16 kShort = 3;
    constexpr int kHeaderBytes = 8;
    constexpr int kTagBytes = 12;
    constexpr int kFirstTags = 9;
    constexpr int kSubTags = 7;
    const int subOffset = kHeaderBytes + 2 + kFirstTags * kTagBytes + 4;
    const int previewOffset = subOffset + 2 + kSubTags * kTagBytes + 4;

    QByteArray bytes("II*\0", 4);
    append(bytes, quint32(kHeaderBytes));
    bytes += directory({ { 0x00FE, 4, 1 }, // a reduced picture
                         { 0x0100, 4, 160 },
                         { 0x0101, 4, 120 },
                         { 0x0103, kShort, 6 },
                         { 0x0106, kShort, 2 },
                         { 0x0112, kShort, quint32(orientation) },
                         { 0x014A, 4, quint32(subOffset) },
                         { 0x0201, 4, quint32(previewOffset) },
                         { 0x0202, 4, quint32(preview.size()) } });
    bytes += directory({ { 0x00FE, 4, 0 }, // the photo itself
                         { 0x0100, 4, quint32(size.width()) },
                         { 0x0101, 4, quint32(size.height()) },
                         { 0x0103, kShort, 1 },
                         { 0x0106, kShort, 32803 },
                         { 0x0111, 4, quint32(previewOffset) },
                         { 0x0117, 4, quint32(preview.size()) } });
    return bytes + preview;
}

QByteArray jpegBytes(const QImage &picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "JPG", 95);
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
