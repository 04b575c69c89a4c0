// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/app/window.h"
#include "host/cli/environment.h"
#include "host/cli/invocation.h"
#include "host/model/commanderror.h"
#include "host/model/photofile.h"
#include "host/model/wordsuggestion.h"

#include <new>
#include <vector>

using namespace PanoHost;

namespace
{

ExitCode dispatch(Session &session, const Invocation &invocation)
{
    switch (invocation.kind) {
    case Invocation::Kind::Window:
        return runWindow(session, invocation.arguments);
    case Invocation::Kind::Command:
        return invocation.command->run(session, invocation.arguments);
    case Invocation::Kind::General:
        (void)generalLine().parse(invocation.arguments);
        return ExitCode::Done;
    case Invocation::Kind::Unknown:
        break;
    }
    throw usageError(QStringLiteral("'%1' is neither a command nor a file%2")
                         .arg(invocation.word, suggestion(invocation.word, commandNames())),
                     QStringLiteral("see 'panohost --help'"));
}

ExitCode run(Session &session, const Invocation &invocation)
{
    try {
        return dispatch(session, invocation);
    } catch (const CommandError &error) {
        session.console.endProgress();
        if (error.failure().code == ExitCode::Interrupted) {
            const QString text = error.failure().text();
            session.console.info(
                text.isEmpty() ? QStringLiteral("stopped; your files are as they were, and no "
                                                "unfinished result is left")
                               : text);
        } else {
            session.console.error(error.failure());
        }
        return error.failure().code;
    } catch (const std::bad_alloc &) {
        const Failure failure{ ExitCode::InputRefused,
                               QStringLiteral("not enough memory"),
                               {},
                               QStringLiteral("close other programs, or import fewer photos") };
        session.console.error(failure);
        return failure.code;
    }
}

} // namespace

int main(int argc, char **argv)
{
    const Invocation invocation = Invocation::of(Environment::decodeArguments(argc, argv));
    const bool window = invocation.kind == Invocation::Kind::Window;
    Console console;
    if (window && !Environment::hasDisplay(invocation.qtOptions)) {
        console.error({ ExitCode::Usage,
                        QStringLiteral("no display to show the window on"),
                        {},
                        QStringLiteral("the commands work without one: see 'panohost --help'") });
        return static_cast<int>(ExitCode::Usage);
    }
    const Environment environment(window ? Environment::Use::Window : Environment::Use::Command);
    initializePhotoReading();
    if (window) {
        Environment::prepareWindow();
    }
    // Qt takes some options for its own, --plugin among them: it gets those that are meant for it.
    std::vector<QByteArray> qtWords{ QByteArray(argv[0]) };
    for (const QString &word : invocation.qtOptions) {
        qtWords.push_back(word.toLocal8Bit());
    }
    std::vector<char *> qtArguments;
    qtArguments.reserve(qtWords.size() + 1);
    for (QByteArray &word : qtWords) {
        qtArguments.push_back(word.data());
    }
    int qtArgumentCount = static_cast<int>(qtArguments.size());
    qtArguments.push_back(nullptr);
    PanoHostApplication app(qtArgumentCount, qtArguments.data());
    QCoreApplication::setApplicationVersion(QStringLiteral(PANOHOST_VERSION));
    Interrupt interrupt;
    Session session{ app, console, interrupt, {} };
    return static_cast<int>(run(session, invocation));
}
