// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDir>
#include <QFileInfo>
#include <QString>

namespace PanoHost
{

/** \p output with \p ending in place of its own: "/a/NAME.jpg" and "_zoom" give "/a/NAME_zoom". */
[[nodiscard]] inline QString outputName(const QString &output, const QString &ending)
{
    const QFileInfo file(output);
    return file.dir().filePath(file.completeBaseName() + ending);
}

} // namespace PanoHost
