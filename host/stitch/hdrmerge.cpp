// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/stitch/hdrmerge.h"

#include "host/stitch/vipsfile.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <memory>
#include <vector>

#include <tiffio.h>

namespace PanoHost
{
namespace
{

constexpr int kColours = 3;
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

/** Rows of one photo as light from 0 to 1. */
class LevelRows
{
public:
    LevelRows(VipsFile file, bool isLinear)
        : m_file(std::move(file))
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
            copy(row, [from](int i) { return from[i]; });
            break;
        }
        }
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
            for (int colour = 0; colour < kColours; ++colour) {
                row[static_cast<size_t>(x) * kColours + static_cast<size_t>(colour)]
                    = get(x * bands + (bands < kColours ? 0 : colour));
            }
        }
    }

    VipsFile m_file;
    std::vector<float> m_table;
};

/** How far a value is from being clipped, from 1 to 0. */
double trust(float brightest)
{
    return std::clamp((kWhite - static_cast<double>(brightest)) / (kWhite - kNearlyWhite), 0.0,
                      1.0);
}

struct TiffCloser {
    void operator()(TIFF *file) const { TIFFClose(file); }
};
using TiffFile = std::unique_ptr<TIFF, TiffCloser>;

TiffFile floatTiff(const QString &path, const QSize &size)
{
    TIFFSetErrorHandler(nullptr);
    TIFFSetWarningHandler(nullptr);
    constexpr qint64 kMostOfClassic = 4'000'000'000;
    const qint64 bytes = static_cast<qint64>(size.width()) * size.height() * kColours * 4;
    TiffFile file(
        TIFFOpen(QFile::encodeName(path).constData(), bytes > kMostOfClassic ? "w8" : "w"));
    if (file != nullptr) {
        TIFFSetField(file.get(), TIFFTAG_IMAGEWIDTH, static_cast<uint32_t>(size.width()));
        TIFFSetField(file.get(), TIFFTAG_IMAGELENGTH, static_cast<uint32_t>(size.height()));
        TIFFSetField(file.get(), TIFFTAG_SAMPLESPERPIXEL, kColours);
        TIFFSetField(file.get(), TIFFTAG_BITSPERSAMPLE, 32);
        TIFFSetField(file.get(), TIFFTAG_SAMPLEFORMAT, SAMPLEFORMAT_IEEEFP);
        TIFFSetField(file.get(), TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
        TIFFSetField(file.get(), TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
        TIFFSetField(file.get(), TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
        TIFFSetField(file.get(), TIFFTAG_ROWSPERSTRIP, TIFFDefaultStripSize(file.get(), 0));
    }
    return file;
}

/** One bracket, row by row. */
class Merge
{
public:
    Merge(std::vector<LevelRows> levels, const QVector<HdrLevel> &wanted, const HdrCurve &curve)
        : m_levels(std::move(levels))
        , m_wanted(wanted)
        , m_curve(curve)
        , m_size(m_levels.front().file().size())
        , m_values(m_levels.size(),
                   std::vector<float>(static_cast<size_t>(m_size.width()) * kColours))
    {
        const auto *const shortest = std::max_element(
            wanted.cbegin(), wanted.cend(),
            [](const HdrLevel &a, const HdrLevel &b) { return a.gain < b.gain; });
        m_shortest = static_cast<size_t>(shortest - wanted.cbegin());
    }

    [[nodiscard]] QSize size() const { return m_size; }

    void row(int y, std::vector<float> &light)
    {
        for (size_t level = 0; level < m_levels.size(); ++level) {
            m_levels[level].read(y, m_values[level]);
        }
        for (int x = 0; x < m_size.width(); ++x) {
            pixel(x, y, &light[static_cast<size_t>(x) * kColours]);
        }
    }

private:
    void pixel(int x, int y, float *light) const
    {
        const auto at = static_cast<size_t>(x) * kColours;
        std::array<double, kColours> sum{};
        double gathered = 0.0;
        for (size_t level = 0; level < m_levels.size(); ++level) {
            const float *const value = &m_values[level][at];
            // What a level shows of the same light, and how exactly, goes with its exposure.
            const double weight = trust(std::max({ value[0], value[1], value[2] }));
            gathered += weight / m_wanted.at(static_cast<int>(level)).gain;
            for (size_t colour = 0; colour < kColours; ++colour) {
                sum[colour] += weight * static_cast<double>(value[colour]);
            }
        }
        const double inCorner = fallOff(x, y);
        const double shortestGain = m_wanted.at(static_cast<int>(m_shortest)).gain;
        for (size_t colour = 0; colour < kColours; ++colour) {
            const double found = gathered > 0.0
                ? sum[colour] / gathered
                : static_cast<double>(m_values[m_shortest][at + colour]) * shortestGain;
            light[colour] = static_cast<float>(found / inCorner);
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
    QSize m_size;
    std::vector<std::vector<float>> m_values; ///< one row of each level
    size_t m_shortest = 0;
};

Failure notWritten(const QString &path)
{
    return { ExitCode::ToolFailed, path, QStringLiteral("cannot be written"),
             QStringLiteral("is the disk full?") };
}

} // namespace

Result<QString> mergeLevels(const QVector<HdrLevel> &levels, const HdrCurve &curve,
                            const QString &tiffPath)
{
    std::vector<LevelRows> rows;
    for (const HdrLevel &level : levels) {
        Result<VipsFile> file = VipsFile::open(level.path);
        if (!file) {
            return file.error();
        }
        if (!rows.empty() && file.value().size() != rows.front().file().size()) {
            return Failure{ ExitCode::InputRefused,
                            level.path,
                            QStringLiteral("is of another size than the others of its bracket"),
                            {} };
        }
        rows.emplace_back(std::move(file).value(), curve.isLinear);
    }
    Merge merge(std::move(rows), levels, curve);
    const TiffFile out = floatTiff(tiffPath, merge.size());
    if (out == nullptr) {
        return notWritten(tiffPath);
    }
    std::vector<float> light(static_cast<size_t>(merge.size().width()) * kColours);
    for (int y = 0; y < merge.size().height(); ++y) {
        merge.row(y, light);
        if (TIFFWriteScanline(out.get(), light.data(), static_cast<uint32_t>(y), 0) < 0) {
            return notWritten(tiffPath);
        }
    }
    return TIFFFlush(out.get()) != 0 ? Result<QString>(tiffPath) : notWritten(tiffPath);
}

} // namespace PanoHost
