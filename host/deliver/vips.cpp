// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/vips.h"

#include "host/stitch/toolrun.h"

#include <QDir>

namespace PanoHost
{

Result<QString> runVips(const QStringList &arguments, const QString &folder, const JobWatch &watch)
{
    const Result<QString> vips = findTool(QStringLiteral("vips"));
    return vips ? runTool(vips.value(), arguments, folder, watch) : vips;
}

QString vipsName(const QString &path, const QString &folder)
{
    return QDir(folder).relativeFilePath(path);
}

} // namespace PanoHost
