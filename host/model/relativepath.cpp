// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/relativepath.h"

#include <QDir>
#include <QFileInfo>

namespace PanoHost
{

QString relativePath(const QString &path, const QString &folder)
{
    if (path.isEmpty()) {
        return path;
    }
    const QFileInfo info(path);
    QString absolute = QDir::cleanPath(info.absoluteFilePath());
    if (folder.isEmpty()) {
        return absolute;
    }
    QString relative = QDir(folder).relativeFilePath(absolute);
    if (!relative.startsWith(QStringLiteral("../"))) {
        return relative;
    }
    const QString realFolder = QFileInfo(folder).canonicalFilePath();
    const QString realHome = QFileInfo(info.absolutePath()).canonicalFilePath();
    if (realFolder.isEmpty() || realHome.isEmpty()) {
        return relative;
    }
    // The photo itself may be a link: its own name is the one to keep.
    return QDir(realFolder).relativeFilePath(QDir(realHome).filePath(info.fileName()));
}

} // namespace PanoHost
