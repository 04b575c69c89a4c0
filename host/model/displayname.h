// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace PanoHost
{

/** How messages name \p path: relative to the current folder where it lies in it, else in full. */
[[nodiscard]] QString displayName(const QString &path);

/** "1 photo", "3 photos". */
[[nodiscard]] QString counted(int count, const char *noun);

} // namespace PanoHost
