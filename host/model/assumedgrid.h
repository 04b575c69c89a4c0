// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "model/structuredpanoramaproperties.h"

#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

namespace PanoHost
{

/** Where a cell of a grid points to, degrees. */
struct GridDirection {
    double yawDegrees = 0.0;
    double pitchDegrees = 0.0;
};

/** The orders in which heads sweep a grid, numbered as pages do. */
constexpr int kGridModes = 5;
/** The word for \p mode, on the command line too: "rows-up". */
[[nodiscard]] QString gridModeName(int mode);

/** Whether heads sweep row after row in this order; otherwise column after column. */
[[nodiscard]] bool sweepsRows(int mode);

/** A cell of a grid: rows count from the top, columns from the left, both from 0. */
struct GridCell {
    int row = 0;
    int column = 0;
};
/** The cell that was shot as number \p shot, from 0, in the order \p mode. */
[[nodiscard]] GridCell gridCellOf(int shot, int mode, int rows, int columns);

/** "row 2 of column 5", as they are counted on a wall. */
[[nodiscard]] QString gridCellName(const GridCell &cell);

/** A start layout for a grid whose angles nobody recorded. */
struct AssumedGrid {
    QVector<GridDirection> directions; ///< one per position, shooting order
    int columns = 0;
    QStringList warnings;
};

/**
 * Lays the positions of \p description out from its grid fields, for upright frames of \p frame
 * pixels. Neighbours come to overlap; detection and optimisation do the rest. Cells \p missing, by
 * their numbers in shooting order from 0, have no position; numbers outside the grid say nothing.
 */
[[nodiscard]] AssumedGrid assumedGrid(const StructuredPanoramaProperties &description,
                                      const QSize &frame, double focal35mm, LensModel lens,
                                      const QVector<qint32> &missing = {});

} // namespace PanoHost
