// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/stitch/projectcheck.h"

#include "host/stitch/toolrun.h"

#include <QFileInfo>

namespace PanoHost
{

Result<QString> checkProject(const QString &path, int photos, const JobWatch &watch)
{
    const Result<QString> checkpto = findTool(QStringLiteral("checkpto"));
    if (!checkpto) {
        return checkpto.error();
    }
    const QFileInfo project(path);
    const Result<ToolEnd> end
        = runToEnd(checkpto.value(), { project.absoluteFilePath() }, project.absolutePath(), watch);
    if (!end) {
        return end.error();
    }
    // Its exit status counts the groups of photos that no control point connects.
    if (!end.value().said.contains(QStringLiteral("contains\n%1 images").arg(photos))) {
        return Failure{ ExitCode::ToolFailed, project.fileName(),
                        QStringLiteral("checkpto does not find its %1 photos").arg(photos),
                        QStringLiteral("were photos moved or removed meanwhile? try again") };
    }
    return QStringLiteral("checkpto accepts the project and finds %1 photos").arg(photos);
}

} // namespace PanoHost
