// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/common/recordfile.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <new>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace PanoHead
{

namespace
{

class FileDescriptor
{
public:
    explicit FileDescriptor(const QString &path)
        // Opening some devices has side effects or waits; O_NONBLOCK avoids the waiting, and the
        // kind is checked before the first byte is read.
        : m_fd(::open(QFile::encodeName(path).constData(),
                      O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC))
    {
    }
    ~FileDescriptor()
    {
        if (m_fd >= 0) {
            ::close(m_fd);
        }
    }
    Q_DISABLE_COPY(FileDescriptor)

    [[nodiscard]] int get() const { return m_fd; }

private:
    int m_fd;
};

std::nullopt_t fail(ReadError *error, const QString &reason)
{
    if (error != nullptr) {
        *error = { reason, 0 };
    }
    return std::nullopt;
}

QString systemReason()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

/** At most \p size bytes: a file that grows or shrinks meanwhile does no harm. */
std::optional<QByteArray> readBytes(int fd, qint64 size)
{
    QByteArray bytes(static_cast<int>(size), Qt::Uninitialized);
    qint64 have = 0;
    while (have < size) {
        const ssize_t count = ::read(fd, bytes.data() + have, static_cast<size_t>(size - have));
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return std::nullopt;
        }
        if (count == 0) {
            break;
        }
        have += count;
    }
    bytes.truncate(static_cast<int>(have));
    return bytes;
}

/** Throws std::bad_alloc. */
std::optional<QByteArray> readWholeFile(const QString &path, ReadError *error)
{
    // A file name ends at a NUL for the system: never open something else than what is shown.
    if (path.isEmpty() || path.contains(QChar::Null)) {
        return fail(error, QStringLiteral("no such file"));
    }
    const FileDescriptor file(path);
    struct stat status = {};
    if (file.get() < 0 || ::fstat(file.get(), &status) != 0) {
        return fail(error, systemReason());
    }
    if (!S_ISREG(status.st_mode)) {
        return fail(error, QStringLiteral("not a regular file"));
    }
    if (status.st_size > kMaxRecordBytes) {
        return fail(error, QStringLiteral("larger than %1 MiB").arg(kMaxRecordBytes >> 20));
    }
    std::optional<QByteArray> bytes = readBytes(file.get(), status.st_size);
    return bytes ? bytes : fail(error, systemReason());
}

} // namespace

std::optional<QByteArray> readRecordFile(const QString &path, ReadError *error)
{
    try {
        return readWholeFile(path, error);
    } catch (const std::bad_alloc &) {
        return fail(error, QStringLiteral("not enough memory"));
    }
}

} // namespace PanoHead
