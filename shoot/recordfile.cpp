// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/recordfile.h"

#include "shoot/recordlimits.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstring>

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

QString tooLarge()
{
    return QStringLiteral("larger than %1 MiB").arg(kMaxRecordBytes >> 20);
}

/** To the end, which need not be where the file system expects it, but never far beyond the limit.
 */
std::optional<QByteArray> readToEnd(int fd, qint64 expected, ReadError *error)
{
    constexpr qint64 kLeastRoom = 64LL * 1024;
    constexpr qint64 kMostRoom = kMaxRecordBytes + kLeastRoom;
    QByteArray bytes(static_cast<int>(std::max(expected + 1, kLeastRoom)), Qt::Uninitialized);
    int have = 0;
    while (have <= kMaxRecordBytes) {
        if (have == bytes.size()) {
            bytes.resize(static_cast<int>(std::min(2LL * have, kMostRoom)));
        }
        const ssize_t count
            = ::read(fd, bytes.data() + have, static_cast<size_t>(bytes.size() - have));
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return fail(error, systemReason());
        }
        if (count == 0) {
            bytes.truncate(have);
            return bytes;
        }
        have += static_cast<int>(count);
    }
    return fail(error, tooLarge());
}

} // namespace

std::optional<QByteArray> readRecordFile(const QString &path, ReadError *error)
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
        return fail(error, tooLarge());
    }
    return readToEnd(file.get(), status.st_size, error);
}

} // namespace PanoHead
