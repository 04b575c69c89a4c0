// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/commands.h"
#include "host/model/commanderror.h"
#include "host/plugin/pluginlibrary.h"
#include "hostlink/xiabout.h"

namespace PanoHost
{

namespace
{

CommandLine pluginsLine()
{
    return CommandLine(
        { "panohost plugins",
          "Lists the import plug-ins of the library that would be used: the head's name,\n"
          "name, company, version, UID and comment, separated by tabs.",
          "# which library is it?\n"
          "panohost plugins -v\n"
          "# look into a folder of your own\n"
          "panohost plugins --plugin ~/lib/panohost" },
        {});
}

} // namespace

ExitCode runPlugins(Session &session, const QStringList &arguments)
{
    CommandLine line = pluginsLine();
    if (!line.parse(arguments)) {
        return ExitCode::Done;
    }
    applyCommonOptions(session, line);
    if (!line.positional().isEmpty()) {
        throw usageError(
            QStringLiteral("unexpected '%1'").arg(line.positional().first()),
            QStringLiteral("did you mean --plugin %1?").arg(line.positional().first()));
    }
    const auto library = valueOrThrow(PluginLibrary::open(session.pluginPath));
    session.console.detail(QStringLiteral("using %1").arg(library->path()));
    for (const ImportPlugin &plugin : library->plugins()) {
        const XIAbout &about = *plugin.about;
        const QStringList fields{ plugin.head(),   about.Name(), about.Company(),
                                  about.Version(), about.UID(),  about.Comment() };
        printOut(fields.join(QLatin1Char('\t')) + QLatin1Char('\n'));
    }
    return ExitCode::Done;
}

} // namespace PanoHost
