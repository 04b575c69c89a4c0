// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/decodebounds.h"

#include <QIODevice>
#include <QImageReader>
#include <QSemaphore>

#include <algorithm>

namespace PanoHost
{

namespace
{

/** Formats that cannot be scaled while they are decoded are decoded up to this size only. */
constexpr qint64 kMegabyte = 1024LL * 1024;
constexpr qint64 kMostDecodedBytes = 384 * kMegabyte;
/** Where files mostly have the mark of their end. */
constexpr qint64 kMarkBytes = 16;
/** Cameras append previews and short films; a mark farther away is not looked for. */
constexpr qint64 kTailBytes = 64LL * 1024;

/** Decoders would read through any amount of garbage, some gigabytes a minute. */
constexpr int kMostGarbageBytes = 1024 * 1024;

/** The next marker of a JPEG stream, as decoders find it: past garbage and fill bytes; 0: none. */
int nextJpegMarker(QIODevice &device)
{
    char byte = 0;
    bool prefixed = false;
    for (int i = 0; i < kMostGarbageBytes && device.getChar(&byte); ++i) {
        const auto code = static_cast<unsigned char>(byte);
        if (prefixed && code != 0xFF && code != 0x00) {
            return code;
        }
        prefixed = code == 0xFF;
    }
    return 0;
}

struct JpegHeader {
    /**
     * Whether a decoder must hold all coefficients at once, however small the wanted picture is:
     * that of progressive streams, and of those with a scan per component.
     */
    bool needsAllCoefficients = false;
    /** Where the data of the first scan begins; -1: there is none. */
    qint64 dataAt = -1;
};

/** Keeps the device's position. */
JpegHeader readJpegHeader(QIODevice &device)
{
    const qint64 before = device.pos();
    device.seek(0);
    JpegHeader header;
    int components = 0;
    while (const int marker = nextJpegMarker(device)) {
        const bool bare = marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
        if (bare) {
            continue;
        }
        const QByteArray head = device.peek(8).leftJustified(8, 0);
        const bool frame
            = (marker & 0xF0) == 0xC0 && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
        if (frame) {
            components = static_cast<unsigned char>(head[7]);
            header.needsAllCoefficients = header.needsAllCoefficients || (marker & 3) == 2;
        }
        const int length
            = (static_cast<unsigned char>(head[0]) << 8) | static_cast<unsigned char>(head[1]);
        const qint64 next = device.pos() + std::max(length, 2);
        if (marker == 0xDA) {
            header.dataAt = next < device.size() ? next : -1;
            header.needsAllCoefficients
                = header.needsAllCoefficients || static_cast<unsigned char>(head[2]) < components;
        }
        if (marker == 0xDA || marker == 0xD9 || !device.seek(next)) {
            break;
        }
    }
    device.seek(before);
    return header;
}

qint64 decodedBytes(const QImageReader &reader)
{
    const QSize size = reader.size();
    const qint64 pixels = qint64(size.width()) * size.height();
    if (reader.format() != "jpeg") {
        return pixels * 4;
    }
    // Up to four components of 16-bit coefficients; others are reduced while they are decoded.
    const QSize scaled = reader.scaledSize().expandedTo({ 0, 0 });
    const qint64 wanted = qint64(scaled.width()) * scaled.height();
    const bool whole = readJpegHeader(*reader.device()).needsAllCoefficients;
    return whole ? pixels * 8 + wanted * 4 : std::max(pixels / 64, wanted) * 4;
}

/** In megabytes. */
QSemaphore &roomForDecoding()
{
    static QSemaphore room(static_cast<int>(kMostDecodedBytes / kMegabyte) + 1);
    return room;
}

} // namespace

bool isPhotoFormat(const QByteArray &format)
{
    static const QByteArrayList formats{ "jpeg", "jpg",  "png", "tiff", "tif",
                                         "webp", "bmp",  "ppm", "pgm",  "heif",
                                         "heic", "avif", "jp2", "exr",  "hdr" };
    return formats.contains(format);
}

bool decodable(const QImageReader &reader)
{
    return decodedBytes(reader) <= kMostDecodedBytes;
}

DecodingTurn::DecodingTurn(const QImageReader &reader)
    : m_megabytes(static_cast<int>(decodedBytes(reader) / kMegabyte) + 1)
{
    roomForDecoding().acquire(m_megabytes);
}

DecodingTurn::~DecodingTurn()
{
    roomForDecoding().release(m_megabytes);
}

bool hasPictureData(QIODevice &device, const QByteArray &format)
{
    // Decoders make a grey picture of half a JPEG, and nothing of half a PNG.
    return format == "jpeg" ? readJpegHeader(device).dataAt >= 0 : looksComplete(device, format);
}

bool looksComplete(QIODevice &device, const QByteArray &format)
{
    const bool jpeg = format == "jpeg";
    if (!jpeg && format != "png") {
        return true;
    }
    // Compressed data never holds the mark of its end; what a camera writes into a header may.
    const QByteArray mark = jpeg ? QByteArray("\xFF\xD9") : QByteArray("IEND");
    const qint64 dataAt = jpeg ? readJpegHeader(device).dataAt : 0;
    if (dataAt < 0) {
        return false;
    }
    const qint64 before = device.pos();
    const auto endsWithin = [&](qint64 bytes) {
        device.seek(std::max(dataAt, device.size() - bytes));
        return device.read(bytes).contains(mark);
    };
    const bool complete = endsWithin(kMarkBytes) || endsWithin(kTailBytes);
    device.seek(before);
    return complete;
}

} // namespace PanoHost
