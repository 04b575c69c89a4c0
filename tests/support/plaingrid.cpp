// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/plaingrid.h"

#include <QMap>

QVector<PlainGrid::Cell> PlainGrid::walk(int mode, int rows, int columns)
{
    QVector<Cell> cells;
    const auto column = [&](int c) {
        for (int r = 0; r < rows; ++r) {
            cells.append({ r, c });
        }
    };
    const auto row = [&](int r, bool toRight) {
        for (int c = 0; c < columns; ++c) {
            cells.append({ r, toRight ? c : columns - 1 - c });
        }
    };
    if (mode == 0) {
        for (int c = 0; c < columns; ++c) {
            column(c);
        }
    } else if (mode == 3) {
        for (int c = columns - 1; c >= 0; --c) {
            column(c);
        }
    } else if (mode == 1) {
        for (int r = 0; r < rows; ++r) {
            row(r, true);
        }
    } else {
        for (int r = rows - 1, line = 0; r >= 0; --r, ++line) {
            row(r, mode == 2 || line % 2 == 0);
        }
    }
    return cells;
}

PlainGrid::Links PlainGrid::neighbours(int mode, int rows, int columns, bool is360)
{
    const QVector<Cell> cells = walk(mode, rows, columns);
    QMap<Cell, int> shot;
    for (int i = 0; i < cells.size(); ++i) {
        shot.insert(cells[i], i);
    }
    Links links;
    for (int r = 0; r < rows; ++r) {
        for (int c = 0; c < columns; ++c) {
            const bool lastColumn = c == columns - 1;
            const bool lastRow = r == rows - 1;
            const int right = (c + 1) % columns;
            if (!lastRow) {
                links.append({ 1, shot[{ r, c }], shot[{ r + 1, c }] });
            }
            if (!lastColumn || is360) {
                links.append({ 2, shot[{ r, c }], shot[{ r, right }] });
                if (!lastRow) {
                    links.append({ 4, shot[{ r + 1, c }], shot[{ r, right }] });
                    links.append({ 3, shot[{ r, c }], shot[{ r + 1, right }] });
                }
            }
        }
    }
    return links;
}

PlainGrid::Links PlainGrid::linksOf(const StructuredPanoramaProperties &description, int first)
{
    Links links;
    for (const AuthorizedLink &link : description.authorizedLinks.mid(first)) {
        links.append({ link.linkType, link.indices.value(0), link.indices.value(1) });
    }
    return links;
}
