// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/check/findings.h"
#include "host/import/pagedriver.h"

#include <optional>

namespace PanoHost
{

/** The grid of a head that leaves no record, as the user describes it. */
struct GridChoice {
    int rows = 0;
    int bracketCount = 1; ///< photos per position
    int ignoredCount = 0; ///< photos in front that belong to no position
    int mode = 0; ///< shooting order, as the page counts them
    bool wrap360 = false;
    std::optional<double> overlapPercent; ///< nothing: the page's own
};

/** The number of the shooting order \p name ("rows-up"), as `GridChoice` holds it; 0, the first,
 * for any other word. */
[[nodiscard]] int gridModeNamed(const QString &name);

/** What \p grid makes of \p photoCount photos. */
[[nodiscard]] Finding gridFinding(const GridChoice &grid, int photoCount);

/** Throws unless \p photoCount photos fill the grid: whole positions, as many in each row. */
void requireFullGrid(const GridChoice &grid, int photoCount);

/** Enters \p grid into the page; after the photos, since they reset it. */
void enterGrid(PageDriver &page, const GridChoice &grid);

} // namespace PanoHost
