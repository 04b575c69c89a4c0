// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/cli/commandline.h"
#include "host/cli/session.h"

#include <QStringList>
#include <QVector>

namespace PanoHost
{

/**
 * Runs one command with its own words and options; throws the CommandError that ends it.
 * Each reads its line with a `CommandLine` and answers `--help` by itself.
 */
using CommandFunction = ExitCode (*)(Session &session, const QStringList &arguments);

struct CommandRow {
    const char *name;
    const char *summary; ///< for the list in `panohost --help`
    CommandFunction run;
};

[[nodiscard]] const QVector<CommandRow> &commands();
[[nodiscard]] QStringList commandNames();
/** The command \p name; null when there is none. */
[[nodiscard]] const CommandRow *commandNamed(const QString &name);
/** The program's own line: common options only; its help lists the commands. */
[[nodiscard]] CommandLine generalLine();

ExitCode runImport(Session &session, const QStringList &arguments);
ExitCode runCheck(Session &session, const QStringList &arguments);
ExitCode runSort(Session &session, const QStringList &arguments);
ExitCode runDescribe(Session &session, const QStringList &arguments);
ExitCode runAlign(Session &session, const QStringList &arguments);
ExitCode runMake(Session &session, const QStringList &arguments);
ExitCode runStitch(Session &session, const QStringList &arguments);
ExitCode runPreview(Session &session, const QStringList &arguments);
ExitCode runDemoCommand(Session &session, const QStringList &arguments);
ExitCode runPlugins(Session &session, const QStringList &arguments);

} // namespace PanoHost
