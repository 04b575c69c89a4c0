// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/alignline.h"
#include "host/cli/commands.h"
#include "host/cli/outputs.h"
#include "host/model/commanderror.h"
#include "host/model/displayname.h"
#include "host/model/panoramajson.h"

#include <QDir>
#include <QFileInfo>

namespace PanoHost
{

namespace
{

CommandLine alignLine()
{
    return CommandLine(
        { "panohost align NAME.json|NAME.pto [-o OUT.pto] [--json REPORT]",
          "Finds the same spots in neighbouring photos and puts every photo where it belongs.\n"
          "The head's record stays the most likely answer: a photo without any such spot, like\n"
          "one of the sky alone, stays where the head put it, and none is ever lost. NAME.json is\n"
          "what 'import --json' wrote; it knows which photos may be tied, and the page's options.\n"
          "Any Hugin project will do as well. Nothing that is given is changed.",
          "# after the import: shoot_aligned.pto\n"
          "panohost import papywizard shoot.xml IMG_*.jpg -o shoot.pto --json shoot.json\n"
          "panohost align shoot.json\n"
          "# both in one go\n"
          "panohost import papywizard shoot.xml IMG_*.jpg --align -o shoot.pto\n"
          "# a zoom lens with wavy distortion; what was learnt goes to another program\n"
          "panohost align shoot.json --free f,a,b,c --json report.json\n"
          "# again, from the result: the recorded angles are in it\n"
          "panohost align shoot_aligned.pto --work-size 3000 -o finer.pto" },
        QVector<OptionRow>{
            { "-o|--output", "OUT.pto", "the project to write; NAME_aligned.pto when not given" },
            { "--json", "FILE|-", "what was learnt, as JSON; '-' is standard output" },
            { "--ignore-exif-rotation", nullptr,
              "take the roll as recorded, whatever the photos say (NAME.json only)" },
        } + alignOptionRows());
}

QString fileToAlign(const CommandLine &line)
{
    const QStringList words = line.positional();
    if (words.size() != 1) {
        throw usageError(
            QStringLiteral("align takes one file, %1 given").arg(words.size()),
            QStringLiteral("name what 'panohost import' wrote: NAME.json or NAME.pto"));
    }
    return absolutePath(words.first());
}

Alignment alignFile(Session &session, const QString &input, const CommandLine &line)
{
    const AlignOptions options = alignOptions(line);
    const JobWatch watch = session.watch();
    if (input.endsWith(QLatin1String(".pto"), Qt::CaseInsensitive)) {
        return valueOrThrow(align(valueOrThrow(PtoFile::read(input)), options, watch));
    }
    PtoOptions projectOptions;
    projectOptions.ignoreExifRotation = line.isSet(QStringLiteral("ignore-exif-rotation"));
    return valueOrThrow(
        align(valueOrThrow(readPanoramaJson(input)), projectOptions, options, watch));
}

} // namespace

ExitCode runAlign(Session &session, const QStringList &arguments)
{
    CommandLine line = alignLine();
    if (!line.parse(arguments)) {
        return ExitCode::Done;
    }
    applyCommonOptions(session, line);
    const QString input = fileToAlign(line);
    const QFileInfo file(input);
    const Outputs outputs = outputsFrom(
        line,
        file.absoluteDir().filePath(file.completeBaseName() + QStringLiteral("_aligned.pto")));
    requireWritable(outputs, { input });
    const Alignment aligned = alignFile(session, input, line);
    Interrupt::check();
    writeProject(aligned.project, outputs.project);
    writeJson(outputs,
              [&](const QString &folder) { return alignmentToJson(aligned.report, folder); });
    tell(session, aligned.report);
    session.console.info(QStringLiteral("written: %1").arg(displayName(outputs.project)));
    return ExitCode::Done;
}

} // namespace PanoHost
