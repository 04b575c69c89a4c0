// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/make/support/dngfile.h"

#include <QFile>
#include <QVector>

#include <algorithm>
#include <cmath>

#include <tiffio.h>

namespace
{

constexpr float kBlack = 512.0F;
constexpr quint32 kWhite = 65535;
/** What of white light's red, green and blue the sensor records. */
constexpr std::array<double, 3> kSensitivity{ 0.5, 1.0, 0.625 };

void setLayout(TIFF *file, const QSize &size, int bits, int samples, int photometric)
{
    TIFFSetField(file, TIFFTAG_IMAGEWIDTH, size.width());
    TIFFSetField(file, TIFFTAG_IMAGELENGTH, size.height());
    TIFFSetField(file, TIFFTAG_BITSPERSAMPLE, bits);
    TIFFSetField(file, TIFFTAG_SAMPLESPERPIXEL, samples);
    TIFFSetField(file, TIFFTAG_PHOTOMETRIC, photometric);
    TIFFSetField(file, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(file, TIFFTAG_ROWSPERSTRIP, size.height());
}

bool writePreview(TIFF *file, const DngPicture &picture)
{
    constexpr int kShrink = 4;
    const QSize size = picture.size / kShrink;
    setLayout(file, size, 8, 3, PHOTOMETRIC_RGB);
    QVector<quint8> row(size.width() * 3);
    bool good = true;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const auto light = picture.light(x * kShrink, y * kShrink);
            for (int i = 0; i < 3; ++i) {
                row[3 * x + i] = quint8(255.0 * std::sqrt(std::clamp(light[size_t(i)], 0.0, 1.0)));
            }
        }
        good = TIFFWriteScanline(file, row.data(), uint32_t(y), 0) > 0 && good;
    }
    return TIFFWriteDirectory(file) != 0 && good;
}

bool writeMosaic(TIFF *file, const DngPicture &picture)
{
    setLayout(file, picture.size, 16, 1, PHOTOMETRIC_CFA);
    constexpr std::array<quint16, 2> kRepeat{ 2, 2 };
    constexpr std::array<quint8, 4> kPattern{ 0, 1, 1, 2 }; // R G, G B
    TIFFSetField(file, TIFFTAG_SUBFILETYPE, 0);
    TIFFSetField(file, TIFFTAG_CFAREPEATPATTERNDIM, kRepeat.data());
    TIFFSetField(file, TIFFTAG_CFAPATTERN, int(kPattern.size()), kPattern.data());
    TIFFSetField(file, TIFFTAG_BLACKLEVEL, 1, &kBlack);
    TIFFSetField(file, TIFFTAG_WHITELEVEL, 1, &kWhite);
    QVector<quint16> row(picture.size.width());
    bool good = true;
    for (int y = 0; y < picture.size.height(); ++y) {
        for (int x = 0; x < picture.size.width(); ++x) {
            const size_t colour = kPattern[size_t(2 * (y % 2) + x % 2)];
            const double recorded = picture.light(x, y)[colour] * kSensitivity[colour];
            row[x] = quint16(std::lround(
                double(kBlack) + (kWhite - double(kBlack)) * std::clamp(recorded, 0.0, 1.0)));
        }
        good = TIFFWriteScanline(file, row.data(), uint32_t(y), 0) > 0 && good;
    }
    return TIFFWriteDirectory(file) != 0 && good;
}

} // namespace

bool writeDng(const QString &path, const DngPicture &picture)
{
    TIFF *const file = TIFFOpen(QFile::encodeName(path).constData(), "w");
    if (file == nullptr) {
        return false;
    }
    constexpr std::array<quint8, 4> kVersion{ 1, 3, 0, 0 };
    constexpr quint16 kDaylight65 = 21;
    // From XYZ to the sensor: sRGB's own matrix, each row times what the sensor records of it.
    std::array<float, 9> matrix{ 3.2404542F, -1.5371385F, -0.4985314F, -0.9692660F, 1.8760108F,
                                 0.0415560F, 0.0556434F,  -0.2040259F, 1.0572252F };
    for (size_t i = 0; i < matrix.size(); ++i) {
        matrix[i] *= float(kSensitivity[i / 3]);
    }
    const std::array<float, 3> neutral{ float(picture.statedRed), 1.0F, float(picture.statedBlue) };
    const std::array<toff_t, 1> mosaicFollows{ 0 };
    if (picture.hasPreview) {
        TIFFSetField(file, TIFFTAG_SUBFILETYPE, FILETYPE_REDUCEDIMAGE);
        TIFFSetField(file, TIFFTAG_SUBIFD, int(mosaicFollows.size()), mosaicFollows.data());
    }
    TIFFSetField(file, TIFFTAG_ORIENTATION, picture.orientation);
    TIFFSetField(file, TIFFTAG_MAKE, "Testcam");
    TIFFSetField(file, TIFFTAG_MODEL, "Mosaic");
    TIFFSetField(file, TIFFTAG_UNIQUECAMERAMODEL, "Testcam Mosaic");
    TIFFSetField(file, TIFFTAG_DNGVERSION, kVersion.data());
    TIFFSetField(file, TIFFTAG_DNGBACKWARDVERSION, kVersion.data());
    TIFFSetField(file, TIFFTAG_CALIBRATIONILLUMINANT1, kDaylight65);
    TIFFSetField(file, TIFFTAG_COLORMATRIX1, int(matrix.size()), matrix.data());
    TIFFSetField(file, TIFFTAG_ASSHOTNEUTRAL, int(neutral.size()), neutral.data());
    const bool good
        = (!picture.hasPreview || writePreview(file, picture)) && writeMosaic(file, picture);
    TIFFClose(file);
    return good;
}
