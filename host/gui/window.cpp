// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/window.h"

namespace PanoHost
{

void prepareWindow()
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

ExitCode runWindow(Session &session, const QStringList &arguments)
{
    Q_UNUSED(session)
    Q_UNUSED(arguments)
    return ExitCode::Usage;
}

} // namespace PanoHost
