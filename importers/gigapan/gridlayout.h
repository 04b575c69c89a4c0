// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "shoot/previewlayout.h"

#include <QSize>

namespace PanoHead
{

/** A grid as its page shows it. */
struct GridView {
    int rows = 1;
    int columns = 1;
    int mode = 0;
    int bracketCount = 1;
    int ignoredCount = 0;

    friend bool operator==(const GridView &a, const GridView &b)
    {
        return a.rows == b.rows && a.columns == b.columns && a.mode == b.mode
            && a.bracketCount == b.bracketCount && a.ignoredCount == b.ignoredCount;
    }
};

/** Sides of a thumbnail while no photo has been read, pixels. */
constexpr QSize kDefaultThumbnail(96, 96);

/**
 * Places one cell per grid position, at most half as large as \p thumbnail and halved further
 * until the canvas fits in 10,000 x 10,000 pixels; empty when that is impossible. Each cell shows
 * the first photo of its stack. Cells come in shooting order; the serpentine walks its columns and
 * does not count ignored photos; it has no button, only hosts that call its slot see it.
 */
[[nodiscard]] PreviewLayout layOutGrid(const GridView &grid, const QSize &thumbnail);

/** The layout of a grid, worked out again only when something about it has changed. */
class GridLayout
{
public:
    /** As `layOutGrid`. */
    const PreviewLayout &of(const GridView &grid, const QSize &thumbnail);

private:
    GridView m_grid;
    QSize m_thumbnail; // invalid: nothing has been laid out
    PreviewLayout m_layout;
};

} // namespace PanoHead
