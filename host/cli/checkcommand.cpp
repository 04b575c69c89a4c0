// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/commands.h"
#include "host/cli/requestline.h"
#include "host/import/importjob.h"
#include "host/import/inputcheck.h"
#include "host/import/lenschoice.h"
#include "host/model/commanderror.h"
#include "host/model/displayname.h"
#include "host/model/panorama.h"

#include <QFileInfo>

#include <algorithm>

namespace PanoHost
{

namespace
{

CommandLine checkLine()
{
    return importingLine(
        { "panohost check HEAD [RECORD] PHOTO...",
          "Says what record and photos know: counts, focal length, lens, order, pauses.\n"
          "Writes nothing. Exit status 3 when 'import' would refuse them.",
          "# 33 photos, 36 shots: where did the shoot stop?\n"
          "panohost check papywizard shoot.xml IMG_*.jpg\n"
          "# do 6 rows of brackets of 3 come out even?\n"
          "panohost check gigapan IMG_*.jpg --rows 6 --bracket 3" },
        {});
}

void printRow(const char *name, const QString &text)
{
    printOut(QStringLiteral("%1 %2\n").arg(QString::fromLatin1(name), -8).arg(onOneLine(text)));
}

QString millimetres(double focal35mm)
{
    return focal35mm > 0.0 ? QStringLiteral("%1 mm").arg(QString::number(focal35mm, 'g', 4))
                           : QStringLiteral("not known");
}

QString lensOrUnknown(LensModel lens)
{
    return lens == LensModel::NotChosen ? QStringLiteral("not known") : lensName(lens);
}

void printRecord(const QString &path, const RecordSummary &record)
{
    printRow("record",
             QStringLiteral("%1: %2, bracket %3, focal %4, lens %5")
                 .arg(displayName(path), counted(record.shotCount, "shot"),
                      QString::number(record.bracketCount), millimetres(record.focal35mm),
                      lensOrUnknown(record.lens)));
}

void printGrid(const GridChoice &grid, int photoCount)
{
    const int used = std::max(photoCount - grid.ignoredCount, 0);
    printRow("grid",
             QStringLiteral("%1, %2, bracket %3, %4 ignored")
                 .arg(counted(grid.rows, "row"),
                      counted(used / grid.bracketCount / grid.rows, "column"),
                      QString::number(grid.bracketCount), QString::number(grid.ignoredCount)));
}

/** The photos that can be read; names the others. */
QVector<PhotoInfo> readableInfos(Session &session, const QStringList &photos)
{
    QVector<PhotoInfo> infos;
    for (const QString &photo : photos) {
        Interrupt::check();
        const Result<PhotoInfo> info = session.app.photoInfo(photo);
        if (info) {
            infos += info.value();
        } else {
            printRow("bad", QStringLiteral("%1: %2").arg(displayName(photo), info.error().why));
        }
        session.console.progress(infos.size(), photos.size(),
                                 QStringLiteral("reading %1").arg(QFileInfo(photo).fileName()));
    }
    session.console.endProgress();
    return infos;
}

/** Whether the photos, in the order of the shots, were taken one after the other. */
QString orderText(const QVector<PhotoInfo> &photos)
{
    for (int i = 1; i < photos.size(); ++i) {
        const PhotoInfo &before = photos.at(i - 1);
        const PhotoInfo &photo = photos.at(i);
        if (before.timeMs == 0 || photo.timeMs == 0) {
            return QStringLiteral("not all photos have a capture time");
        }
        if (photo.timeMs < before.timeMs) {
            return QStringLiteral("%1 was taken before %2; try --order time")
                .arg(QFileInfo(photo.path).fileName(), QFileInfo(before.path).fileName());
        }
    }
    return QStringLiteral("capture times agree");
}

/** The longest pause between two photos, when it stands out. */
QString gapText(const QVector<PhotoInfo> &photos)
{
    QVector<qint64> pauses;
    for (int i = 1; i < photos.size(); ++i) {
        pauses += photos.at(i).timeMs - photos.at(i - 1).timeMs;
    }
    if (pauses.isEmpty()) {
        return QStringLiteral("none");
    }
    const auto *longest = std::max_element(pauses.cbegin(), pauses.cend());
    QVector<qint64> sorted = pauses;
    std::sort(sorted.begin(), sorted.end());
    constexpr qint64 kNotableFactor = 4;
    constexpr qint64 kNotableMs = 5000;
    const qint64 usual = sorted.at(sorted.size() / 2);
    if (*longest < std::max(kNotableMs, usual * kNotableFactor)) {
        return QStringLiteral("none");
    }
    const int before = static_cast<int>(longest - pauses.cbegin());
    return QStringLiteral("%1 s after %2 (usually %3 s)")
        .arg(QString::number(*longest / 1000), QFileInfo(photos.at(before).path).fileName(),
             QString::number(usual / 1000));
}

void printPhotos(const QVector<PhotoInfo> &photos, int given)
{
    const KnownLens facts = knownLensOf(photos);
    printRow("photos",
             QStringLiteral("%1 given, %2 readable, focal %3, lens %4")
                 .arg(QString::number(given), QString::number(photos.size()),
                      millimetres(facts.focal35mm), lensOrUnknown(facts.lens)));
    printRow("order", orderText(photos));
    printRow("gaps", gapText(photos));
}

} // namespace

ExitCode runCheck(Session &session, const QStringList &arguments)
{
    CommandLine line = checkLine();
    if (!line.parse(arguments)) {
        return ExitCode::Done;
    }
    applyCommonOptions(session, line);
    const ImportRequest request = importRequest(session, line);
    if (request.head->isGrid()) {
        printGrid(*request.grid, request.photos.size());
    } else {
        printRecord(request.record, readRecord(*request.head, request.record));
    }
    requirePhotoFiles(request.photos);
    const QStringList photos
        = orderedPhotos(session.app, request.photos, request.order, session.watch());
    printPhotos(readableInfos(session, photos), photos.size());

    ImportJob job(session.app, request, session.watch());
    job.checkInputs();
    job.preparePage();
    printRow("result", QStringLiteral("can be imported"));
    return ExitCode::Done;
}

} // namespace PanoHost
