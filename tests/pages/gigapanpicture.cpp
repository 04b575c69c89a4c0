// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/pages/gigapanpicture.h"

#include <QPainter>
#include <QPixmap>

QColor colourOf(int photo)
{
    return QColor(QColor::fromHsv(photo * 22, 255, 220).rgb()); // 8 bits, as in pictures
}

QImage painted(const QSize &canvas, const QSize &size, const QVector<DrawnCell> &cells)
{
    QPixmap pixmap(canvas);
    pixmap.fill(kBackground);
    QPainter painter(&pixmap);
    for (const DrawnCell &cell : cells) {
        const QPoint corner(4 + cell.column * (size.width() + 4),
                            4 + cell.row * (size.height() + 4));
        if (cell.colour.isValid()) {
            painter.fillRect(QRect(corner, cell.thumbnail), cell.colour);
        }
        painter.drawRect(QRect(corner, size));
    }
    painter.end();
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage outlines(const QSize &canvas, const QSize &size, int rows, int columns)
{
    QVector<DrawnCell> cells;
    for (int cell = 0; cell < rows * columns; ++cell) {
        cells.append({ cell / columns, cell % columns, QColor() });
    }
    return painted(canvas, size, cells);
}
