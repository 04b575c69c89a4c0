// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/result.h"

#include <QString>

namespace PanoHost
{

/**
 * Gives the finished file \p part its place \p wanted (a link there is followed), where an older
 * file goes in the same moment. On other file systems it is copied beside its place first. When
 * this fails both are left as they were. Answers \p wanted.
 */
[[nodiscard]] Result<QString> moveFile(const QString &part, const QString &wanted);

/**
 * The same for a folder, which is marked as this program's own. Only a folder that bears this mark,
 * or an empty one, is replaced: nobody's files are lost.
 */
[[nodiscard]] Result<QString> moveFolder(const QString &part, const QString &wanted);

/** Whether `moveFile` and `moveFolder` would accept \p wanted as a place: to be asked before hours
 * are spent. */
[[nodiscard]] Result<QString> checkFilePlace(const QString &wanted);
[[nodiscard]] Result<QString> checkFolderPlace(const QString &wanted);

/** The name of the file that marks this program's own folders. */
[[nodiscard]] QString folderMark();

} // namespace PanoHost
