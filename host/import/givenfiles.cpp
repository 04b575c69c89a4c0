// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/givenfiles.h"

#include "host/model/commanderror.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QLineEdit>
#include <QSet>
#include <QUrl>
#include <QWizardPage>

#include <algorithm>

namespace PanoHost
{

bool isRecord(const QString &path)
{
    const std::vector<const HeadFacts *> heads = PanoHead::allHeadFacts();
    return std::any_of(heads.begin(), heads.end(),
                       [&path](const HeadFacts *head) { return head->isRecord(path); });
}

bool isPhotoName(const QString &path)
{
    // As cameras and their owners name photos.
    static const QSet<QString> endings = [] {
        QSet<QString> set;
        for (const char *const word :
             { "jpg",  "jpeg", "jpe", "tif", "tiff", "png", "heic", "heif", "hif",
               "avif", "webp", "jp2", "3fr", "arw",  "bay", "cap",  "cr2",  "cr3",
               "crw",  "dcr",  "dcs", "dng", "erf",  "fff", "gpr",  "iiq",  "k25",
               "kdc",  "mdc",  "mef", "mos", "mrw",  "nef", "nrw",  "orf",  "pef",
               "ptx",  "raf",  "raw", "rw2", "rwl",  "sr2", "srf",  "srw",  "x3f" }) {
            set.insert(QLatin1String(word));
        }
        return set;
    }();
    return endings.contains(QFileInfo(path).suffix().toLower());
}

bool isOwnFile(const QString &path)
{
    const QFileInfo file(path);
    const QString suffix = file.suffix().toLower();
    if (suffix == QLatin1String("pto") || suffix == QLatin1String("json")) {
        return true;
    }
    // What is made from a project bears its name.
    const QString stem = file.path() + QLatin1Char('/') + file.completeBaseName();
    return isPhotoName(path) && QFileInfo::exists(stem + QStringLiteral(".pto"));
}

QStringList localPaths(const QStringList &words)
{
    QStringList paths;
    for (const QString &word : words) {
        const QUrl url(word);
        if (url.isLocalFile()) {
            paths += QDir::cleanPath(url.toLocalFile());
        } else if (!word.contains(QLatin1String("://")) && !word.isEmpty()) {
            paths += QDir::cleanPath(QDir().absoluteFilePath(word));
        }
    }
    return paths;
}

QStringList pathsInText(const QString &text)
{
    QStringList lines;
    for (const QString &line : text.split(QLatin1Char('\n'))) {
        const QString word = line.trimmed();
        if (word.isEmpty()) {
            continue;
        }
        if (!QUrl(word).isLocalFile() && !(QDir::isAbsolutePath(word) && QFile::exists(word))) {
            return {};
        }
        lines += word;
    }
    return localPaths(lines);
}

GivenFiles sortFiles(const QStringList &files)
{
    GivenFiles sorted;
    QSet<QString> seen;
    for (const QString &path : localPaths(files)) {
        if (seen.contains(path)) {
            continue;
        }
        seen += path;
        if (isRecord(path)) {
            if (!sorted.record.isEmpty()) {
                sorted.otherRecords += sorted.record;
            }
            sorted.record = path;
        } else if (isOwnFile(path)) {
            sorted.own += path;
        } else {
            sorted.photos += path;
        }
    }
    sorted.photos.sort(Qt::CaseSensitive);
    return sorted;
}

namespace
{

bool reads(const HeadFacts &head, const QString &path)
{
    try {
        return !head.isGrid() && readRecord(head, path).shotCount > 0;
    } catch (const CommandError &) {
        return false;
    }
}

} // namespace

const HeadFacts *readerOf(const QString &path, const HeadFacts *head)
{
    if (!QFileInfo(path).isFile() || (head != nullptr && reads(*head, path))) {
        return nullptr;
    }
    const std::vector<const HeadFacts *> heads = PanoHead::allHeadFacts();
    const auto found = std::find_if(heads.begin(), heads.end(), [&](const HeadFacts *other) {
        return other != head && reads(*other, path);
    });
    return found == heads.end() ? nullptr : *found;
}

QStringList withoutFolders(const QStringList &files, const JobWatch &watch)
{
    QStringList all;
    for (const QString &file : files) {
        if (!QFileInfo(file).isDir()) {
            all += file;
            continue;
        }
        QStringList found;
        QDirIterator below(file, QDir::Files, QDirIterator::Subdirectories);
        while (below.hasNext()) {
            watch.check();
            const QString path = below.next();
            // Many a text is no record.
            if (isPhotoName(path) || (isRecord(path) && readerOf(path, nullptr) != nullptr)) {
                found += path;
            }
        }
        found.sort();
        all += found;
    }
    return all;
}

void preferReadableRecord(GivenFiles &files)
{
    QStringList records = files.otherRecords;
    if (!files.record.isEmpty()) {
        records += files.record;
    }
    for (int i = records.size() - 1; i >= 0; --i) {
        files.reader = readerOf(records.at(i), nullptr);
        if (files.reader != nullptr) {
            files.shots = readRecord(*files.reader, records.at(i)).shotCount;
            files.record = records.takeAt(i);
            files.otherRecords = records;
            return;
        }
    }
}

int headFor(const GivenFiles &files, const QVector<ImportPlugin> &plugins, int chosen)
{
    const auto endsLike = [&files](const ImportPlugin &plugin) {
        const HeadFacts *head = PanoHead::headFactsOf(plugin.head());
        return head != nullptr && head->isRecord(files.record);
    };
    if (files.record.isEmpty() || (chosen >= 0 && endsLike(plugins.at(chosen)))) {
        return chosen;
    }
    const auto *found = std::find_if(plugins.begin(), plugins.end(), endsLike);
    return found == plugins.end() ? chosen : static_cast<int>(found - plugins.begin());
}

QString recordPath(const QWizardPage *page)
{
    const auto *edit = page->findChild<QLineEdit *>(QStringLiteral("m_leConfigFile"));
    return edit == nullptr ? QString() : edit->text();
}

} // namespace PanoHost
