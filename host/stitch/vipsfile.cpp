// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/stitch/vipsfile.h"

#include "host/model/said.h"

#include <QSysInfo>

#include <array>
#include <cstring>

namespace PanoHost
{
namespace
{

constexpr qint64 kHeaderBytes = 64;
/** The first four bytes of files in the byte order of Intel, as a number of that order. */
constexpr qint32 kMagic = 0x08f2a6b6;

Failure unfit(const QString &path, const QString &why)
{
    return { ExitCode::ToolFailed, path, why,
             Said::tr("was the disk full? remove the file and try again") };
}

/** Bytes of a sample of the format with this number; 0: another kind of number. */
int bytesOf(qint32 format, VipsFile::Sample &sample)
{
    switch (format) {
    case 0:
        sample = VipsFile::Sample::Bits8;
        return 1;
    case 2:
        sample = VipsFile::Sample::Bits16;
        return 2;
    case 6:
        sample = VipsFile::Sample::Float;
        return 4;
    default:
        return 0;
    }
}

} // namespace

Result<VipsFile> VipsFile::open(const QString &path)
{
    VipsFile file;
    file.m_file = std::make_unique<QFile>(path);
    std::array<qint32, kHeaderBytes / sizeof(qint32)> header{};
    if (!file.m_file->open(QIODevice::ReadOnly)
        || file.m_file->read(reinterpret_cast<char *>(header.data()), kHeaderBytes)
            != kHeaderBytes) {
        return unfit(path, Said::tr("cannot be read"));
    }
    // Magic, width, height, bands, unused, format.
    file.m_size = QSize(header[1], header[2]);
    file.m_bands = header[3];
    const int sampleBytes = bytesOf(header[5], file.m_sample);
    constexpr int kMostBands = 64;
    if (header[0] != kMagic || sampleBytes == 0 || file.m_size.isEmpty() || file.m_bands < 1
        || file.m_bands > kMostBands) {
        return unfit(path, Said::tr("is no picture of 8, 16 or floating bits"));
    }
    file.m_rowBytes = static_cast<qint64>(file.m_size.width()) * file.m_bands * sampleBytes;
    // Rows that are there; a header may promise more bytes than a number holds.
    if ((file.m_file->size() - kHeaderBytes) / file.m_rowBytes < file.m_size.height()) {
        return unfit(path, Said::tr("is cut off"));
    }
    const qint64 bytes = file.m_rowBytes * file.m_size.height();
    const uchar *const mapped = file.m_file->map(0, kHeaderBytes + bytes);
    if (mapped == nullptr) {
        return unfit(path, Said::tr("cannot be mapped into memory"));
    }
    file.m_pixels = mapped + kHeaderBytes;
    return file;
}

} // namespace PanoHost
