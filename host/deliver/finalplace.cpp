// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/finalplace.h"

#include "host/model/safefile.h"
#include "host/model/said.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

namespace PanoHost
{
namespace
{

Failure notWritten(const QString &path, const QString &why, const QString &tryThis)
{
    return { ExitCode::ToolFailed, path, why, tryThis };
}

Failure cannotWrite(const QString &path, const QString &problem)
{
    return notWritten(path, Said::tr("cannot be written (%1)").arg(problem),
                      Said::tr("make room there or choose another place"));
}

Failure cannotWrite(const QString &path, int error)
{
    return cannotWrite(path, QString::fromLocal8Bit(std::strerror(error)));
}

/** Answers 0 or the system's reason. */
int renameTo(const QString &from, const QString &to, unsigned int flags = 0)
{
    return ::renameat2(AT_FDCWD, QFile::encodeName(from).constData(), AT_FDCWD,
                       QFile::encodeName(to).constData(), flags)
            == 0
        ? 0
        : errno;
}

/** Where a link leads to that ends at something. */
QString behindLinks(const QString &path)
{
    const QString real = QFileInfo(path).canonicalFilePath();
    return real.isEmpty() ? path : real;
}

/** Copies a file, or a folder with all that is in it. */
Result<QString> copyAll(const QString &from, const QString &to)
{
    const auto copyFile = [](const QString &source, const QString &target) {
        QFile file(source);
        return file.copy(target) ? QString() : file.errorString();
    };
    if (!QFileInfo(from).isDir()) {
        const QString problem = copyFile(from, to);
        return problem.isEmpty() ? Result<QString>(to) : cannotWrite(to, problem);
    }
    QDir target(to);
    target.mkpath(QStringLiteral("."));
    const QDir source(from);
    QDirIterator entries(from, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString entry = entries.next();
        const QString copy = target.filePath(source.relativeFilePath(entry));
        const QString problem = !entries.fileInfo().isDir() ? copyFile(entry, copy)
            : target.mkpath(copy)                           ? QString()
                                  : QString::fromLocal8Bit(std::strerror(errno));
        if (!problem.isEmpty()) {
            return cannotWrite(copy, problem);
        }
    }
    return to;
}

/** Gives \p part the name \p place; what is there is gone then. Answers 0 or the reason. */
int putInPlace(const QString &part, const QString &place)
{
    if (!QFileInfo(place).isDir()) {
        return renameTo(part, place);
    }
    // Both change their names at once; where the system cannot, the older one steps aside first.
    const QString older = place + QStringLiteral(".old");
    int error = renameTo(part, place, RENAME_EXCHANGE);
    if (error == 0) {
        QDir(part).removeRecursively();
        return 0;
    }
    if (error != EINVAL && error != ENOSYS) {
        return error;
    }
    error = renameTo(place, older, RENAME_NOREPLACE);
    if (error != 0) {
        return error;
    }
    error = renameTo(part, place);
    if (error != 0) {
        renameTo(older, place);
        return error;
    }
    QDir(older).removeRecursively();
    return 0;
}

/**
 * Sees to it that a file, or a folder with all that is in it, lies on the disk: what gets its name
 * before its content has no content after a power cut. Answers 0 or the reason.
 */
int sync(const QString &path)
{
    const bool isFolder = QFileInfo(path).isDir();
    const int file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NOCTTY | O_CLOEXEC);
    if (file < 0) {
        return errno;
    }
    const int error = (isFolder ? ::syncfs(file) : ::fsync(file)) == 0 ? 0 : errno;
    ::close(file);
    return error == EINVAL || error == ENOSYS ? 0 : error; // some file systems cannot be asked
}

Result<QString> moveTo(const QString &part, const QString &place, const QString &wanted)
{
    const QFileInfo info(place);
    if (!QFileInfo(info.absolutePath()).isDir()) {
        return notWritten(wanted, Said::tr("the folder %1 does not exist").arg(info.absolutePath()),
                          Said::tr("create it or choose another place"));
    }
    int error = sync(part);
    error = error == 0 ? putInPlace(part, place) : error;
    if (error == EXDEV) {
        // A folder of its own takes the copy with it when anything goes wrong.
        const QTemporaryDir beside(info.absoluteDir().filePath(QStringLiteral(".panohost-XXXXXX")));
        if (!beside.isValid()) {
            return cannotWrite(wanted, beside.errorString());
        }
        const QString copy = beside.filePath(QStringLiteral("copy"));
        if (const Result<QString> copied = copyAll(part, copy); !copied) {
            return cannotWrite(wanted, copied.error().why);
        }
        error = sync(copy);
        error = error == 0 ? putInPlace(copy, place) : error;
        if (error == 0) {
            QFileInfo(part).isDir() ? QDir(part).removeRecursively() : QFile::remove(part);
        }
    }
    return error == 0 ? Result<QString>(wanted) : cannotWrite(wanted, error);
}

} // namespace

Result<QString> moveFile(const QString &part, const QString &wanted)
{
    const Result<QString> place = checkFilePlace(wanted);
    return place ? moveTo(part, behindLinks(wanted), wanted) : place;
}

Result<QString> moveFolder(const QString &part, const QString &wanted)
{
    if (const Result<QString> place = checkFolderPlace(wanted); !place) {
        return place.error();
    }
    const Result<QString> mark = writeFileAtomically(
        QDir(part).filePath(folderMark()),
        "Made by panohost, which replaces this folder when it makes it again.\n");
    return mark ? moveTo(part, behindLinks(wanted), wanted) : mark;
}

Result<QString> checkFilePlace(const QString &wanted)
{
    const QFileInfo info(wanted);
    if (info.exists() && !info.isFile()) {
        return notWritten(
            wanted, info.isDir() ? Said::tr("is a folder") : Said::tr("is not a regular file"),
            Said::tr("remove it or choose another name with -o"));
    }
    return wanted;
}

Result<QString> checkFolderPlace(const QString &wanted)
{
    const QFileInfo info(wanted);
    if (!info.exists()) {
        return wanted;
    }
    if (!info.isDir()) {
        return notWritten(wanted, Said::tr("is a file, and a folder of that name is wanted"),
                          Said::tr("remove it or choose another name with -o"));
    }
    const QDir folder(wanted);
    if (folder.exists(folderMark())
        || (info.isReadable()
            && folder.isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System
                              | QDir::NoDotAndDotDot))) {
        return wanted;
    }
    return notWritten(wanted, Said::tr("is a folder that panohost has not made"),
                      Said::tr("remove it or choose another name with -o"));
}

QString folderMark()
{
    return QStringLiteral(".panohost");
}

} // namespace PanoHost
