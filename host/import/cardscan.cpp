// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/cardscan.h"

#include "host/import/givenfiles.h"
#include "host/import/heads.h"
#include "host/model/displayname.h"
#include "host/model/parallel.h"
#include "host/model/photofile.h"
#include "host/model/safefile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <optional>

#include <dirent.h>
#include <sys/stat.h>

namespace PanoHost
{

namespace
{

QString baseOf(const QString &path)
{
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    return dot > path.lastIndexOf(QLatin1Char('/')) ? path.left(dot) : path;
}

QString endingOf(const QString &path)
{
    return path.mid(baseOf(path).size() + 1).toLower();
}

enum class FileKind { Photo, Record, Project, Other };

FileKind kindOf(const QString &path)
{
    const QString ending = endingOf(path);
    if (isPhotoName(path)) {
        return FileKind::Photo;
    }
    if (isRecord(path)) {
        return FileKind::Record;
    }
    return ending == QLatin1String("pto") ? FileKind::Project : FileKind::Other;
}

/** What lies below some folders, by names only. */
struct FoundFiles {
    QStringList photos;
    QVector<qint64> photoBytes;
    QStringList records;
    QStringList projects;
    QVector<RefusedFile> refused;
};

/** Looks into folders, one after the other. */
class Walk
{
public:
    explicit Walk(const JobWatch &watch)
        : m_watch(watch)
    {
    }

    FoundFiles below(const QStringList &folders)
    {
        for (const QString &folder : folders) {
            const QString path = QDir::cleanPath(QDir().absoluteFilePath(folder));
            struct stat status = {};
            if (::stat(QFile::encodeName(path).constData(), &status) != 0) {
                throw inputRefused(displayName(path), QStringLiteral("no such folder"),
                                   QStringLiteral("check the name; is the card in its reader?"));
            }
            if (!S_ISDIR(status.st_mode)) {
                throw inputRefused(displayName(path), QStringLiteral("is not a folder"),
                                   QStringLiteral("name the folder that it lies in"));
            }
            addFolder(path, status);
        }
        // What a link leads to may have been found under its own name.
        while (!m_folders.isEmpty() || !m_links.isEmpty()) {
            while (!m_folders.isEmpty()) {
                look(m_folders.takeLast());
            }
            if (!m_links.isEmpty()) {
                follow(m_links.takeFirst());
            }
        }
        return std::move(m_found);
    }

private:
    using Identity = QPair<quint64, quint64>;

    static Identity identityOf(const struct stat &status)
    {
        return { status.st_dev, status.st_ino };
    }

    void addFolder(const QString &path, const struct stat &status)
    {
        if (!m_seen.contains(identityOf(status))) {
            m_seen.insert(identityOf(status));
            m_folders += path;
        }
    }

    void look(const QString &folder)
    {
        const std::unique_ptr<DIR, int (*)(DIR *)> open(
            ::opendir(QFile::encodeName(folder).constData()), &::closedir);
        if (!open) {
            refuse(folder, whyUnreadable());
            return;
        }
        QList<QByteArray> names;
        errno = 0;
        while (const dirent *entry = ::readdir(open.get())) {
            if (entry->d_name[0] != '.') {
                names += QByteArray(entry->d_name);
            }
        }
        if (errno != 0) {
            refuse(folder, whyUnreadable());
        }
        std::sort(names.begin(), names.end());
        QStringList inner = std::exchange(m_folders, {});
        for (const QByteArray &name : qAsConst(names)) {
            addEntry(folder, name);
        }
        std::reverse(m_folders.begin(), m_folders.end());
        m_folders = inner + m_folders;
        m_watch.check();
        const int count = m_found.photos.size() + m_found.records.size();
        m_watch.report(count, count + m_folders.size() + 1,
                       QStringLiteral("looking into %1").arg(displayName(folder)));
    }

    void addEntry(const QString &folder, const QByteArray &name)
    {
        const QString text = QFile::decodeName(name);
        const QString path
            = (folder == QLatin1String("/") ? QString() : folder) + QLatin1Char('/') + text;
        const bool isText = QFile::encodeName(text) == name;
        struct stat status = {};
        const QByteArray bytes
            = isText ? QFile::encodeName(path) : QFile::encodeName(folder) + '/' + name;
        if (::lstat(bytes.constData(), &status) != 0) {
            return; // gone meanwhile
        }
        const bool isFolder = S_ISDIR(status.st_mode);
        const FileKind kind = kindOf(path);
        if (!isFolder && !S_ISLNK(status.st_mode)
            && (kind == FileKind::Other || !S_ISREG(status.st_mode))) {
            return;
        }
        if (!isText) {
            if (isFolder || kind != FileKind::Other) {
                refuse(path,
                       QStringLiteral("its name is not UTF-8 text, by which programs open it; "
                                      "rename it"));
            }
        } else if (isFolder) {
            addFolder(path, status);
        } else if (S_ISLNK(status.st_mode)) {
            m_links += path;
        } else {
            addFile(path, kind, status);
        }
    }

    void addFile(const QString &path, FileKind kind, const struct stat &status)
    {
        if (m_seen.contains(identityOf(status))) {
            return;
        }
        m_seen.insert(identityOf(status));
        if (kind == FileKind::Photo) {
            m_found.photos += path;
            m_found.photoBytes += status.st_size;
        } else {
            (kind == FileKind::Record ? m_found.records : m_found.projects) += path;
        }
    }

    void follow(const QString &link)
    {
        const FileKind kind = kindOf(link);
        struct stat status = {};
        if (::stat(QFile::encodeName(link).constData(), &status) != 0) {
            if (kind != FileKind::Other) {
                refuse(link, QStringLiteral("is a link that leads nowhere"));
            }
        } else if (S_ISDIR(status.st_mode)) {
            addFolder(link, status);
        } else if (S_ISREG(status.st_mode) && kind != FileKind::Other) {
            addFile(link, kind, status);
        }
    }

    static QString whyUnreadable()
    {
        return QStringLiteral("cannot be looked into (%1); what lies in it is left out")
            .arg(QString::fromLocal8Bit(std::strerror(errno)));
    }

    void refuse(const QString &path, const QString &why)
    {
        m_found.refused += RefusedFile{ path, why };
    }

    const JobWatch &m_watch;
    FoundFiles m_found;
    QStringList m_folders; ///< not yet looked into, the next one last
    QStringList m_links; ///< not yet followed
    QSet<Identity> m_seen;
};

/** Whether \p project is made of the photo \p photo, both paths. */
bool isMadeOf(const QString &project, const QString &photo)
{
    constexpr qint64 kMostBytes = 64LL * 1024 * 1024;
    const Result<QByteArray> content = readRegularFile(project, kMostBytes);
    const QByteArray name = QFile::encodeName(QFileInfo(photo).fileName());
    return content
        && (content.value().contains('"' + name + '"')
            || content.value().contains('/' + name + '"'));
}

void readPhotos(const FoundFiles &found, const JobWatch &watch, Card &card)
{
    QHash<QString, QString> projects; // by path without ending
    for (const QString &project : found.projects) {
        projects.insert(baseOf(project), project);
    }
    const int count = found.photos.size();
    std::vector<std::optional<Result<PhotoInfo>>> infos(static_cast<std::size_t>(count));
    const auto read = [&](int row) { infos[row] = readPhotoInfo(found.photos.at(row)); };
    forEachRow(count, read, 0, [&](int done) {
        watch.check();
        if (count > 0) {
            watch.report(
                done, count,
                QStringLiteral("reading %1")
                    .arg(QFileInfo(found.photos.at(std::min(done, count - 1))).fileName()));
        }
    });
    QVector<PhotoOnDisk> photos;
    for (int i = 0; i < count; ++i) {
        const QString &path = found.photos.at(i);
        const Result<PhotoInfo> &info = *infos[i];
        const QString project = projects.value(baseOf(path));
        if (!info) {
            const bool isGone = !QFileInfo::exists(path);
            card.refused += RefusedFile{
                path,
                isGone ? QStringLiteral("is gone meanwhile; sort again once nothing changes")
                       : QStringLiteral("%1; copy it from the card again, or leave it out")
                             .arg(info.error().why)
            };
        } else if (info.value().isPanorama || (!project.isEmpty() && !isMadeOf(project, path))) {
            card.results += path;
        } else {
            photos += PhotoOnDisk{ info.value(), found.photoBytes[i] };
        }
    }
    card.photos = photosIn(photos);
}

/** Puts a record or the reason why it is none into a card. */
class RecordReader
{
public:
    explicit RecordReader(Card &card)
        : m_card(card)
    {
    }

    void add(const QString &path)
    {
        try {
            read(path);
        } catch (const std::bad_alloc &) {
            m_card.refused
                += RefusedFile{ path, QStringLiteral("takes more memory than there is") };
        }
    }

private:
    void read(const QString &path)
    {
        PanoHead::ReadError error;
        const std::optional<QByteArray> bytes = PanoHead::readRecordFile(path, &error);
        if (!bytes) {
            m_card.refused += RefusedFile{ path, error.reason };
            return;
        }
        const QByteArray sum = QCryptographicHash::hash(*bytes, QCryptographicHash::Sha1);
        const auto known = m_known.constFind(sum);
        if (known != m_known.constEnd()) {
            m_card.records[*known].copies += path;
            return;
        }
        std::optional<CardRecord> record;
        const HeadFacts *reader = nullptr;
        for (const HeadFacts *head : PanoHead::allHeadFacts()) {
            if (!head->isRecord(path)) {
                continue;
            }
            const bool isAlike = reader != nullptr && head->summary == reader->summary;
            if (record && isAlike) {
                record->heads += head->name();
            } else if (!record && !isAlike) {
                reader = head;
                record = recordOf(*head, *bytes, path, &error);
            }
        }
        if (record) {
            m_known.insert(sum, m_card.records.size());
            m_card.records += *record;
            return;
        }
        // Whoever could not even begin to read it says no line.
        const bool isBroken = error.line > 0;
        const QString why = isBroken
            ? QStringLiteral("line %1: %2; %3")
                  .arg(QString::number(error.line), error.reason,
                       error.advice.isEmpty()
                           ? QStringLiteral("if it is a record, copy it from the head again")
                           : error.advice)
            : error.reason;
        (isBroken ? m_card.refused : m_card.noRecords) += RefusedFile{ path, why };
    }

    static std::optional<CardRecord> recordOf(const HeadFacts &head, const QByteArray &bytes,
                                              const QString &path, PanoHead::ReadError *error)
    {
        const std::optional<RecordSummary> summary = head.summary(bytes, error);
        if (!summary) {
            return std::nullopt;
        }
        CardRecord record;
        record.path = path;
        record.heads += head.name();
        record.bracketCount = head.notesBrackets ? summary->bracketCount : 0;
        const auto shots = head.shots == nullptr ? std::nullopt : head.shots(bytes, error);
        record.shots = shots.value_or(QVector<NotedShot>(summary->shotCount));
        return record;
    }

    Card &m_card;
    QHash<QByteArray, int> m_known; ///< records by what stands in them
};

} // namespace

Card scanCard(const QStringList &folders, const JobWatch &watch)
{
    const FoundFiles found = Walk(watch).below(folders);
    Card card;
    card.refused = found.refused;
    readPhotos(found, watch, card);
    RecordReader reader(card);
    int done = 0;
    for (const QString &path : found.records) {
        watch.check();
        reader.add(path);
        watch.report(++done, found.records.size(),
                     QStringLiteral("reading %1").arg(QFileInfo(path).fileName()));
    }
    return card;
}

} // namespace PanoHost
