// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/programicon.h"

/** The linker takes only what is asked for out of this library. */
static void initializeIcons()
{
    Q_INIT_RESOURCE(icons);
}

namespace PanoHost
{

QIcon programIcon()
{
    initializeIcons();
    QIcon icon;
    for (const char *const side : { "48", "64", "128" }) {
        icon.addFile(QStringLiteral(":/panohost/icon-%1.png").arg(QLatin1String(side)));
    }
    return icon;
}

} // namespace PanoHost
