// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace PanoHost
{

/**
 * \p path as the operating system finds it from \p folder (empty: absolute).
 *
 * Where the way leads up ("../") and folders on it are symbolic links, their real places count:
 * "link/.." is not the folder that holds the link. An empty \p path stays empty.
 */
[[nodiscard]] QString relativePath(const QString &path, const QString &folder);

} // namespace PanoHost
