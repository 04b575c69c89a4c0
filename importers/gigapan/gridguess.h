// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

namespace PanoHead
{

/** Rows and columns of a grid. */
struct GridSize {
    int rows;
    int columns;
};

/** The most square grid that takes exactly \p files photos; a prime count gives one row. */
[[nodiscard]] GridSize guessGrid(int files);

/** How many columns \p rows rows get: ((files - ignored) / bracket) / rows, truncating. */
[[nodiscard]] int columnsFor(int files, int ignored, int bracket, int rows);

} // namespace PanoHead
