// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/stitch/hdrmerge.h"

#include "host/model/said.h"
#include "host/stitch/tiffhandle.h"
#include "host/stitch/vipsfile.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <memory>
#include <vector>

namespace PanoHost
{
namespace
{

constexpr int kHdrColours = 3;
constexpr int kWithAlpha = 4;
/** From here on a value may be clipped, and there it is: between, it counts less and less. */
constexpr double kNearlyWhite = 0.8;
constexpr double kWhite = 0.97;

/** Linear light of the value \p v of a curve like sRGB's. */
double linearOfSrgb(double v)
{
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}

/** The light of every value that a sample of \p bits can have. */
std::vector<float> tableOf(int bits, bool isLinear)
{
    std::vector<float> table(size_t{ 1 } << bits);
    const auto most = static_cast<double>(table.size() - 1);
    for (size_t i = 0; i < table.size(); ++i) {
        const double v = static_cast<double>(i) / most;
        table[i] = static_cast<float>(isLinear ? v : linearOfSrgb(v));
    }
    return table;
}

/** Rows of one photo as light from 0 to 1; in a file of floats \p white is 1. */
class LevelRows
{
public:
    LevelRows(VipsFile file, bool isLinear, double white)
        : m_file(std::move(file))
        , m_white(static_cast<float>(white))
    {
        if (m_file.sample() != VipsFile::Sample::Float) {
            m_table = tableOf(m_file.sample() == VipsFile::Sample::Bits8 ? 8 : 16, isLinear);
        }
    }

    void read(int y, std::vector<float> &row) const
    {
        switch (m_file.sample()) {
        case VipsFile::Sample::Bits8:
            look(m_file.row<quint8>(y), row);
            break;
        case VipsFile::Sample::Bits16:
            look(m_file.row<quint16>(y), row);
            break;
        case VipsFile::Sample::Float: {
            const auto *const from = m_file.row<float>(y);
            copy(row, [this, from](int i) { return from[i] / m_white; });
            break;
        }
        }
    }
    /** Whether there is anything at \p x, \p y of a file of floats with alpha. */
    [[nodiscard]] bool shows(int x, int y) const
    {
        return m_file.row<float>(y)[x * kWithAlpha + kHdrColours] > 0.0F;
    }
    [[nodiscard]] const VipsFile &file() const { return m_file; }

private:
    template <typename T> void look(const T *from, std::vector<float> &row) const
    {
        copy(row, [this, from](int i) { return m_table[from[i]]; });
    }
    template <typename Get> void copy(std::vector<float> &row, const Get &get) const
    {
        const int bands = m_file.bands();
        for (int x = 0; x < m_file.size().width(); ++x) {
            for (int colour = 0; colour < kHdrColours; ++colour) {
                row[static_cast<size_t>(x) * kHdrColours + static_cast<size_t>(colour)]
                    = get(x * bands + (bands < kHdrColours ? 0 : colour));
            }
        }
    }

    VipsFile m_file;
    float m_white;
    std::vector<float> m_table;
};

/** How far a value is from being clipped, from 1 to 0. */
double trust(float brightest)
{
    return std::clamp((kWhite - static_cast<double>(brightest)) / (kWhite - kNearlyWhite), 0.0,
                      1.0);
}

TiffHandle floatTiff(const QString &path, const QSize &size, int bands)
{
    TIFFSetErrorHandler(nullptr);
    TIFFSetWarningHandler(nullptr);
    constexpr qint64 kMostOfClassic = 4'000'000'000;
    const qint64 bytes = static_cast<qint64>(size.width()) * size.height() * bands * 4;
    TiffHandle file(
        TIFFOpen(QFile::encodeName(path).constData(), bytes > kMostOfClassic ? "w8" : "w"));
    if (file != nullptr) {
        TIFFSetField(file.get(), TIFFTAG_IMAGEWIDTH, static_cast<uint32_t>(size.width()));
        TIFFSetField(file.get(), TIFFTAG_IMAGELENGTH, static_cast<uint32_t>(size.height()));
        TIFFSetField(file.get(), TIFFTAG_SAMPLESPERPIXEL, bands);
        TIFFSetField(file.get(), TIFFTAG_BITSPERSAMPLE, 32);
        TIFFSetField(file.get(), TIFFTAG_SAMPLEFORMAT, SAMPLEFORMAT_IEEEFP);
        TIFFSetField(file.get(), TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
        TIFFSetField(file.get(), TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
        TIFFSetField(file.get(), TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
        TIFFSetField(file.get(), TIFFTAG_ROWSPERSTRIP, TIFFDefaultStripSize(file.get(), 0));
    }
    return file;
}

/** Says as nona does where on its canvas a picture with alpha lies. */
void placeOnCanvas(TIFF *file, const QPoint &corner, const QSize &canvas)
{
    constexpr double kPerInch = 150.0;
    const uint16_t alpha = EXTRASAMPLE_UNASSALPHA;
    TIFFSetField(file, TIFFTAG_EXTRASAMPLES, 1, &alpha);
    TIFFSetField(file, TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH);
    TIFFSetField(file, TIFFTAG_XRESOLUTION, kPerInch);
    TIFFSetField(file, TIFFTAG_YRESOLUTION, kPerInch);
    TIFFSetField(file, TIFFTAG_XPOSITION, corner.x() / kPerInch);
    TIFFSetField(file, TIFFTAG_YPOSITION, corner.y() / kPerInch);
    TIFFSetField(file, TIFFTAG_PIXAR_IMAGEFULLWIDTH, static_cast<uint32_t>(canvas.width()));
    TIFFSetField(file, TIFFTAG_PIXAR_IMAGEFULLLENGTH, static_cast<uint32_t>(canvas.height()));
}

/** One bracket, row by row. */
class Merge
{
public:
    /** Photos give \p bands of light, warped ones alpha too. */
    Merge(std::vector<LevelRows> levels, const QVector<HdrLevel> &wanted, const HdrCurve &curve,
          int bands)
        : m_levels(std::move(levels))
        , m_wanted(wanted)
        , m_curve(curve)
        , m_bands(bands)
        , m_size(m_levels.front().file().size())
        , m_values(m_levels.size(),
                   std::vector<float>(static_cast<size_t>(m_size.width()) * kHdrColours))
    {
    }

    [[nodiscard]] QSize size() const { return m_size; }

    void row(int y, std::vector<float> &light)
    {
        for (size_t level = 0; level < m_levels.size(); ++level) {
            m_levels[level].read(y, m_values[level]);
        }
        for (int x = 0; x < m_size.width(); ++x) {
            pixel(x, y, &light[static_cast<size_t>(x) * static_cast<size_t>(m_bands)]);
        }
    }

private:
    void pixel(int x, int y, float *light) const
    {
        const auto at = static_cast<size_t>(x) * kHdrColours;
        std::array<double, kHdrColours> sum{};
        double gathered = 0.0;
        std::array<double, kHdrColours> ofShortest{};
        double shortestGain = 0.0; // nothing seen
        for (size_t level = 0; level < m_levels.size(); ++level) {
            if (m_bands == kWithAlpha && !m_levels[level].shows(x, y)) {
                continue;
            }
            const float *const value = &m_values[level][at];
            const double gain = m_wanted.at(static_cast<int>(level)).gain;
            // What a level shows of the same light, and how exactly, goes with its exposure.
            const double weight = trust(std::max({ value[0], value[1], value[2] }));
            gathered += weight / gain;
            for (size_t colour = 0; colour < kHdrColours; ++colour) {
                sum[colour] += weight * static_cast<double>(value[colour]);
            }
            if (gain > shortestGain) {
                shortestGain = gain;
                std::copy_n(value, kHdrColours, ofShortest.begin());
            }
        }
        const double inCorner = fallOff(x, y);
        for (size_t colour = 0; colour < kHdrColours; ++colour) {
            const double found
                = gathered > 0.0 ? sum[colour] / gathered : ofShortest[colour] * shortestGain;
            light[colour] = static_cast<float>(found / inCorner);
        }
        if (m_bands == kWithAlpha) {
            light[kHdrColours] = shortestGain > 0.0 ? 1.0F : 0.0F;
        }
    }

    /** How much of the light of the middle arrives here. */
    [[nodiscard]] double fallOff(int x, int y) const
    {
        const double dx = x - (m_size.width() - 1) / 2.0;
        const double dy = y - (m_size.height() - 1) / 2.0;
        const double r2 = 4.0 * (dx * dx + dy * dy)
            / (static_cast<double>(m_size.width()) * m_size.width()
               + static_cast<double>(m_size.height()) * m_size.height());
        const Vignetting &v = m_curve.vignetting;
        constexpr double kLeast = 0.01;
        return std::max(1.0 + r2 * (v.b + r2 * (v.c + r2 * v.d)), kLeast);
    }

    std::vector<LevelRows> m_levels;
    const QVector<HdrLevel> &m_wanted;
    const HdrCurve &m_curve;
    int m_bands;
    QSize m_size;
    std::vector<std::vector<float>> m_values; ///< one row of each level
};

Failure notWritten(const QString &path)
{
    return { ExitCode::ToolFailed, path, Said::tr("cannot be written"),
             Said::tr("is the disk full?") };
}

Result<VipsFile> openLevel(const HdrLevel &level, const std::vector<LevelRows> &others)
{
    Result<VipsFile> file = VipsFile::open(level.path);
    if (file && !others.empty() && file.value().size() != others.front().file().size()) {
        return Failure{ ExitCode::InputRefused,
                        level.path,
                        Said::tr("is of another size than the others of its bracket"),
                        {} };
    }
    return file;
}

Result<QString> write(Merge &merge, int bands, TIFF *out, const QString &path)
{
    if (out == nullptr) {
        return notWritten(path);
    }
    std::vector<float> light(static_cast<size_t>(merge.size().width())
                             * static_cast<size_t>(bands));
    for (int y = 0; y < merge.size().height(); ++y) {
        merge.row(y, light);
        if (TIFFWriteScanline(out, light.data(), static_cast<uint32_t>(y), 0) < 0) {
            return notWritten(path);
        }
    }
    return TIFFFlush(out) != 0 ? Result<QString>(path) : notWritten(path);
}

} // namespace

Result<QString> mergeLevels(const QVector<HdrLevel> &levels, const HdrCurve &curve,
                            const QString &tiffPath)
{
    std::vector<LevelRows> rows;
    for (const HdrLevel &level : levels) {
        Result<VipsFile> file = openLevel(level, rows);
        if (!file) {
            return file.error();
        }
        rows.emplace_back(std::move(file).value(), curve.isLinear, 1.0);
    }
    Merge merge(std::move(rows), levels, curve, kHdrColours);
    const TiffHandle out = floatTiff(tiffPath, merge.size(), kHdrColours);
    return write(merge, kHdrColours, out.get(), tiffPath);
}

Result<QString> mergeWarped(const QVector<HdrLevel> &levels, const QRect &place,
                            const QSize &canvas, const QString &tiffPath)
{
    std::vector<LevelRows> rows;
    for (const HdrLevel &level : levels) {
        Result<VipsFile> file = openLevel(level, rows);
        if (!file) {
            return file.error();
        }
        const VipsFile &picture = file.value();
        if (picture.size() != place.size() || picture.bands() != kWithAlpha
            || picture.sample() != VipsFile::Sample::Float) {
            return Failure{ ExitCode::ToolFailed, level.path, Said::tr("is no warped light"), {} };
        }
        rows.emplace_back(std::move(file).value(), true, level.gain);
    }
    const HdrCurve light{ true, {} };
    Merge merge(std::move(rows), levels, light, kWithAlpha);
    const TiffHandle out = floatTiff(tiffPath, place.size(), kWithAlpha);
    if (out != nullptr) {
        placeOnCanvas(out.get(), place.topLeft(), canvas);
    }
    return write(merge, kWithAlpha, out.get(), tiffPath);
}

} // namespace PanoHost
