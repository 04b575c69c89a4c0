// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace PanoHead
{

// Orders in which a head sweeps a grid.
constexpr int kColumnsFromLeft = 0; ///< each column top to bottom
constexpr int kRowsDownward = 1; ///< each row left to right, from the top
constexpr int kRowsUpward = 2; ///< each row left to right, from the bottom
constexpr int kColumnsFromRight = 3; ///< each column top to bottom
constexpr int kSerpentine = 4; ///< rows from the bottom, left to right and back; has no button

[[nodiscard]] constexpr bool isGridOrder(int mode)
{
    return mode >= kColumnsFromLeft && mode <= kSerpentine;
}

/**
 * 0-based place in the shooting sequence of the cell at \p row (0: top) and \p column (0: left) of
 * a grid of \p rows x \p columns. 0 for a mode that does not exist.
 */
[[nodiscard]] constexpr qint64 shotIndex(int mode, qint64 rows, qint64 columns, qint64 row,
                                         qint64 column)
{
    const qint64 rowFromBottom = rows - 1 - row;
    const qint64 columnFromRight = columns - 1 - column;
    switch (mode) {
    case kColumnsFromLeft:
        return row + rows * column;
    case kRowsDownward:
        return column + columns * row;
    case kRowsUpward:
        return column + columns * rowFromBottom;
    case kColumnsFromRight:
        return row + rows * columnFromRight;
    case kSerpentine:
        return columns * rowFromBottom + (rowFromBottom % 2 == 0 ? column : columnFromRight);
    default:
        return 0;
    }
}

} // namespace PanoHead
