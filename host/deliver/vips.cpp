// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/vips.h"

#include "host/deliver/viewerpage.h"
#include "host/model/displayname.h"
#include "host/model/safefile.h"
#include "host/model/said.h"
#include "host/stitch/toolrun.h"

#include <QDir>
#include <QFileInfo>

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

QString backgroundText()
{
    return QStringLiteral("%1 %1 %1").arg(kBackgroundGrey);
}

QString jpegOptions(int quality)
{
    return QStringLiteral("[Q=%1,strip,background=%2]")
        .arg(QString::number(quality), backgroundText());
}

Failure notWhole(const QString &path)
{
    return orLackOfRoom({ ExitCode::ToolFailed, QStringLiteral("vips"),
                          Said::tr("it left %1 incomplete").arg(displayName(path)),
                          Said::tr("is the disk full?") },
                        QFileInfo(path).path());
}

Result<QString> wholeJpeg(const QString &path)
{
    const auto file = openRegularFile(path);
    constexpr qint64 kMarkBytes = 2;
    if (file && file.value()->size() > 2 * kMarkBytes
        && file.value()->read(kMarkBytes) == "\xff\xd8"
        && file.value()->seek(file.value()->size() - kMarkBytes)
        && file.value()->read(kMarkBytes) == "\xff\xd9") {
        return path;
    }
    return notWhole(path);
}

} // namespace PanoHost
