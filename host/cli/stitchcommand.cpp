// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/commands.h"
#include "host/cli/outputs.h"
#include "host/cli/stitchline.h"
#include "host/model/commanderror.h"

#include <QDir>
#include <QFileInfo>

namespace PanoHost
{

namespace
{

CommandLine stitchLine()
{
    return CommandLine(
        { "panohost stitch NAME.pto|NAME.json [-o OUT.tif]",
          "Makes the panorama that a project describes, ours or Hugin's own, with every photo\n"
          "where the project puts it; or that of NAME.json, which 'import --json' wrote.\n"
          "Writes OUT.tif and OUT.html, a page that any browser opens; OUT is NAME when -o is\n"
          "not given. Stopped by Ctrl-C or a power cut, the same command goes on from what it\n"
          "has finished, which lies in OUT.work until the end. To do all from record and photos\n"
          "on, see 'panohost make --help'.",
          "# what 'panohost align' or Hugin has left: shoot_aligned.tif\n"
          "panohost stitch shoot_aligned.pto\n"
          "# half as wide, as JPEG\n"
          "panohost stitch shoot_aligned.pto -o small.jpg --size 50%\n"
          "# seen from another side, the whole sphere, seams hidden\n"
          "panohost stitch shoot.pto -o pano.jpg --centre 90 --crop no --blender enblend\n"
          "# what would be run?\n"
          "panohost stitch shoot.pto -o pano.tif --dry-run" },
        stitchOptionRows()
            + QVector<OptionRow>{
                { "--level", nullptr, "turn the whole panorama until its horizon is level" },
                { "--jobs", "N",
                  "work on N photos at a time; as many as processors when not given" },
                { "--ignore-exif-rotation", nullptr,
                  "take the roll as recorded, whatever the photos say (NAME.json only)" },
                { "--keep", nullptr, "leave OUT.work, for whoever wants to look or to go on" },
            });
}

QString fileToStitch(const CommandLine &line)
{
    const QStringList words = line.positional();
    if (words.size() != 1) {
        throw usageError(QStringLiteral("stitch takes one file, %1 given").arg(words.size()),
                         QStringLiteral("name a project or description: NAME.pto or NAME.json"));
    }
    return absolutePath(words.first());
}

} // namespace

ExitCode runStitch(Session &session, const QStringList &arguments)
{
    CommandLine line = stitchLine();
    if (!line.parse(arguments)) {
        return ExitCode::Done;
    }
    applyCommonOptions(session, line);
    StitchRequest request;
    request.input = fileToStitch(line);
    const QFileInfo file(request.input);
    request.picture = pictureWishes(
        line, file.absoluteDir().filePath(file.completeBaseName() + QStringLiteral(".tif")));
    constexpr int kMostJobs = 1024;
    request.picture.stitch.jobs = numberOf(line, QStringLiteral("jobs"), 0, 1, kMostJobs);
    request.picture.stitch.levels = line.isSet(QStringLiteral("level"));
    request.ignoresExifRotation = line.isSet(QStringLiteral("ignore-exif-rotation"));
    request.keepsWork = line.isSet(QStringLiteral("keep"));
    const MakeSteps steps = makeSteps(session.app);
    if (line.isSet(QStringLiteral("dry-run"))) {
        for (const QString &command :
             valueOrThrow(stitchCommandsOf(request, steps, session.watch()))) {
            printOut(command + QLatin1Char('\n'));
        }
        return ExitCode::Done;
    }
    tell(session, stitchPanorama(request, steps, session.watch()));
    return ExitCode::Done;
}

} // namespace PanoHost
