// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/session.h"

#include "host/cli/commandline.h"
#include "host/model/commanderror.h"

#include <QDir>
#include <QLocale>

namespace PanoHost
{

namespace
{

void applyLanguage(PanoHostApplication &app, const QString &code)
{
    const QLocale locale(code);
    if (locale.language() == QLocale::C && code != QLatin1String("C")) {
        throw usageError(QStringLiteral("--lang %1: no such language").arg(code),
                         QStringLiteral("try fr, de or pt_BR"));
    }
    app.setLocale(locale);
}

Console::Progress progressOf(const QString &word)
{
    if (word == QLatin1String("plain")) {
        return Console::Progress::Plain;
    }
    return word == QLatin1String("none") ? Console::Progress::None : Console::Progress::Auto;
}

Console::Color colorOf(const QString &word)
{
    if (word == QLatin1String("always")) {
        return Console::Color::Always;
    }
    return word == QLatin1String("never") ? Console::Color::Never : Console::Color::Auto;
}

} // namespace

JobWatch Session::watch() const
{
    JobWatch watch;
    watch.progress = [&console = console](int done, int total, const QString &text) {
        console.progress(done, total, text);
        if (done == total) {
            console.endProgress();
        }
    };
    watch.interrupted = &Interrupt::requested;
    watch.log = [&console = console](JobWatch::Note note, const QString &text) {
        switch (note) {
        case JobWatch::Note::Warning:
            return console.warning(text);
        case JobWatch::Note::Info:
            return console.info(text);
        case JobWatch::Note::Detail:
            return console.detail(text);
        }
    };
    return watch;
}

void applyCommonOptions(Session &session, const CommandLine &line)
{
    if (line.isSet(QStringLiteral("quiet"))) {
        session.console.setVolume(Console::Volume::Quiet);
    }
    if (line.isSet(QStringLiteral("verbose"))) {
        session.console.setVolume(Console::Volume::Verbose);
    }
    session.console.setProgress(progressOf(line.value(QStringLiteral("progress"))));
    session.console.setColor(colorOf(line.value(QStringLiteral("color"))));
    session.pluginPath = line.value(QStringLiteral("plugin"));
    if (line.isSet(QStringLiteral("settings"))) {
        session.app.setSettingsFile(
            QDir().absoluteFilePath(line.value(QStringLiteral("settings"))));
    }
    if (line.isSet(QStringLiteral("lang"))) {
        applyLanguage(session.app, line.value(QStringLiteral("lang")));
    }
}

} // namespace PanoHost
