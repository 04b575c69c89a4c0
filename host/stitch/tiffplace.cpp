// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/stitch/tiffplace.h"

#include "host/stitch/tiffhandle.h"

#include <QFile>
#include <QFileInfo>

namespace PanoHost
{
namespace
{

/** Null for what is no TIFF file; a pipe or a device is not opened. */
TiffHandle opened(const QString &path)
{
    static const bool isQuiet = [] {
        TIFFSetErrorHandler(nullptr);
        TIFFSetWarningHandler(nullptr);
        return true;
    }();
    return TiffHandle(isQuiet && QFileInfo(path).isFile()
                          ? TIFFOpen(QFile::encodeName(path).constData(), "r")
                          : nullptr);
}

/** Whether the file is long enough for all strips or tiles. */
bool isComplete(TIFF *file, qint64 bytes)
{
    const uint32_t strips
        = TIFFIsTiled(file) != 0 ? TIFFNumberOfTiles(file) : TIFFNumberOfStrips(file);
    for (uint32_t strip = 0; strip < strips; ++strip) {
        const uint64_t length = TIFFGetStrileByteCount(file, strip);
        const uint64_t begin = TIFFGetStrileOffset(file, strip);
        const auto all = static_cast<uint64_t>(bytes);
        if (length == 0 || begin > all || length > all - begin) {
            return false;
        }
    }
    return strips > 0;
}

int pixels(TIFF *file, uint32_t position, uint32_t resolution)
{
    float inches = 0.0F;
    float perInch = 0.0F;
    return TIFFGetField(file, position, &inches) != 0
            && TIFFGetField(file, resolution, &perInch) != 0
        ? qRound(static_cast<double>(inches) * static_cast<double>(perInch))
        : 0;
}

} // namespace

std::optional<int> tiffBits(const QString &path)
{
    const TiffHandle file = opened(path);
    uint16_t bits = 0;
    return file != nullptr && TIFFGetField(file.get(), TIFFTAG_BITSPERSAMPLE, &bits) != 0
        ? std::optional<int>(bits)
        : std::nullopt;
}

std::optional<QRect> tiffPlace(const QString &path)
{
    const TiffHandle file = opened(path);
    uint32_t width = 0;
    uint32_t height = 0;
    if (file == nullptr || TIFFGetField(file.get(), TIFFTAG_IMAGEWIDTH, &width) == 0
        || TIFFGetField(file.get(), TIFFTAG_IMAGELENGTH, &height) == 0
        || !isComplete(file.get(), QFileInfo(path).size())) {
        return {};
    }
    return QRect(pixels(file.get(), TIFFTAG_XPOSITION, TIFFTAG_XRESOLUTION),
                 pixels(file.get(), TIFFTAG_YPOSITION, TIFFTAG_YRESOLUTION),
                 static_cast<int>(width), static_cast<int>(height));
}

} // namespace PanoHost
