// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/import/gridchoice.h"
#include "host/import/photofit.h"

namespace PanoHost
{

/**
 * Finds out which cells of \p grid have no photo, and which photos belong to none, where \p photos,
 * in the order of their names, do not fill it. Nobody has written down how far a grid's head turns
 * between two shots: that is learnt from the pictures, taken through \p lens. Refuses when it
 * cannot be told surely, and names the line with the longest pause. The fit begins with the photos
 * that \p grid ignores. Throws when \p watch says so.
 */
[[nodiscard]] Result<PhotoFit> fitGrid(const GridChoice &grid, const QVector<PhotoInfo> &photos,
                                       const KnownLens &lens, const JobWatch &watch = {});

} // namespace PanoHost
