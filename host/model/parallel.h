// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>

namespace PanoHost
{

/** How many threads \p jobs asks for: 0 is one for each processor. */
[[nodiscard]] int threadCount(int jobs);

/**
 * Runs \p work for every row from 0 to \p rows - 1, each exactly once, on \p jobs threads (0: one
 * for each processor); returns when all are done. \p work must touch only what belongs to its row.
 *
 * With a \p watch the calling thread does no rows: it calls it at once and then ten times a second,
 * with how many are done. What \p work or \p watch throws ends the whole: no further row is begun,
 * and it is thrown on once those that are under way are done.
 */
void forEachRow(int rows, const std::function<void(int row)> &work, int jobs = 0,
                const std::function<void(int done)> &watch = {});

} // namespace PanoHost
