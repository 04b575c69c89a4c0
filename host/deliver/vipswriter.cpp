// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/vipswriter.h"

#include "host/model/safefile.h"
#include "host/model/said.h"

#include <array>

namespace PanoHost
{
namespace
{

/** libvips' numbers for a kind of sample, and for what the samples mean. */
struct Format {
    qint32 sample;
    qint32 meaning;
};

Format formatOf(StitchedPicture::Depth depth)
{
    switch (depth) {
    case StitchedPicture::Depth::Bits8:
        return { 0, 22 }; // sRGB
    case StitchedPicture::Depth::Bits16:
        return { 2, 25 }; // the same in 16 bits
    case StitchedPicture::Depth::Radiance:
        break;
    }
    return { 6, 28 }; // linear, sRGB's primaries
}

QByteArray field(const char *name, const QByteArray &content)
{
    return content.isEmpty() ? QByteArray()
                             : R"(    <field type="VipsBlob" name=")" + QByteArray(name) + R"(">)"
            + content.toBase64() + "</field>\n";
}

} // namespace

VipsWriter::VipsWriter(const QString &path, const QSize &size, StitchedPicture::Depth depth)
    : m_file(path)
{
    constexpr qint32 kMagic = 0x08f2a6b6;
    constexpr qint32 kOne = 0x3f800000; // 1.0, pixels in a millimetre
    constexpr int kBands = 4;
    const Format format = formatOf(depth);
    // Magic, width, height, bands, unused, sample, coding, meaning, resolutions, and zeros.
    const std::array<qint32, 16> header{
        kMagic, size.width(), size.height(), kBands, 0, format.sample, 0, format.meaning, kOne, kOne
    };
    m_isSound = m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    add(QByteArray(reinterpret_cast<const char *>(header.data()), sizeof header));
}

void VipsWriter::add(const QByteArray &rows)
{
    m_isSound = m_isSound && writeAll(m_file, rows);
}

Result<QString> VipsWriter::finish(const QByteArray &xmp, const QByteArray &iccProfile)
{
    const QByteArray fields = field("xmp-data", xmp) + field("icc-profile-data", iccProfile);
    if (!fields.isEmpty()) {
        add("<?xml version=\"1.0\"?>\n<root "
            "xmlns=\"http://www.vips.ecs.soton.ac.uk/vips/8.14.1\">\n"
            "  <header>\n  </header>\n  <meta>\n"
            + fields + "  </meta>\n</root>\n");
    }
    if (m_isSound) {
        m_file.close();
        return m_file.fileName();
    }
    return Failure{ ExitCode::ToolFailed, m_file.fileName(),
                    Said::tr("cannot be written (%1)").arg(m_file.errorString()),
                    Said::tr("make room there and try again") };
}

} // namespace PanoHost
