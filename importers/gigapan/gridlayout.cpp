// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/gigapan/gridlayout.h"

#include "importers/gigapan/gridorder.h"

#include <algorithm>
#include <limits>

namespace PanoHead
{

namespace
{

constexpr int kGap = 4; // pixels between cells and around them
constexpr qint64 kLongestSide = 10'000;

qint64 canvasSide(int cells, int cellSide)
{
    return qint64{ cells } * (cellSide + kGap) + kGap;
}

/** Null when no cell size makes the canvas fit. */
QSize cellSize(const GridView &grid, QSize size)
{
    do {
        const QSize half(size.width() / 2, size.height() / 2);
        if (half.width() == size.width() || half.height() == size.height()) {
            return {};
        }
        size = half;
    } while (canvasSide(grid.columns, size.width()) > kLongestSide
             || canvasSide(grid.rows, size.height()) > kLongestSide);
    return size;
}

class Grid
{
public:
    Grid(const GridView &view, const QSize &cell)
        : m_view(view)
        , m_cell(cell)
    {
        m_layout.canvas = QSize(static_cast<int>(canvasSide(view.columns, cell.width())),
                                static_cast<int>(canvasSide(view.rows, cell.height())));
        m_layout.cells.reserve(view.rows * view.columns);
    }

    PreviewLayout laidOut()
    {
        const bool rowByRow = m_view.mode == kRowsDownward || m_view.mode == kRowsUpward;
        const int lines = rowByRow ? m_view.rows : m_view.columns;
        for (int line = 0; line < lines; ++line) {
            if (rowByRow) {
                appendRow(m_view.mode == kRowsUpward ? lines - 1 - line : line);
            } else {
                appendColumn(m_view.mode == kColumnsFromRight ? lines - 1 - line : line);
            }
        }
        return m_layout;
    }

private:
    void appendRow(int row)
    {
        for (int column = 0; column < m_view.columns; ++column) {
            appendCell(row, column);
        }
    }

    void appendColumn(int column)
    {
        for (int row = 0; row < m_view.rows; ++row) {
            appendCell(row, column);
        }
    }

    void appendCell(int row, int column)
    {
        const qint64 shot = shotIndex(m_view.mode, m_view.rows, m_view.columns, row, column);
        const qint64 first = m_view.mode == kSerpentine ? 0 : m_view.ignoredCount;
        const qint64 image = first + shot * m_view.bracketCount;
        PreviewCell cell;
        cell.box = QRectF(kGap + column * (m_cell.width() + kGap),
                          kGap + row * (m_cell.height() + kGap), m_cell.width(), m_cell.height());
        cell.image = static_cast<int>(std::min<qint64>(image, std::numeric_limits<int>::max()));
        m_layout.cells.append(cell);
    }

    GridView m_view;
    QSize m_cell;
    PreviewLayout m_layout;
};

} // namespace

PreviewLayout layOutGrid(const GridView &grid, const QSize &thumbnail)
{
    const QSize cell = cellSize(grid, thumbnail);
    return cell.isValid() ? Grid(grid, cell).laidOut() : PreviewLayout();
}

const PreviewLayout &GridLayout::of(const GridView &grid, const QSize &thumbnail)
{
    if (!(grid == m_grid) || thumbnail != m_thumbnail) {
        m_layout = layOutGrid(grid, thumbnail);
        m_grid = grid;
        m_thumbnail = thumbnail;
    }
    return m_layout;
}

} // namespace PanoHead
