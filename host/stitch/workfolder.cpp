// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/stitch/workfolder.h"

#include "host/model/safefile.h"
#include "host/model/said.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>

#include <algorithm>

namespace PanoHost
{
namespace
{

const QString kKeySuffix = QStringLiteral(".key");

/** What \p path was made of, and its size: a power cut can leave the name without the content. */
QByteArray keyOf(const QByteArray &source, const QString &path)
{
    const QFileInfo file(path);
    return QCryptographicHash::hash(source, QCryptographicHash::Sha256).toHex() + ' '
        + QByteArray::number(file.isDir() ? 0 : file.size());
}

Failure notWritable(const QString &path)
{
    return { ExitCode::ToolFailed, path, Said::tr("cannot be written"),
             Said::tr("is the disk full, or the folder read-only?") };
}

bool removeAll(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists() && !file.isSymLink()) {
        return true;
    }
    return file.isDir() && !file.isSymLink() ? QDir(path).removeRecursively() : QFile::remove(path);
}

/** Removes \p part, and what tools have left beside it under names that begin or end like its. */
bool removeParts(const QString &part)
{
    const QFileInfo file(part);
    const QStringList left
        = file.dir().entryList({ QLatin1Char('*') + file.completeBaseName() + QLatin1Char('*') },
                               QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    return std::all_of(left.begin(), left.end(), [&file](const QString &name) {
        return removeAll(file.dir().filePath(name));
    });
}

/** Of a lock that a power cut has left empty nobody can tell whose it was. */
bool takeLock(QLockFile &lock)
{
    if (lock.tryLock()) {
        return true;
    }
    qint64 process = 0;
    QString host;
    QString program;
    return lock.error() == QLockFile::LockFailedError
        && !lock.getLockInfo(&process, &host, &program)
        && lock.removeStaleLockFile() // whoever lives holds it besides
        && lock.tryLock();
}

QString lockedBy(QLockFile &lock)
{
    qint64 process = 0;
    QString host;
    QString program;
    return lock.getLockInfo(&process, &host, &program)
        ? Said::tr("%1, process %2 on %3").arg(program, QString::number(process), host)
        : Said::tr("another program");
}

} // namespace

WorkFolder::WorkFolder(QString path)
    : m_path(std::move(path))
    , m_lock(std::make_unique<QLockFile>(QDir(m_path).filePath(QStringLiteral("lock"))))
{
    m_lock->setStaleLockTime(0); // a long stitch is not stale; a process that is gone is
}

WorkFolder::WorkFolder(WorkFolder &&other) noexcept = default;
WorkFolder &WorkFolder::operator=(WorkFolder &&other) noexcept = default;
WorkFolder::~WorkFolder() = default;

Result<WorkFolder> WorkFolder::open(const QString &path)
{
    if (!QDir().mkpath(path)) {
        const QString why = Said::tr("this folder cannot be made");
        return QFileInfo::exists(path)
            ? Failure{ ExitCode::InputRefused, path, why,
                       Said::tr("there is a file of that name: rename it, or choose another "
                                "name with -o") }
            : Failure{ ExitCode::ToolFailed, path, why,
                       Said::tr("is the disk full, or the folder above it read-only?") };
    }
    WorkFolder folder(QDir(path).absolutePath());
    if (takeLock(*folder.m_lock)) {
        return folder;
    }
    if (folder.m_lock->error() == QLockFile::LockFailedError) {
        return Failure{ ExitCode::InputRefused, path,
                        Said::tr("is in use by %1").arg(lockedBy(*folder.m_lock)),
                        Said::tr("wait for it to end, or choose another name with -o") };
    }
    return notWritable(path);
}

QString WorkFolder::path(const QString &name) const
{
    return QDir(m_path).filePath(name);
}

bool WorkFolder::has(const QString &name, const QByteArray &source) const
{
    constexpr qint64 kMostKeyBytes = 128;
    const QString wanted = path(name);
    const Result<QByteArray> key = readRegularFile(wanted + kKeySuffix, kMostKeyBytes);
    return key && QFileInfo::exists(wanted) && key.value() == keyOf(source, wanted);
}

Result<QString> WorkFolder::make(const QString &name, const QByteArray &source,
                                 const Maker &maker) const
{
    const QString wanted = path(name);
    if (has(name, source)) {
        return wanted;
    }
    const QFileInfo file(wanted);
    // The same ending: programs go by it.
    const QString part = file.dir().filePath(QStringLiteral("part-") + file.fileName());
    if (!QDir().mkpath(file.path()) || !removeAll(wanted + kKeySuffix) || !removeParts(part)) {
        return notWritable(file.path());
    }
    if (const Result<QString> made = maker(part); !made) {
        removeParts(part);
        return made.error();
    }
    if (!removeAll(wanted) || !QFile::rename(part, wanted)) {
        return notWritable(wanted);
    }
    if (const Result<QString> key = writeFileAtomically(wanted + kKeySuffix, keyOf(source, wanted));
        !key) {
        return key.error();
    }
    return wanted;
}

QByteArray stampOf(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() ? QByteArray::number(file.size()) + ' '
            + QByteArray::number(file.lastModified().toMSecsSinceEpoch())
                         : QByteArray();
}

} // namespace PanoHost
