// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/cli/heads.h"

namespace PanoHost
{

/**
 * Reads the Papywizard record at \p path with the library's own reader, which, unlike the page,
 * says what is wrong with it and where. Refuses a record without pictures too.
 */
[[nodiscard]] Result<RecordSummary> readPapywizardSummary(const QString &path);

} // namespace PanoHost
