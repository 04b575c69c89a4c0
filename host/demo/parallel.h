// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>

namespace PanoHost
{

/**
 * Runs \p work for every row from 0 to \p rows - 1, each exactly once, on all processors; returns
 * when all are done. \p work must touch only what belongs to its row.
 */
void forEachRow(int rows, const std::function<void(int row)> &work);

} // namespace PanoHost
