// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/safefile.h"

#include "host/model/said.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace PanoHost
{

namespace
{

QString systemError(int number)
{
    return QString::fromLocal8Bit(std::strerror(number));
}

Failure notWritten(const QString &path, const QString &why, const QString &tryThis)
{
    return { ExitCode::ToolFailed, path, why, tryThis };
}

} // namespace

Result<std::unique_ptr<QFile>> openRegularFile(const QString &path)
{
    if (path.contains(QChar::Null)) {
        // The system would read the name up to there and open another file.
        return refused(path, Said::tr("no such file"));
    }
    const int fd
        = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (fd < 0) {
        return errno == ENOENT ? refused(path, Said::tr("no such file"))
                               : refused(path, systemError(errno));
    }
    struct stat status = {};
    if (::fstat(fd, &status) != 0 || !S_ISREG(status.st_mode)) {
        const bool folder = S_ISDIR(status.st_mode);
        ::close(fd);
        return refused(path, folder ? Said::tr("is a folder") : Said::tr("is not a regular file"));
    }
    auto file = std::make_unique<QFile>(path);
    if (!file->open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(fd);
        return refused(path, file->errorString());
    }
    return file;
}

Result<QByteArray> readRegularFile(const QString &path, qint64 maxBytes)
{
    auto opened = openRegularFile(path);
    if (!opened) {
        return opened.error();
    }
    QFile &file = *opened.value();
    // Some regular files (in /proc, say) grow while they are read: the bound holds for what comes.
    const QByteArray content = file.read(maxBytes + 1);
    if (file.error() != QFileDevice::NoError) {
        return refused(path, file.errorString());
    }
    if (content.size() > maxBytes) {
        return refused(path, Said::tr("larger than %1 bytes").arg(maxBytes));
    }
    return content;
}

bool writeAll(QFileDevice &file, const QByteArray &content)
{
    int done = 0;
    while (done < content.size()) {
        const qint64 written = file.write(content.constData() + done, content.size() - done);
        if (written <= 0) {
            return false;
        }
        done += static_cast<int>(written);
    }
    return true;
}

Result<QString> writeFileAtomically(const QString &path, const QByteArray &content)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) {
        // Replacing a pipe or a device by a file would break whoever uses it.
        return notWritten(
            path, info.isDir() ? Said::tr("is a folder") : Said::tr("is not a regular file"),
            Said::tr("give the name of a file"));
    }
    const QString folder = info.absolutePath();
    if (!QFileInfo(folder).isDir()) {
        return notWritten(path, Said::tr("the folder %1 does not exist").arg(folder),
                          Said::tr("create it or choose another place"));
    }
    QSaveFile file(path);
    // Without this the file would be written in place where the folder takes no temporary file.
    file.setDirectWriteFallback(false);
    // Unbuffered, so that a full disk is named as the reason.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !writeAll(file, content)
        || !file.commit()) {
        return notWritten(path, Said::tr("cannot be written (%1)").arg(file.errorString()),
                          Said::tr("make room there or choose another place"));
    }
    return path;
}

} // namespace PanoHost
