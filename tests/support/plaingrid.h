// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "model/structuredpanoramaproperties.h"

#include <QPair>
#include <QVector>

/**
 * The grids of sweeping heads once more, written down cell by cell: what generator, page and
 * preview are compared with.
 */
namespace PlainGrid
{

using Cell = QPair<int, int>; ///< row from the top, column from the left
using Links = QVector<QVector<int>>; ///< kind, first and second index of each link

/** The head's way over the grid in the shooting order \p mode, as someone beside it sees it. */
[[nodiscard]] QVector<Cell> walk(int mode, int rows, int columns);
/** Every neighbourhood of the grid in the order in which it is written. */
[[nodiscard]] Links neighbours(int mode, int rows, int columns, bool is360);
/** The links of \p description in the same form, from link \p first on. */
[[nodiscard]] Links linksOf(const StructuredPanoramaProperties &description, int first = 0);

} // namespace PlainGrid
