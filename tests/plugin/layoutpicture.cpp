// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "layoutpicture.h"

#include <QPainter>
#include <QPair>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace
{

using LayoutPicture::Grid;
using LayoutPicture::Shot;
using Cell = QPair<int, int>; // row from the top, column from the left

double smallestStep(const QVector<Shot> &shots)
{
    double step = 360.0;
    for (int i = 1; i < shots.size(); ++i) {
        for (const double difference : { std::abs(shots.at(i).yaw - shots.at(i - 1).yaw),
                                         std::abs(shots.at(i).pitch - shots.at(i - 1).pitch) }) {
            step = difference > 0.0 ? std::min(step, difference) : step;
        }
    }
    return std::max(step, 8.0);
}

/** The cells in the order of the shots. */
QVector<Cell> walk(const Grid &grid)
{
    const bool byColumns = grid.mode == 0 || grid.mode == 3;
    const int lines = byColumns ? grid.columns : grid.rows;
    const int length = byColumns ? grid.rows : grid.columns;
    QVector<Cell> cells;
    for (int line = 0; line < lines; ++line) {
        const int place = grid.mode == 0 || grid.mode == 1 ? line : lines - 1 - line;
        for (int i = 0; i < length; ++i) {
            const bool isBackwards = grid.mode == 4 && line % 2 == 1;
            const int along = isBackwards ? length - 1 - i : i;
            cells.append(byColumns ? Cell(along, place) : Cell(place, along));
        }
    }
    return cells;
}

int side(int cells, int cellSide)
{
    return cells * (cellSide + 4) + 4;
}

QSize cellSize(const Grid &grid, const LayoutPicture::Thumbnails &thumbnails)
{
    const auto first = std::find_if(thumbnails.cbegin(), thumbnails.cend(),
                                    [](const QPixmap *thumbnail) { return thumbnail != nullptr; });
    QSize size = first == thumbnails.cend() ? QSize(96, 96) : (*first)->size();
    do {
        size = QSize(size.width() / 2, size.height() / 2);
    } while (side(grid.columns, size.width()) > 10'000 || side(grid.rows, size.height()) > 10'000);
    return size;
}

} // namespace

QImage LayoutPicture::ofShots(const QVector<Shot> &shots, const Thumbnails &thumbnails,
                              const QPalette &palette)
{
    const auto less = [](double Shot::*angle) {
        return [angle](const Shot &a, const Shot &b) { return a.*angle < b.*angle; };
    };
    const auto yaws = std::minmax_element(shots.cbegin(), shots.cend(), less(&Shot::yaw));
    const auto pitches = std::minmax_element(shots.cbegin(), shots.cend(), less(&Shot::pitch));
    const double scale = 96.0 / smallestStep(shots);
    QPixmap canvas(
        static_cast<int>(scale * (yaws.second->yaw - yaws.first->yaw) + 100.0),
        static_cast<int>(scale * (pitches.second->pitch - pitches.first->pitch) + 100.0));
    canvas.fill(palette.color(QPalette::Current, QPalette::Window));
    QPainter painter(&canvas);
    for (int t = 0; t < shots.size(); ++t) {
        const Shot &shot = shots.at(t);
        const QRectF box(50.0 + scale * (shot.yaw - yaws.first->yaw) - 48.0,
                         50.0 + scale * (pitches.second->pitch - shot.pitch) - 48.0, 96.0, 96.0);
        if (const QPixmap *thumbnail = thumbnails.value(t)) {
            const QPixmap turned = shot.roll == 0.0
                ? *thumbnail
                : thumbnail->transformed(QTransform().rotate(shot.roll));
            painter.drawPixmap(box, turned, QRectF(turned.rect()));
        }
        painter.setPen(QPen());
        painter.drawRect(box);
        painter.setPen(palette.color(QPalette::Current, QPalette::WindowText));
        painter.drawText(box.adjusted(1, 1, -1, -1),
                         QStringLiteral("%1 (%2,%3)").arg(t).arg(shot.yaw).arg(shot.pitch));
    }
    painter.end();
    return canvas.toImage();
}

QImage LayoutPicture::ofGrid(const Grid &grid, const Thumbnails &thumbnails)
{
    const QSize size = cellSize(grid, thumbnails);
    QPixmap canvas(side(grid.columns, size.width()), side(grid.rows, size.height()));
    canvas.fill(Qt::lightGray);
    QPainter painter(&canvas);
    QVector<Cell> cells = walk(grid);
    const QVector<Cell> shots = cells;
    int first = grid.ignoredCount;
    if (grid.mode == 4) {
        // Drawn column by column, though not shot so, and nothing is left out.
        cells = walk({ grid.rows, grid.columns, 0, 1, 0 });
        first = 0;
    }
    for (const Cell &cell : qAsConst(cells)) {
        const QRect box(
            QPoint(4 + cell.second * (size.width() + 4), 4 + cell.first * (size.height() + 4)),
            size);
        const int photo = first + shots.indexOf(cell) * grid.bracketCount;
        if (const QPixmap *thumbnail = thumbnails.value(photo)) {
            painter.drawPixmap(box.topLeft(), *thumbnail);
        }
        painter.drawRect(box);
    }
    painter.end();
    return canvas.toImage();
}

QImage LayoutPicture::zoomed(const QImage &picture, int percent)
{
    return picture.scaled(picture.width() * percent / 100, picture.height() * percent / 100,
                          Qt::IgnoreAspectRatio, Qt::FastTransformation);
}

QString LayoutPicture::difference(const QImage &picture, const QImage &expected)
{
    if (picture.size() != expected.size()) {
        return QStringLiteral("%1 x %2 pixels, not %3 x %4")
            .arg(picture.width())
            .arg(picture.height())
            .arg(expected.width())
            .arg(expected.height());
    }
    const QImage a = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage b = expected.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    int count = 0;
    QString first;
    for (int y = 0; y < a.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(a.constScanLine(y));
        const auto *wanted = reinterpret_cast<const QRgb *>(b.constScanLine(y));
        for (int x = 0; x < a.width(); ++x) {
            if (line[x] != wanted[x] && count++ == 0) {
                first = QStringLiteral("%1,%2: %3, not %4")
                            .arg(x)
                            .arg(y)
                            .arg(line[x], 8, 16)
                            .arg(wanted[x], 8, 16);
            }
        }
    }
    return count == 0 ? QString()
                      : QStringLiteral("%1 pixels differ, first at %2").arg(count).arg(first);
}
