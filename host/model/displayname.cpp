// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/displayname.h"

#include <QDir>

namespace PanoHost
{

QString displayName(const QString &path)
{
    const QString relative = QDir::current().relativeFilePath(path);
    return relative.startsWith(QLatin1String("..")) ? path : relative;
}

QString counted(int count, const char *noun)
{
    return QStringLiteral("%1 %2%3").arg(QString::number(count), QString::fromLatin1(noun),
                                         QLatin1String(count == 1 ? "" : "s"));
}

} // namespace PanoHost
