// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/cli/heads.h"

namespace PanoHost
{

/**
 * Reads the Clauss script at \p path with the library's own reader, which, unlike the page, says
 * which line is wrong. Refuses a script without shots too, and says what the reader leaves out.
 */
[[nodiscard]] Result<RecordSummary> readClaussSummary(const QString &path);

} // namespace PanoHost
