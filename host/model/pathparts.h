// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <algorithm>

namespace PanoHost
{

/** The file's own name in \p path. */
[[nodiscard]] inline QString nameOf(const QString &path)
{
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

/** What stands before the name in \p path, without the last slash; empty where there is no slash.
 */
[[nodiscard]] inline QString folderOf(const QString &path)
{
    return path.left(std::max(path.lastIndexOf(QLatin1Char('/')), 0));
}

} // namespace PanoHost
