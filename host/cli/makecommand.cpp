// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/alignline.h"
#include "host/cli/commands.h"
#include "host/cli/outputs.h"
#include "host/cli/requestline.h"
#include "host/cli/stitchline.h"
#include "host/model/commanderror.h"
#include "host/model/displayname.h"

#include <QDir>
#include <QFileInfo>

namespace PanoHost
{

namespace
{

CommandLine makeLine()
{
    return importingLine(
        { "panohost make HEAD [RECORD] PHOTO... [-o NAME.jpg]",
          "From the record and the photos to the finished panorama: checks and imports them\n"
          "through the head's import page, puts every photo exactly where it belongs,\n"
          "stitches, and writes NAME.jpg and NAME.html, a page that any browser opens. NAME\n"
          "is that of the record when -o is not given.\n"
          "\n"
          "What each step has made is kept in NAME.work. Stopped by Ctrl-C or a power cut,\n"
          "the same command goes on from there; with other options it does again only what\n"
          "they change. Remove NAME.work when you are content.",
          "# the usual case: pano.jpg and pano.html\n"
          "panohost make papywizard shoot.xml IMG_*.jpg -o pano.jpg\n"
          "# a quick look first: the next line goes on from its alignment\n"
          "panohost make papywizard shoot.xml IMG_*.jpg -o pano.jpg --size 20%\n"
          "panohost make papywizard shoot.xml IMG_*.jpg -o pano.jpg\n"
          "# any size, for a web site: a folder of tiles with its page\n"
          "panohost make gigapan IMG_*.jpg --rows 4 -o town.jpg --deliver picture,zoom\n"
          "# brackets to the light itself, for 3D programs\n"
          "panohost make vrdrive2 shoot.xml *.jpg -o room.jpg --output hdr\n"
          "# how much room and memory would it take?\n"
          "panohost make papywizard shoot.xml IMG_*.jpg -o pano.tif --dry-run" },
        stitchOptionRows()
            + QVector<OptionRow>{
                { "--raw-converter", "COMMAND",
                  "develop RAW files with it first: dcraw, dcraw_emu, darktable-cli, "
                  "rawtherapee-cli, or any command with %i for the RAW file and %o for the TIFF" },
            }
            + alignOptionRows());
}

/** Named after the record, of grids after the photos' folder; in the current folder. */
QString usualPath(const ImportRequest &request)
{
    const QString name = request.record.isEmpty()
        ? QFileInfo(QFileInfo(request.photos.first()).absolutePath()).fileName()
        : QFileInfo(request.record).completeBaseName();
    return absolutePath((name.isEmpty() ? QStringLiteral("panorama") : name)
                        + QStringLiteral(".jpg"));
}

/** What this program has made lies beside the photos, where "*.jpg" finds it the next time. */
void leaveOutPanoramas(Session &session, QStringList &photos)
{
    QStringList rest;
    for (const QString &path : qAsConst(photos)) {
        const Result<PhotoInfo> photo = session.app.photoInfo(path);
        if (photo && photo.value().isPanorama) {
            session.console.info(
                QStringLiteral("%1: made of other photos, left out").arg(displayName(path)));
        } else {
            rest += path;
        }
    }
    photos = rest.isEmpty() ? photos : rest;
}

} // namespace

ExitCode runMake(Session &session, const QStringList &arguments)
{
    CommandLine line = makeLine();
    if (!line.parse(arguments)) {
        return ExitCode::Done;
    }
    applyCommonOptions(session, line);
    MakeRequest request;
    request.import = importRequest(session, line);
    leaveOutPanoramas(session, request.import.photos);
    request.rawConverter = line.value(QStringLiteral("raw-converter"));
    request.align = alignOptions(line);
    request.picture = pictureWishes(line, usualPath(request.import));
    request.picture.stitch.jobs = request.align.jobs;
    const MakeSteps steps = makeSteps(session.app);
    if (line.isSet(QStringLiteral("dry-run"))) {
        for (const QString &command : valueOrThrow(makeCommands(request, steps, session.watch()))) {
            printOut(command + QLatin1Char('\n'));
        }
        return ExitCode::Done;
    }
    tell(session, makePanorama(request, steps, session.watch()));
    return ExitCode::Done;
}

} // namespace PanoHost
