// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/proposedplace.h"

#include "host/import/givenfiles.h"
#include "host/model/commanderror.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStorageInfo>

#include <algorithm>

namespace PanoHost
{

namespace
{

/** Whether \p path is \p folder, or in it. */
bool isWithin(const QString &path, const QString &folder)
{
    return path == folder || folder == QLatin1String("/")
        || path.startsWith(folder + QLatin1Char('/'));
}

QString parentOf(const QString &folder)
{
    return QFileInfo(folder).path();
}

/** The folder below which all photos are. */
QString photosFolder(const Panorama &panorama)
{
    QString folder;
    for (const QString &path : photoPaths(panorama)) {
        const QString own = QFileInfo(path).absolutePath();
        if (folder.isNull()) {
            folder = own;
        }
        while (!isWithin(own, folder)) {
            folder = parentOf(folder);
        }
    }
    return folder;
}

/** The title that the record at \p path bears; empty: none. */
QString titleIn(const QString &path)
{
    if (path.isEmpty()) {
        return {};
    }
    try {
        const HeadFacts *head = readerOf(path, nullptr);
        return head == nullptr ? QString() : readRecord(*head, path).title;
    } catch (const CommandError &) { // it was read before, and is gone
        return {};
    }
}

} // namespace

DiskFacts DiskFacts::ofThisMachine()
{
    return { [](const QString &path) { return QStorageInfo(path).rootPath(); },
             [](const QString &path) {
                 const QFileInfo folder(path);
                 return folder.isDir() && folder.isWritable();
             },
             QStandardPaths::writableLocation(QStandardPaths::PicturesLocation) };
}

QString proposedFolder(const Panorama &panorama, const DiskFacts &disks)
{
    const QString photos = photosFolder(panorama);
    const QString root = disks.rootOf(photos);
    // Cameras look after their cards: what they do not know there may go any time.
    const bool isOnCard = isWithin(photos, QDir(root).filePath(QStringLiteral("DCIM")));
    if (photos == root || isOnCard) {
        return disks.pictures;
    }
    const QString beside = photos + QStringLiteral(" panorama");
    const bool canBe = disks.isWritable(beside)
        || (!QFileInfo::exists(beside) && disks.isWritable(parentOf(photos)));
    return canBe ? beside : disks.pictures;
}

QString proposedName(const Panorama &panorama)
{
    const QString &record = panorama.source.record;
    for (const QString &text : { titleIn(record), QFileInfo(record).completeBaseName(),
                                 QFileInfo(photosFolder(panorama)).fileName() }) {
        QString name = asFileName(text);
        if (!name.isEmpty()) {
            return name;
        }
    }
    return QStringLiteral("panorama");
}

QString asFileName(const QString &text)
{
    static const QString kUnfit = QStringLiteral("/\\:*?\"<>|");
    QString name = onOneLine(text);
    std::replace_if(
        name.begin(), name.end(), [](QChar c) { return kUnfit.contains(c); }, QLatin1Char('-'));
    name = name.simplified();
    // An ending follows, and disks take names of 255 bytes.
    constexpr int kMostBytes = 150;
    while (name.toUtf8().size() > kMostBytes) {
        name.chop(name.size() > 1 && name.at(name.size() - 1).isLowSurrogate() ? 2 : 1);
    }
    // Dots and blanks at the end go amiss on some disks; one at the beginning hides the file.
    const auto isEdge = [](QChar c) { return c == QLatin1Char('.') || c.isSpace(); };
    while (!name.isEmpty() && isEdge(name.back())) {
        name.chop(1);
    }
    while (!name.isEmpty() && isEdge(name.front())) {
        name.remove(0, 1);
    }
    const bool saysAnything
        = std::any_of(name.cbegin(), name.cend(), [](QChar c) { return c != QLatin1Char('-'); });
    return saysAnything ? name : QString();
}

} // namespace PanoHost
