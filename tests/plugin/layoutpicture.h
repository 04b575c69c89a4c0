// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPalette>
#include <QPixmap>
#include <QString>
#include <QVector>

/**
 * The pictures that the pages show, drawn a second time: all at once, cell by cell, by plain calls
 * of the painter, from nothing but what the user entered and the host answered.
 */
namespace LayoutPicture
{

/** Thumbnails in the order in which the page shows them; null: there is none. */
using Thumbnails = QVector<const QPixmap *>;

/** Degrees. Drawn exactly alike in both precisions where all places are whole pixels. */
struct Shot {
    double yaw = 0.0;
    double pitch = 0.0;
    double roll = 0.0;
};

struct Grid {
    int rows = 0;
    int columns = 0;
    int mode = 0;
    int bracketCount = 1;
    int ignoredCount = 0;
};

/** Photo t belongs to shot t. */
[[nodiscard]] QImage ofShots(const QVector<Shot> &shots, const Thumbnails &thumbnails,
                             const QPalette &palette);
[[nodiscard]] QImage ofGrid(const Grid &grid, const Thumbnails &thumbnails);
[[nodiscard]] QImage zoomed(const QImage &picture, int percent);
/** Empty when both are the same; otherwise how many pixels differ and where the first. */
[[nodiscard]] QString difference(const QImage &picture, const QImage &expected);

} // namespace LayoutPicture
