// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/pictureshoot.h"

#include <QPainter>
#include <QPixmap>

QColor cellColour(const QImage &picture, const QPoint &corner)
{
    return picture.pixelColor(corner + QPoint(80, 80));
}

QImage painted(const QSize &canvas, const QVector<CaptionedCell> &cells)
{
    QPixmap pixmap(canvas);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.fillRect(pixmap.rect(), kBackground);
    for (const CaptionedCell &cell : cells) {
        const QRectF box(cell.corner, QSizeF(96, 96));
        if (cell.colour.isValid()) {
            painter.fillRect(box, cell.colour);
        }
        painter.drawRect(box);
        painter.drawText(box.adjusted(1, 1, -1, -1), cell.caption);
    }
    return pixmap.toImage();
}
