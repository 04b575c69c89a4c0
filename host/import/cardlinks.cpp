// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/cardlinks.h"

#include "host/model/commanderror.h"
#include "host/model/displayname.h"
#include "host/model/pathparts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <sys/stat.h>
#include <unistd.h>

namespace PanoHost
{

namespace
{

CommandError notWritten(const QString &path, int error)
{
    const bool noLinks = error == EPERM || error == EOPNOTSUPP;
    return CommandError(
        { ExitCode::ToolFailed, displayName(path),
          noLinks ? QStringLiteral("this place holds no symbolic links (a memory card?)")
                  : QStringLiteral("cannot be made (%1)")
                        .arg(QString::fromLocal8Bit(std::strerror(error))),
          noLinks ? QStringLiteral("choose a folder on the computer's own disk")
                  : QStringLiteral("make room there or choose another place") });
}

/** A folder's name that is easy to type, from whatever a record is called. */
QString tidied(const QString &name)
{
    constexpr int kMost = 60; // of a name's 255 bytes
    QString tidy;
    for (const QChar letter : name.left(kMost)) {
        const bool isPlain = letter.isLetterOrNumber() || letter == QLatin1Char('-')
            || letter == QLatin1Char('_') || letter == QLatin1Char('.');
        tidy += isPlain ? letter : QLatin1Char('_');
    }
    return tidy;
}

/** Makes the folders of one plan below a folder that nobody knows yet. */
class LinkWriter
{
public:
    LinkWriter(const Card &card, QString root)
        : m_card(card)
        , m_root(std::move(root))
    {
    }

    /** Answers the folder's name. */
    QString write(const PlannedShoot &shoot, int number, int digits)
    {
        const QString title = shoot.record < 0
            ? QStringLiteral("grid")
            : tidied(QFileInfo(m_card.records[shoot.record].path).completeBaseName());
        QString name = QStringLiteral("%1-%2").arg(number, digits, 10, QLatin1Char('0')).arg(title);
        const QString folder = m_root + QLatin1Char('/') + name;
        makeFolder(folder);
        QStringList records;
        if (shoot.record >= 0) {
            records += m_card.records[shoot.record].path;
        }
        for (const int rival : shoot.rivalRecords) {
            records += m_card.records[rival].path;
        }
        link(records, folder);
        QStringList photos;
        QStringList raws;
        for (const int photo : shoot.photos) {
            photos += m_card.photos[photo].info.path;
            raws += m_card.photos[photo].raws;
        }
        link(photos, folder);
        if (!raws.isEmpty()) {
            makeFolder(folder + QLatin1String("/raw"));
            link(raws, folder + QLatin1String("/raw"));
        }
        return name;
    }

private:
    static void makeFolder(const QString &path)
    {
        if (::mkdir(QFile::encodeName(path).constData(), 0777) != 0) {
            throw notWritten(path, errno);
        }
    }

    /** With numbers in front where some file systems would take two names for the same. */
    static void link(const QStringList &files, const QString &folder)
    {
        QSet<QString> names;
        for (const QString &file : files) {
            names.insert(nameOf(file).toCaseFolded());
        }
        const bool isNumbered = names.size() != files.size();
        const int digits = QString::number(files.size()).size();
        for (int i = 0; i < files.size(); ++i) {
            const QString number = isNumbered
                ? QStringLiteral("%1_").arg(i + 1, digits, 10, QLatin1Char('0'))
                : QString();
            const QString path = folder + QLatin1Char('/') + number + nameOf(files.at(i));
            if (::symlink(QFile::encodeName(files.at(i)).constData(),
                          QFile::encodeName(path).constData())
                != 0) {
                throw notWritten(path, errno);
            }
        }
    }

    const Card &m_card;
    const QString m_root;
};

} // namespace

void requireNewFolder(const QString &folder)
{
    const QFileInfo info(folder);
    if ((info.exists() || info.isSymLink()) && !info.isDir()) {
        throw CommandError({ ExitCode::ToolFailed, displayName(folder),
                             QStringLiteral("is there already, and not a folder"),
                             QStringLiteral("give another name") });
    }
    const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    if (info.isDir() && (info.isSymLink() || !QDir(folder).isEmpty(all))) {
        throw CommandError({ ExitCode::ToolFailed, displayName(folder),
                             info.isSymLink()
                                 ? QStringLiteral("is a link to a folder")
                                 : QStringLiteral("is there already, with files in it"),
                             QStringLiteral("give another name; nothing is overwritten") });
    }
    if (!QFileInfo(info.absolutePath()).isDir()) {
        throw CommandError(
            { ExitCode::ToolFailed, displayName(folder),
              QStringLiteral("the folder %1 does not exist").arg(displayName(info.absolutePath())),
              QStringLiteral("create it or choose another place") });
    }
}

QStringList writeLinks(const Card &card, const CardPlan &plan, const QString &folder,
                       const JobWatch &watch)
{
    requireNewFolder(folder);
    // Beside its place, where nobody looks while it is half written; it goes with the object.
    const QFileInfo info(folder);
    QTemporaryDir half(info.absolutePath() + QStringLiteral("/.panohost-links-XXXXXX"));
    if (!half.isValid()) {
        throw CommandError({ ExitCode::ToolFailed, displayName(folder), half.errorString(),
                             QStringLiteral("choose a place that can be written to") });
    }
    const QString whole = half.filePath(QStringLiteral("links"));
    if (::mkdir(QFile::encodeName(whole).constData(), 0777) != 0) {
        throw notWritten(folder, errno);
    }
    LinkWriter writer(card, whole);
    const int count = plan.shoots.size();
    const int digits = std::max(2, QString::number(count).size());
    QStringList names;
    for (int i = 0; i < count; ++i) {
        watch.check();
        names += writer.write(plan.shoots[i], i + 1, digits);
        watch.report(i + 1, count, QStringLiteral("writing links"));
    }
    // An empty folder gives way; any other does not, whoever has filled it meanwhile.
    if (std::rename(QFile::encodeName(whole).constData(), QFile::encodeName(folder).constData())
        != 0) {
        throw notWritten(folder, errno);
    }
    return names;
}

} // namespace PanoHost
