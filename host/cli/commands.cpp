// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/commands.h"

#include <algorithm>

namespace PanoHost
{

const QVector<CommandRow> &commands()
{
    static const QVector<CommandRow> rows{
        { "make", "from record and photos to the finished panorama, in one go", runMake },
        { "import", "make a Hugin project from a head's record and photos", runImport },
        { "check", "say what is known about record and photos; writes nothing", runCheck },
        { "sort", "find out which photos of a card belong to which record", runSort },
        { "describe", "print a panorama's description as JSON or as a table", runDescribe },
        { "align", "put every photo exactly where it belongs", runAlign },
        { "stitch", "make the panorama that a project describes", runStitch },
        { "preview", "save the layout picture of the import page", runPreview },
        { "demo", "photograph a made-up scene, import and stitch it", runDemoCommand },
        { "plugins", "list the import plug-ins found", runPlugins },
    };
    return rows;
}

QStringList commandNames()
{
    QStringList names;
    for (const CommandRow &row : commands()) {
        names += QString::fromLatin1(row.name);
    }
    return names;
}

const CommandRow *commandNamed(const QString &name)
{
    const auto *row
        = std::find_if(commands().begin(), commands().end(), [&name](const CommandRow &command) {
              return name == QLatin1String(command.name);
          });
    return row == commands().end() ? nullptr : row;
}

CommandLine generalLine()
{
    QString list = QStringLiteral("\n\nCommands:");
    for (const CommandRow &row : commands()) {
        list += QStringLiteral("\n  %1 %2")
                    .arg(QString::fromLatin1(row.name), -10)
                    .arg(QString::fromLatin1(row.summary));
    }
    return CommandLine(
        { "panohost                     open the import wizard\n"
          "panohost FILE...             open it with these files filled in\n"
          "panohost COMMAND ...         do one thing without a window",
          QByteArray("Turns the record of a motorised panoramic head and its photos into a Hugin\n"
                     "project, through the import plug-ins of the XPanoHead library.")
              + list.toUtf8(),
          "# a record and its photos, to the panorama and a page that shows it\n"
          "panohost make papywizard shoot.xml IMG_*.jpg -o pano.jpg\n"
          "# to a project for Hugin\n"
          "panohost import papywizard shoot.xml IMG_*.jpg -o shoot.pto\n"
          "# a head without a record: a grid of 4 rows\n"
          "panohost import gigapan IMG_*.jpg --rows 4 -o shoot.pto\n"
          "# is anything wrong with them?\n"
          "panohost check papywizard shoot.xml IMG_*.jpg\n"
          "# the options of one command\n"
          "panohost import --help" },
        {
            { "--style", "NAME",
              "look of the window, e.g. fusion; Qt's -stylesheet, -platformtheme, -geometry, -name "
              "and -reverse are understood as well, with one dash or two" },
            { "--platform", "NAME", "what shows the window, e.g. xcb or wayland" },
            { "--display", "NAME", "the X display that shows it" },
        });
}

} // namespace PanoHost
