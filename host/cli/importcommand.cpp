// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/alignline.h"
#include "host/cli/commands.h"
#include "host/cli/outputs.h"
#include "host/cli/requestline.h"
#include "host/import/importjob.h"
#include "host/model/commanderror.h"
#include "host/model/displayname.h"
#include "host/model/panoramajson.h"
#include "host/model/ptoproject.h"

namespace PanoHost
{

namespace
{

CommandLine importLine()
{
    return importingLine(
        { "panohost import HEAD [RECORD] PHOTO... -o NAME.pto [--json FILE|-]",
          "Reads the record and the photos through the head's import page and writes a\n"
          "project that Hugin and its tools open. Photos belong to shots by their names\n"
          "in order (IMG_10 comes before IMG_9); --order changes that.",
          "# the usual case\n"
          "panohost import papywizard shoot.xml IMG_*.jpg -o shoot.pto\n"
          "# no EXIF data, a lens of 24 mm (35 mm equivalent), camera in portrait position\n"
          "panohost import papywizard shoot.xml *.tif --focal 24 --rotate 90 -o shoot.pto\n"
          "# a head that counts downwards; the description goes to another program\n"
          "panohost import papywizard shoot.xml *.jpg --invert-pitch --json - | jq .positions\n"
          "# brackets of a VR Drive 2, to HDR radiance\n"
          "panohost import vrdrive2 shoot.xml *.jpg --output-mode hdr -o shoot.pto\n"
          "# the script that a Clauss Rodeon ran\n"
          "panohost import clauss script.txt *.jpg -o shoot.pto\n"
          "# a Gigapan: 4 rows, swept downwards row by row, a test shot in front\n"
          "panohost import gigapan *.jpg --rows 4 --mode rows-down --ignore 1 -o shoot.pto" },
        QVector<OptionRow>{
            { "-o|--output", "NAME.pto", "the Hugin project to write" },
            { "--json", "FILE|-", "the description as JSON; '-' is standard output" },
            { "--align", nullptr,
              "put every photo exactly where it belongs; see 'panohost align'" },
        } + alignOptionRows());
}

Outputs wantedOutputs(const CommandLine &line)
{
    Outputs outputs = outputsFrom(line);
    if (outputs.project.isEmpty() && outputs.json.isEmpty() && !outputs.jsonToStdout) {
        throw usageError(QStringLiteral("no result asked for"),
                         QStringLiteral("add -o NAME.pto or --json FILE"));
    }
    if (line.isSet(QStringLiteral("align")) && outputs.project.isEmpty()) {
        throw usageError(QStringLiteral("--align makes a project, and none is asked for"),
                         QStringLiteral("add -o NAME.pto"));
    }
    return outputs;
}

PtoOptions projectOptions(const ImportRequest &request)
{
    PtoOptions options;
    options.ignoreExifRotation = request.ignoreExifRotation;
    return options;
}

void writeAligned(Session &session, Panorama &panorama, const QString &path,
                  const PtoOptions &options, const AlignOptions &alignOptions)
{
    const Alignment aligned = valueOrThrow(align(panorama, options, alignOptions, session.watch()));
    writeProject(aligned.project, path);
    panorama.project = ProjectReference{ path, aligned.project.yawCentreDegrees() };
    tell(session, aligned.report);
}

void writeImported(Session &session, Panorama &panorama, const QString &path,
                   const PtoOptions &options)
{
    const PtoProject project = valueOrThrow(writePtoProject(panorama, path, options));
    panorama.project = ProjectReference{ path, project.yawCentreDegrees };
    for (const QString &warning : project.warnings) {
        session.console.warning(warning);
    }
    panorama.warnings += project.warnings;
}

} // namespace

ExitCode runImport(Session &session, const QStringList &arguments)
{
    CommandLine line = importLine();
    if (!line.parse(arguments)) {
        return ExitCode::Done;
    }
    applyCommonOptions(session, line);
    const ImportRequest request = importRequest(session, line);
    const Outputs outputs = wantedOutputs(line);
    requireWritable(outputs, QStringList(request.record) + request.photos);

    Panorama panorama = valueOrThrow(importShoot(session.app, request, session.watch()));
    Interrupt::check();
    const PtoOptions options = projectOptions(request);
    if (line.isSet(QStringLiteral("align"))) {
        writeAligned(session, panorama, outputs.project, options, alignOptions(line));
    } else if (!outputs.project.isEmpty()) {
        writeImported(session, panorama, outputs.project, options);
    }
    writeJson(outputs, [&](const QString &folder) { return panoramaToJson(panorama, folder); });
    session.console.info(QStringLiteral("%1%2, %3, %4")
                             .arg(outputs.project.isEmpty()
                                      ? QString()
                                      : displayName(outputs.project) + QStringLiteral(": "),
                                  counted(panorama.positions.size(), "position"),
                                  counted(photoCount(panorama), "photo"),
                                  counted(panorama.description.authorizedLinks.size(), "link")));
    return ExitCode::Done;
}

} // namespace PanoHost
