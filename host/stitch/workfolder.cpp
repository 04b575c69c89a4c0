// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/stitch/workfolder.h"

#include "host/model/safefile.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>

namespace PanoHost
{
namespace
{

const QString kKeySuffix = QStringLiteral(".key");

QByteArray keyOf(const QByteArray &source)
{
    return QCryptographicHash::hash(source, QCryptographicHash::Sha256).toHex();
}

Failure notWritable(const QString &path)
{
    return { ExitCode::ToolFailed, path, QStringLiteral("cannot be written"),
             QStringLiteral("is the disk full, or the folder read-only?") };
}

bool removeAll(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists() && !file.isSymLink()) {
        return true;
    }
    return file.isDir() && !file.isSymLink() ? QDir(path).removeRecursively() : QFile::remove(path);
}

QString lockedBy(QLockFile &lock)
{
    qint64 process = 0;
    QString host;
    QString program;
    return lock.getLockInfo(&process, &host, &program)
        ? QStringLiteral("%1, process %2 on %3").arg(program, QString::number(process), host)
        : QStringLiteral("another program");
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
        return Failure{ ExitCode::ToolFailed, path, QStringLiteral("this folder cannot be made"),
                        QStringLiteral("is there a file of that name, or no right to write?") };
    }
    WorkFolder folder(QDir(path).absolutePath());
    if (folder.m_lock->tryLock()) {
        return folder;
    }
    if (folder.m_lock->error() == QLockFile::LockFailedError) {
        return Failure{ ExitCode::InputRefused, path,
                        QStringLiteral("is in use by %1").arg(lockedBy(*folder.m_lock)),
                        QStringLiteral("wait for it to end, or choose another name with -o") };
    }
    return notWritable(path);
}

QString WorkFolder::path(const QString &name) const
{
    return QDir(m_path).filePath(name);
}

bool WorkFolder::has(const QString &name, const QByteArray &source) const
{
    constexpr qint64 kKeyBytes = 64;
    const Result<QByteArray> key = readRegularFile(path(name) + kKeySuffix, kKeyBytes);
    return key && key.value() == keyOf(source) && QFileInfo::exists(path(name));
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
    if (!QDir().mkpath(file.path()) || !removeAll(wanted + kKeySuffix) || !removeAll(part)) {
        return notWritable(file.path());
    }
    if (const Result<QString> made = maker(part); !made) {
        removeAll(part);
        return made.error();
    }
    if (!removeAll(wanted) || !QFile::rename(part, wanted)) {
        return notWritable(wanted);
    }
    if (const Result<QString> key = writeFileAtomically(wanted + kKeySuffix, keyOf(source)); !key) {
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
