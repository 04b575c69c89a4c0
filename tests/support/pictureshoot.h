// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/pageshoot.h"

#include <QColor>
#include <QImage>
#include <QPalette>
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
template <typename Page> struct PictureShoot : PageShoot<Page> {
    PictureShoot()
    {
        QPalette palette = this->page.palette();
        palette.setColor(QPalette::Window, kBackground);
        this->page.setPalette(palette);
        this->page.m_hSlider->setValue(100);
    }
    /** Chooses a Papywizard record with \p shots together with \p photos. */
    void load(const QVector<RecordXml::Shot> &shots, const QStringList &photos = {}) const
    {
        RecordXml record;
        record.shots = shots;
        this->driver.load(kSelectRecord, QStringList(photos) << this->writeRecord(record));
    }
    QString addPhoto(const char *name, const QColor &colour, long shotTime = 0) const
    {
        FakePhoto photo;
        photo.colour = colour;
        photo.shotTime = shotTime;
        return this->folder.addPhoto(QString::fromLatin1(name), photo);
    }
    /** Red, green, blue and yellow, taken in this order. */
    QStringList fourPhotos() const
    {
        return { addPhoto("a.jpg", kRed, 1), addPhoto("b.jpg", kGreen, 2),
                 addPhoto("c.jpg", kBlue, 3), addPhoto("d.jpg", kYellow, 4) };
    }
};

/** The colour in the lower right quarter of the cell at \p corner, where no caption reaches. */
[[nodiscard]] QColor cellColour(const QImage &picture, const QPoint &corner);

/** A cell of 96 x 96 pixels with its caption. */
struct CaptionedCell {
    QPointF corner;
    QColor colour; ///< invalid: no photo
    QString caption;
};

/** The picture as the text of the cells says, painted anew. */
[[nodiscard]] QImage painted(const QSize &canvas, const QVector<CaptionedCell> &cells);
