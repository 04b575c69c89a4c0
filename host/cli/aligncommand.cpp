// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/alignline.h"
#include "host/cli/commands.h"
#include "host/import/inputcheck.h"
#include "host/model/commanderror.h"
#include "host/model/displayname.h"
#include "host/model/panoramajson.h"
#include "host/model/safefile.h"

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

struct Files {
    QString input;
    QString project;
    QString report; ///< empty: none
    bool reportToStdout = false;
};

QString absolute(const QString &path)
{
    return QDir::cleanPath(QDir().absoluteFilePath(path));
}

Files filesFrom(const CommandLine &line)
{
    const QStringList words = line.positional();
    if (words.size() != 1) {
        throw usageError(
            QStringLiteral("align takes one file, %1 given").arg(words.size()),
            QStringLiteral("name what 'panohost import' wrote: NAME.json or NAME.pto"));
    }
    Files files;
    files.input = absolute(words.first());
    const QFileInfo input(files.input);
    const QString output = line.value(QStringLiteral("output"));
    files.project = output.isEmpty()
        ? input.absoluteDir().filePath(input.completeBaseName() + QStringLiteral("_aligned.pto"))
        : absolute(output);
    const QString report = line.value(QStringLiteral("json"));
    files.reportToStdout = report == QLatin1String("-");
    if (!report.isEmpty() && !files.reportToStdout) {
        files.report = absolute(report);
    }
    if (files.report == files.project) {
        throw usageError(QStringLiteral("-o and --json name the same file"),
                         QStringLiteral("give each a name of its own"));
    }
    return files;
}

Alignment alignFile(Session &session, const Files &files, const CommandLine &line)
{
    const AlignOptions options = alignOptions(line);
    const JobWatch watch = session.watch();
    if (files.input.endsWith(QLatin1String(".pto"), Qt::CaseInsensitive)) {
        return valueOrThrow(align(valueOrThrow(PtoFile::read(files.input)), options, watch));
    }
    PtoOptions projectOptions;
    projectOptions.ignoreExifRotation = line.isSet(QStringLiteral("ignore-exif-rotation"));
    return valueOrThrow(
        align(valueOrThrow(readPanoramaJson(files.input)), projectOptions, options, watch));
}

} // namespace

ExitCode runAlign(Session &session, const QStringList &arguments)
{
    CommandLine line = alignLine();
    if (!line.parse(arguments)) {
        return ExitCode::Done;
    }
    applyCommonOptions(session, line);
    const Files files = filesFrom(line);
    for (const QString &path : { files.project, files.report }) {
        if (!path.isEmpty()) {
            requireWritable(path, { files.input });
        }
    }
    const Alignment aligned = alignFile(session, files, line);
    Interrupt::check();
    const QString folder = QFileInfo(files.project).absolutePath();
    (void)valueOrThrow(
        writeFileAtomically(files.project, valueOrThrow(aligned.project.text(folder))));
    if (!files.report.isEmpty()) {
        (void)valueOrThrow(writeFileAtomically(
            files.report, alignmentToJson(aligned.report, QFileInfo(files.report).absolutePath())));
    }
    if (files.reportToStdout) {
        printOut(QString::fromUtf8(alignmentToJson(aligned.report, QDir::currentPath())));
    }
    tell(session, aligned.report);
    session.console.info(QStringLiteral("written: %1").arg(displayName(files.project)));
    return ExitCode::Done;
}

} // namespace PanoHost
