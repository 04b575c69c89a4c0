// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/inputcheck.h"

#include "host/model/commanderror.h"
#include "host/model/displayname.h"
#include "host/model/said.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QSet>

#include <algorithm>
#include <vector>

namespace PanoHost
{

namespace
{

/** Whether \p a and \p b are the same file, links followed. */
bool isSameFile(const QFileInfo &a, const QFileInfo &b)
{
    return a.exists() && a.canonicalFilePath() == b.canonicalFilePath();
}

} // namespace

void requireWritable(const QString &path, const QStringList &inputs)
{
    const QFileInfo file(path);
    const QFileInfo folder(file.absolutePath());
    if (!folder.exists()) {
        throw inputRefused(displayName(path),
                           Said::tr("the folder %1 does not exist").arg(folder.filePath()),
                           Said::tr("make it first"));
    }
    if (file.isDir()) {
        throw inputRefused(displayName(path), Said::tr("is a folder"),
                           Said::tr("name a file in it"));
    }
    if (file.exists() && !file.isFile()) {
        throw inputRefused(displayName(path), Said::tr("is not a regular file"),
                           Said::tr("name a file of your own"));
    }
    // Only trying tells: permissions do not bind everybody and are not all there is.
    QSaveFile probe(path);
    if (!probe.open(QIODevice::WriteOnly)) {
        throw inputRefused(displayName(path),
                           Said::tr("cannot be written there: %1").arg(probe.errorString()),
                           Said::tr("choose a folder of your own"));
    }
    probe.cancelWriting();
    for (const QString &input : inputs) {
        if (isSameFile(file, QFileInfo(input))) {
            throw inputRefused(displayName(path), Said::tr("is one of the input files"),
                               Said::tr("choose another name for the result"));
        }
    }
}

void requirePhotoFiles(const QStringList &photos)
{
    QSet<QString> seen;
    seen.reserve(photos.size());
    for (const QString &photo : photos) {
        const QFileInfo file(photo);
        if (seen.contains(photo)) {
            throw inputRefused(displayName(photo), Said::tr("given twice"),
                               Said::tr("name each photo once"));
        }
        seen += photo;
        if (!file.exists()) {
            // What could not be decoded became replacement characters.
            const bool isText = !photo.contains(QChar::ReplacementCharacter);
            throw inputRefused(displayName(photo), Said::tr("no such photo"),
                               isText ? Said::tr("check the name")
                                      : Said::tr("rename the file: its name is not in UTF-8"));
        }
        if (file.isDir()) {
            throw inputRefused(displayName(photo), Said::tr("is a folder"),
                               Said::tr("name the photos in it, e.g. %1/*.jpg").arg(photo));
        }
        if (!file.isFile()) {
            throw inputRefused(displayName(photo), Said::tr("is not a regular file"),
                               Said::tr("name photos only"));
        }
        if (!file.isReadable()) {
            throw inputRefused(displayName(photo), Said::tr("cannot be read: permission denied"),
                               Said::tr("copy it to a folder of your own"));
        }
    }
}

void requireMatchingCounts(const QString &recordName, const RecordSummary &record, int photoCount)
{
    if (photoCount != record.shotCount) {
        const QString hint = photoCount < record.shotCount
            ? Said::tr("are photos missing, or did the shoot stop early?")
            : Said::tr("are test shots among the photos?");
        throw inputRefused(
            recordName,
            Said::tr("records %1, %2 given")
                .arg(counted(record.shotCount, "shot"), counted(photoCount, "photo")),
            hint);
    }
    if (record.bracketCount > 1 && photoCount % record.bracketCount != 0) {
        throw inputRefused(
            recordName,
            Said::tr("%1 are not a multiple of bracket %2")
                .arg(counted(photoCount, "photo"), QString::number(record.bracketCount)),
            Said::tr("each position needs all its exposures"));
    }
}

QStringList orderedByTime(PanoHostApplication &app, const QStringList &photos,
                          const JobWatch &watch)
{
    std::vector<std::pair<qint64, QString>> timed;
    timed.reserve(static_cast<size_t>(photos.size()));
    for (const QString &photo : photos) {
        watch.check();
        const PhotoInfo info = valueOrThrow(app.photoInfo(photo));
        if (info.timeMs == 0) {
            throw inputRefused(QFileInfo(photo).fileName(),
                               Said::tr("has no capture time to order by"),
                               Said::tr("use --order name or --order given"));
        }
        timed.emplace_back(info.timeMs, photo);
        watch.report(static_cast<int>(timed.size()), photos.size(),
                     QStringLiteral("capture time of %1").arg(QFileInfo(photo).fileName()));
    }
    // Photos of the same second keep the order of their names.
    std::sort(timed.begin(), timed.end());
    QStringList ordered;
    ordered.reserve(photos.size());
    for (const auto &[time, photo] : timed) {
        ordered += photo;
    }
    return ordered;
}

} // namespace PanoHost
