// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/app/window.h"

#include "host/cli/commands.h"
#include "host/gui/importwizard.h"
#include "host/gui/preferences.h"
#include "host/gui/windowtexts.h"
#include "host/model/commanderror.h"
#include "host/plugin/pluginlibrary.h"

#include <QMessageBox>
#include <QStyle>
#include <QStyleFactory>

#include <unistd.h>

namespace PanoHost
{

namespace
{

/** Started from a menu, the program has nobody who reads its standard error. */
void showFailure(const Failure &failure)
{
    if (isatty(STDERR_FILENO) == 1) {
        return;
    }
    QMessageBox box(QMessageBox::Critical, QStringLiteral("panohost"), failure.text());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace

ExitCode runWindow(Session &session, const QStringList &arguments)
{
    CommandLine line = generalLine();
    if (!line.parse(arguments)) {
        return ExitCode::Done;
    }
    applyCommonOptions(session, line);
    Preferences::apply(session.app, line.isSet(QStringLiteral("lang")));
    loadWindowTexts(session.app.Locale());
    // Without a desktop's own style Qt falls back to one that looks like last century.
    if (QApplication::style()->objectName() == QLatin1String("windows")) {
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
    }
    auto opened = PluginLibrary::open(session.pluginPath);
    if (!opened) {
        showFailure(opened.error());
        throw CommandError(opened.error());
    }
    const auto library = std::move(opened).value();
    QGuiApplication::setDesktopFileName(QStringLiteral("org.orvane.panohost"));
    ImportWizard wizard(session.app, *library);
    // Without a question: the shell has been told to end it.
    QObject::connect(&session.interrupt, &Interrupt::interrupted, &wizard,
                     [&wizard] { wizard.done(QDialog::Rejected); });
    wizard.show();
    wizard.activateWindow();
    if (!line.positional().isEmpty()) {
        wizard.fillInWhenActive(line.positional());
    }
    QApplication::exec();
    Interrupt::check();
    return ExitCode::Done;
}

} // namespace PanoHost
