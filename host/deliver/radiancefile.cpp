// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/radiancefile.h"

#include "host/model/parallel.h"
#include "host/model/photoexif.h"
#include "host/model/safefile.h"
#include "host/model/said.h"

#include <QFile>

#include <OpenEXR/ImfChannelList.h>
#include <OpenEXR/ImfFrameBuffer.h>
#include <OpenEXR/ImfHeader.h>
#include <OpenEXR/ImfIO.h>
#include <OpenEXR/ImfOutputFile.h>
#include <OpenEXR/ImfStandardAttributes.h>
#include <OpenEXR/ImfStringAttribute.h>
#include <OpenEXR/ImfThreading.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>
#include <vector>

namespace PanoHost
{
namespace
{

constexpr int kPixelBands = 4;

/** Keeps in mind what went wrong: the library closes a file without a word. */
class ExrStream final : public Imf::OStream
{
public:
    explicit ExrStream(QFile &file)
        : Imf::OStream("panorama")
        , m_file(file)
    {
    }
    void write(const char bytes[], int count) override
    {
        if (!writeAll(m_file, QByteArray::fromRawData(bytes, count))) {
            keepProblem();
            throw std::runtime_error("not written");
        }
    }
    uint64_t tellp() override { return static_cast<uint64_t>(m_file.pos()); }
    void seekp(uint64_t position) override
    {
        if (!m_file.seek(static_cast<qint64>(position))) {
            keepProblem();
        }
    }
    /** What went wrong first; empty: nothing. */
    [[nodiscard]] QString problem() const { return m_problem; }

private:
    void keepProblem()
    {
        if (m_problem.isEmpty()) {
            m_problem = m_file.errorString();
        }
    }

    QFile &m_file;
    QString m_problem;
};

Failure notWritten(const QString &path, const QString &problem)
{
    return { ExitCode::ToolFailed, path, Said::tr("cannot be written (%1)").arg(problem),
             Said::tr("make room there and try again") };
}

/** Some rows at a time, whose memory is bounded. */
class Band
{
public:
    explicit Band(const RadiancePicture &picture)
        : m_picture(picture)
        , m_rowValues(static_cast<size_t>(picture.size.width()) * kPixelBands)
        , m_rows(static_cast<int>(std::clamp<size_t>(kValues / m_rowValues, 1, kMostRows)))
        , m_pixels(m_rowValues * static_cast<size_t>(m_rows))
    {
    }

    /** Fills itself from row \p first on; how many rows that are. */
    int fill(int first)
    {
        const int rows = std::min(m_rows, m_picture.size.height() - first);
        forEachRow(rows, [&](int row) { m_picture.row(first + row, at(row)); });
        return rows;
    }
    [[nodiscard]] float *at(int row)
    {
        return m_pixels.data() + static_cast<size_t>(row) * m_rowValues;
    }

private:
    static constexpr size_t kValues = 16 << 20;
    static constexpr size_t kMostRows = 256;

    const RadiancePicture &m_picture;
    size_t m_rowValues;
    int m_rows;
    std::vector<float> m_pixels;
};

Imf::Header exrHeader(const RadiancePicture &picture, const PictureOrigin &origin)
{
    Imf::Header header(picture.size.width(), picture.size.height());
    header.compression() = Imf::ZIP_COMPRESSION;
    for (const char *const channel : { "R", "G", "B", "A" }) {
        header.channels().insert(channel, Imf::Channel(Imf::FLOAT));
    }
    header.insert("software", Imf::StringAttribute(kOwnSoftware));
    Imf::addChromaticities(header, Imf::Chromaticities()); // the library's own are sRGB's
    if (picture.isSphere) {
        Imf::addEnvmap(header, Imf::ENVMAP_LATLONG);
    }
    if (origin.taken.isValid()) {
        Imf::addCapDate(header,
                        origin.taken.toString(QStringLiteral("yyyy:MM:dd HH:mm:ss")).toStdString());
        if (origin.taken.timeSpec() == Qt::OffsetFromUTC) {
            // What is to be added to the local time.
            Imf::addUtcOffset(header, static_cast<float>(-origin.taken.offsetFromUtc()));
        }
    }
    if (origin.place) {
        Imf::addLatitude(header, static_cast<float>(origin.place->latitudeDegrees));
        Imf::addLongitude(header, static_cast<float>(origin.place->longitudeDegrees));
        if (origin.place->altitudeMetres) {
            Imf::addAltitude(header, static_cast<float>(*origin.place->altitudeMetres));
        }
    }
    const QString owner = origin.copyright.isEmpty() ? origin.author : origin.copyright;
    if (!owner.isEmpty()) {
        Imf::addOwner(header, owner.toStdString());
    }
    return header;
}

/** Red, green and blue of \p pixel with a common exponent. */
std::array<char, kPixelBands> sharedExponent(const float *pixel)
{
    constexpr float kSmallest = 1e-32F;
    static constexpr float kLargest = 1e38F;
    constexpr int kBias = 128;
    std::array<float, 3> light{};
    // What is no number is dark.
    std::transform(pixel, pixel + 3, light.begin(),
                   [](float value) { return value > 0.0F ? std::min(value, kLargest) : 0.0F; });
    const float brightest = *std::max_element(light.begin(), light.end());
    if (brightest < kSmallest) {
        return {};
    }
    int exponent = 0;
    std::frexp(brightest, &exponent);
    std::array<char, kPixelBands> bytes{};
    std::transform(light.begin(), light.end(), bytes.begin(), [exponent](float value) {
        return static_cast<char>(static_cast<int>(std::ldexp(value, 8 - exponent)));
    });
    bytes[3] = static_cast<char>(exponent + kBias);
    return bytes;
}

} // namespace

Result<QString> saveExr(const RadiancePicture &picture, const PictureOrigin &origin,
                        const QString &path, const JobWatch &watch)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        return notWritten(path, file.errorString());
    }
    ExrStream stream(file);
    try {
        Imf::setGlobalThreadCount(threadCount(0));
        Imf::OutputFile exr(stream, exrHeader(picture, origin));
        Band band(picture);
        const size_t pixelBytes = kPixelBands * sizeof(float);
        const size_t rowBytes = pixelBytes * static_cast<size_t>(picture.size.width());
        for (int first = 0; first < picture.size.height();) {
            if (watch.stopWanted()) {
                return interruption();
            }
            const int rows = band.fill(first);
            // Its addresses count from the first row of the picture.
            char *const base
                = reinterpret_cast<char *>(band.at(0)) - static_cast<ptrdiff_t>(rowBytes) * first;
            Imf::FrameBuffer buffer;
            int at = 0;
            for (const char *const channel : { "R", "G", "B", "A" }) {
                buffer.insert(channel,
                              Imf::Slice(Imf::FLOAT, base + sizeof(float) * static_cast<size_t>(at),
                                         pixelBytes, rowBytes));
                ++at;
            }
            exr.setFrameBuffer(buffer);
            exr.writePixels(rows);
            first += rows;
        }
    } catch (const std::exception &problem) {
        return notWritten(path,
                          stream.problem().isEmpty() ? QString::fromLocal8Bit(problem.what())
                                                     : stream.problem());
    }
    return stream.problem().isEmpty() ? Result<QString>(path) : notWritten(path, stream.problem());
}

Result<QString> saveHdr(const RadiancePicture &picture, const QString &path, const JobWatch &watch)
{
    QFile file(path);
    const QByteArray header = "#?RADIANCE\nSOFTWARE=" + QByteArray(kOwnSoftware)
        + "\nFORMAT=32-bit_rle_rgbe\n\n-Y " + QByteArray::number(picture.size.height()) + " +X "
        + QByteArray::number(picture.size.width()) + '\n';
    bool isSound
        = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && writeAll(file, header);
    Band band(picture);
    for (int first = 0; isSound && first < picture.size.height();) {
        if (watch.stopWanted()) {
            return interruption();
        }
        const int rows = band.fill(first);
        for (int row = 0; row < rows; ++row) {
            QByteArray bytes;
            for (int x = 0; x < picture.size.width(); ++x) {
                const auto pixel
                    = sharedExponent(band.at(row) + static_cast<ptrdiff_t>(x) * kPixelBands);
                bytes.append(pixel.data(), kPixelBands);
            }
            isSound = isSound && writeAll(file, bytes);
        }
        first += rows;
    }
    return isSound ? Result<QString>(path) : notWritten(path, file.errorString());
}

} // namespace PanoHost
