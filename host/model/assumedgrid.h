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
