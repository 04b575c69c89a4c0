// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/commands.h"
#include "host/demo/demo.h"
#include "host/import/heads.h"
#include "host/model/commanderror.h"
#include "host/model/displayname.h"
#include "host/model/wordsuggestion.h"

#include <QDir>
#include <QProcess>

namespace PanoHost
{

namespace
{

CommandLine demoLine()
{
    static const QByteArray heads = headNames().join(QLatin1Char('|')).toLatin1();
    return CommandLine(
        { "panohost demo [DIR]",
          "Shows the whole way with photos of its own: draws a scene, photographs it with a\n"
          "made-up head, and does what 'panohost make' does: imports record and photos through "
          "the\n"
          "head's import page, aligns the photos, stitches them, and writes the panorama and a "
          "page\n"
          "that shows it. Then it compares the panorama with the scene.\n"
          "The Papywizard's head stops up to 0.3 degrees from where its record says. Everything\n"
          "is left in DIR (panohost-demo when not given). Succeeds when the two agree.",
          "# half a minute, then open panohost-demo/demo.html\n"
          "panohost demo\n"
          "# quicker, smaller, into another folder, and show the result\n"
          "panohost demo /tmp/try --size small --open\n"
          "# brackets of a VR Drive 2; a grid of a Gigapan, a part of the sphere\n"
          "panohost demo --head vrdrive2\n"
          "panohost demo --head gigapan" },
        QVector<OptionRow>{
            { "--size", "small|normal", "size of the photos and the panorama", true },
            { "--head", heads.constData(), "the head to play; papywizard when not given", true },
            { "--open", nullptr, "show the panorama in the desktop's picture viewer" },
        });
}

DemoOptions optionsFrom(const CommandLine &line)
{
    DemoOptions options;
    const QStringList words = line.positional();
    if (words.size() > 1) {
        throw usageError(QStringLiteral("demo takes one folder, %1 given").arg(words.size()));
    }
    options.folder = QDir().absoluteFilePath(words.value(0, QStringLiteral("panohost-demo")));
    if (line.value(QStringLiteral("size")) == QLatin1String("small")) {
        options.size = DemoSize::Small;
    }
    const QString head = line.isSet(QStringLiteral("head")) ? line.value(QStringLiteral("head"))
                                                            : QStringLiteral("papywizard");
    options.head = &headNamed(head);
    return options;
}

void showPicture(Session &session, const QString &path)
{
    // Not through Qt's desktop services: the commands run without a desktop platform.
    if (!QProcess::startDetached(QStringLiteral("xdg-open"), { path })) {
        session.console.warning(
            QStringLiteral("cannot open the picture: xdg-open not found; apt install xdg-utils"));
    }
}

ExitCode report(Session &session, const DemoReport &made)
{
    for (const DemoStep &step : made.steps) {
        session.console.info(
            QStringLiteral("%1: %2 s").arg(step.name).arg(step.seconds, 0, 'f', 1));
    }
    for (const QString &check : made.checks) {
        session.console.info(QStringLiteral("checked: %1").arg(check));
    }
    const double psnr = made.agreement.psnrDecibels;
    session.console.info(
        QStringLiteral("checked: the panorama against the scene, %1 dB (at least %2 needed)")
            .arg(psnr, 0, 'f', 1)
            .arg(made.leastPsnrDecibels, 0, 'f', 0));
    printOut(QStringLiteral("Panorama: %1 (%2x%3, %4, %5 dB)\n")
                 .arg(displayName(made.panoramaPath))
                 .arg(made.size.width())
                 .arg(made.size.height())
                 .arg(counted(made.photoCount, "photo"))
                 .arg(psnr, 0, 'f', 1));
    if (!made.pagePath.isEmpty()) {
        printOut(
            QStringLiteral("Page: %1 (open it in any browser)\n").arg(displayName(made.pagePath)));
    }
    if (made.agreement.coveredShare < 1.0) {
        session.console.warning(QStringLiteral("%1 % of the panorama is not covered by any photo")
                                    .arg(100.0 * (1.0 - made.agreement.coveredShare), 0, 'f', 1));
    }
    if (made.missingTool) {
        Failure failure = *made.missingTool;
        failure.why += QStringLiteral("; the panorama is put together without blending");
        session.console.error(failure);
        return failure.code;
    }
    if (psnr > made.leastPsnrDecibels) {
        return ExitCode::Done;
    }
    throw CommandError(
        { ExitCode::ToolFailed, displayName(made.panoramaPath),
          QStringLiteral("it does not look like the scene (%1 dB, at least %2 needed)")
              .arg(psnr, 0, 'f', 1)
              .arg(made.leastPsnrDecibels, 0, 'f', 0),
          QStringLiteral("open it and look; other versions of the stitching programs may be the "
                         "reason") });
}

} // namespace

ExitCode runDemoCommand(Session &session, const QStringList &arguments)
{
    CommandLine line = demoLine();
    if (!line.parse(arguments)) {
        return ExitCode::Done;
    }
    applyCommonOptions(session, line);
    DemoOptions options = optionsFrom(line);
    options.pluginPath = session.pluginPath;
    const DemoReport made = valueOrThrow(runDemo(session.app, options, session.watch()));
    session.console.endProgress();
    const ExitCode code = report(session, made);
    if (line.isSet(QStringLiteral("open"))) {
        showPicture(session, made.panoramaPath);
    }
    return code;
}

} // namespace PanoHost
