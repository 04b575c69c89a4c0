// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDateTime>
#include <QFile>

#include <memory>

namespace PanoHost
{

/**
 * An open file as it was when it was opened: its size stays, and decoders read it instead of
 * mapping it, so that a file that others write to does no harm.
 */
class PhotoDevice final : public QIODevice
{
public:
    explicit PhotoDevice(std::unique_ptr<QFile> file);

    [[nodiscard]] qint64 size() const override { return m_size; }
    [[nodiscard]] QDateTime modified() const;
    bool seek(qint64 position) override;

    /** The bytes of the file, null when the system refuses; to be read under a `LostPageGuard`. */
    [[nodiscard]] uchar *map();
    bool unmap(uchar *mapped) { return m_file->unmap(mapped); }
    /** Whether all reads have succeeded so far. */
    [[nodiscard]] bool isSound() const { return m_file->error() == QFileDevice::NoError; }

protected:
    qint64 readData(char *bytes, qint64 most) override { return m_file->read(bytes, most); }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    std::unique_ptr<QFile> m_file;
    qint64 m_size;
};

} // namespace PanoHost
