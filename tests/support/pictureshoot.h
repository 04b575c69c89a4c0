// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/heads.h"

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QVector>

// What the pictures of tests are made of.
const QColor kBackground(0x20, 0x40, 0x60);
const QColor kRed(0xff, 0x00, 0x00);
const QColor kGreen(0x00, 0xff, 0x00);
const QColor kBlue(0x00, 0x00, 0xff);
const QColor kYellow(0xff, 0xff, 0x00);
const QColor kOutline(Qt::black);

/** A page on a background of its own, at full zoom. */
struct PictureShoot : HeadShoot {
    explicit PictureShoot(const Head &shotWith);

    /** Chooses a record of \p shots together with \p photos. */
    void load(const QVector<ShotAngles> &shots, const QStringList &photos = {}) const;
    void setZoom(int percent) const;
    QString addPhoto(const char *name, const QColor &colour, long shotTime = 0) const;
    /** Red, green, blue and yellow, taken in this order. */
    [[nodiscard]] QStringList fourPhotos() const;
};

// Two columns 30 degrees apart, two rows 24 degrees apart, as a head sweeps them. The smallest step
// is 24, so the scale is 96 / 24 = 4 pixels per degree and the canvas (4 x 30 + 100) x (4 x 24 +
// 100). The cells' corners are at x = 50 + 4 yaw - 48 = 2 and 122, y = 50 + 4 (24 - pitch - 24) -
// 48 = 2 and 98; the highest pitch is at the top.
[[nodiscard]] QVector<ShotAngles> twoByTwo();

/** The colour in the lower right quarter of the cell at \p corner, where no caption reaches. */
[[nodiscard]] QColor cellColour(const QImage &picture, const QPoint &corner);
/** The cells of a picture of twoByTwo(), in the order of the shots. */
[[nodiscard]] QVector<QColor> cellColours(const QImage &picture);

/** A cell of 96 x 96 pixels with its caption. */
struct CaptionedCell {
    QPointF corner;
    QColor colour; ///< invalid: no photo
    QString caption;
};

/** The picture as the text of the cells says, painted anew. */
[[nodiscard]] QImage painted(const QSize &canvas, const QVector<CaptionedCell> &cells);
