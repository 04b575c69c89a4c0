// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/check/shotmatch.h"

#include <QSizeF>

namespace PanoHost
{

/** A grid whose angles nobody recorded. */
struct SweptGrid {
    int rows = 1;
    int mode = 0; ///< the order in which it was swept, as pages number them
    int bracketCount = 1;
    QSizeF fields; ///< of view of a photo, degrees
};

/** Which photo belongs to which shot of a grid. */
struct GridMatch {
    ShotMatch match;
    int columns = 0; ///< as many as the pictures show
};

/**
 * Lays \p photos, in the order in which they were taken, out by what \p measure sees of them: those
 * that overlap lie a step apart along a line or across. Whoever overlaps with nobody has the cell
 * between its neighbours, when there is just one. Nothing when the pictures do not tell all of it,
 * or another order than that of \p grid.
 */
[[nodiscard]] std::optional<GridMatch>
matchGrid(const SweptGrid &grid, const QVector<PhotoInfo> &photos, const MeasureRotation &measure);

} // namespace PanoHost
