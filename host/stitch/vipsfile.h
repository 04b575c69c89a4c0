// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/result.h"

#include <QFile>
#include <QSize>
#include <QString>

#include <memory>

namespace PanoHost
{

/**
 * A picture in libvips' own format, mapped into memory: 64 bytes of header, then the rows of
 * pixels, bands side by side, in the byte order of the machine.
 */
class VipsFile
{
public:
    enum class Sample { Bits8, Bits16, Float };

    /** Refuses what is no such file, of another byte order or kind of number, or cut off. */
    [[nodiscard]] static Result<VipsFile> open(const QString &path);

    [[nodiscard]] QSize size() const { return m_size; }
    [[nodiscard]] int bands() const { return m_bands; }
    [[nodiscard]] Sample sample() const { return m_sample; }
    /** Where row \p y begins: size().width() * bands() samples. */
    template <typename T> [[nodiscard]] const T *row(int y) const
    {
        return reinterpret_cast<const T *>(m_pixels + static_cast<qint64>(y) * m_rowBytes);
    }

private:
    VipsFile() = default;

    std::unique_ptr<QFile> m_file;
    const uchar *m_pixels = nullptr;
    qint64 m_rowBytes = 0;
    QSize m_size;
    int m_bands = 0;
    Sample m_sample = Sample::Bits8;
};

} // namespace PanoHost
