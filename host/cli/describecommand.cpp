// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/commands.h"
#include "host/cli/panoramatable.h"
#include "host/cli/requestline.h"
#include "host/import/importjob.h"
#include "host/model/commanderror.h"
#include "host/model/panoramajson.h"

#include <QDir>
#include <QFileInfo>

namespace PanoHost
{

namespace
{

CommandLine describeLine()
{
    return importingLine(
        { "panohost describe FILE.json [--text]\n"
          "panohost describe HEAD [RECORD] PHOTO... [--text]",
          "Prints the description of a panorama, from a file that 'import --json' wrote or\n"
          "fresh from record and photos: as JSON, or as a table for the eye.",
          "# what does the head say?\n"
          "panohost describe papywizard shoot.xml IMG_*.jpg --text\n"
          "# where does each photo of a grid go?\n"
          "panohost describe gigapan IMG_*.jpg --rows 4 --mode serpentine --text\n"
          "# the same from a file\n"
          "panohost describe shoot.json --text" },
        QVector<OptionRow>{
            { "--text", nullptr, "a table: position, yaw, pitch, roll, links, photos" } });
}

/** Whether the words name a JSON file rather than a head. */
bool isJsonFile(const QStringList &words)
{
    if (words.size() != 1 || headNames().contains(words.first())) {
        return false;
    }
    return words.first().endsWith(QLatin1String(".json"), Qt::CaseInsensitive)
        || QFileInfo(words.first()).isFile();
}

} // namespace

ExitCode runDescribe(Session &session, const QStringList &arguments)
{
    CommandLine line = describeLine();
    if (!line.parse(arguments)) {
        return ExitCode::Done;
    }
    applyCommonOptions(session, line);
    const QStringList words = line.positional();
    const bool fromFile = isJsonFile(words);
    const QString folder = fromFile ? QFileInfo(words.first()).absolutePath() : QDir::currentPath();
    const Panorama panorama = fromFile
        ? valueOrThrow(readPanoramaJson(words.first()))
        : valueOrThrow(importShoot(session.app, importRequest(session, line), session.watch()));
    if (line.isSet(QStringLiteral("text"))) {
        printOut(panoramaTable(panorama, folder));
    } else {
        printOut(QString::fromUtf8(panoramaToJson(panorama, folder)));
    }
    return ExitCode::Done;
}

} // namespace PanoHost
