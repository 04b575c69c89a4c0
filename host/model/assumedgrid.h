// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "model/structuredpanoramaproperties.h"

#include <QSize>
#include <QStringList>
#include <QVector>

namespace PanoHost
{

/** Where a cell of a grid points to, degrees. */
struct GridDirection {
    double yawDegrees = 0.0;
    double pitchDegrees = 0.0;
};

/** A start layout for a grid whose angles nobody recorded. */
struct AssumedGrid {
    QVector<GridDirection> directions; ///< one per position, shooting order
    int columns = 0;
    QStringList warnings;
};

/**
 * Lays the positions of \p description out from its grid fields, for upright frames of \p frame
 * pixels. Neighbours come to overlap; detection and optimisation do the rest.
 */
[[nodiscard]] AssumedGrid assumedGrid(const StructuredPanoramaProperties &description,
                                      const QSize &frame, double focal35mm, LensModel lens);

} // namespace PanoHost
