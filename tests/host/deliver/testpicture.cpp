// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "testpicture.h"

#include <QDataStream>
#include <QFile>

namespace PanoHost
{
namespace
{

constexpr quint32 kMagic = 0x08f2a6b6;
constexpr int kHeaderBytes = 64;

struct Coding {
    quint32 format;
    quint32 space; ///< what libvips calls interpretation
};

Coding codingOf(StitchedPicture::Depth depth)
{
    switch (depth) {
    case StitchedPicture::Depth::Bits8:
        return { 0, 22 }; // uchar, sRGB
    case StitchedPicture::Depth::Bits16:
        return { 2, 25 }; // ushort, RGB16
    case StitchedPicture::Depth::Radiance:
        break;
    }
    return { 6, 28 }; // float, scRGB
}

} // namespace

bool writeTestPicture(const StitchedPicture &picture, const QVector<Pixel> &pixels)
{
    QFile file(picture.path);
    if (pixels.size() != picture.size.width() * picture.size.height()
        || !file.open(QIODevice::WriteOnly)) {
        return false;
    }
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setFloatingPointPrecision(QDataStream::SinglePrecision);
    stream.setByteOrder(QDataStream::LittleEndian);
    const Coding coding = codingOf(picture.depth);
    stream << kMagic << quint32(picture.size.width()) << quint32(picture.size.height())
           << quint32(4) << quint32(0) << coding.format << quint32(0) << coding.space << 1.0F
           << 1.0F;
    while (bytes.size() < kHeaderBytes) {
        stream << quint8(0);
    }
    for (const Pixel &pixel : pixels) {
        for (const double value : pixel) {
            switch (picture.depth) {
            case StitchedPicture::Depth::Bits8:
                stream << quint8(value);
                break;
            case StitchedPicture::Depth::Bits16:
                stream << quint16(value);
                break;
            case StitchedPicture::Depth::Radiance:
                stream << float(value);
                break;
            }
        }
    }
    return file.write(bytes) == bytes.size();
}

QVector<Pixel> readTestPicture(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QDataStream stream(&file);
    stream.setByteOrder(QDataStream::LittleEndian);
    quint32 magic = 0;
    quint32 width = 0;
    quint32 height = 0;
    quint32 bands = 0;
    quint32 unused = 0;
    quint32 format = 0;
    stream >> magic >> width >> height >> bands >> unused >> format;
    if (magic != kMagic || bands != 4 || format != 0 || !file.seek(kHeaderBytes)) {
        return {};
    }
    QVector<Pixel> pixels(int(width * height));
    for (Pixel &pixel : pixels) {
        for (double &value : pixel) {
            quint8 byte = 0;
            stream >> byte;
            value = byte;
        }
    }
    return stream.status() == QDataStream::Ok ? pixels : QVector<Pixel>();
}

} // namespace PanoHost
