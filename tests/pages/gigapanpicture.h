// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/pages/gigapanshoot.h"

#include <QColor>
#include <QImage>
#include <QSize>
#include <QString>
#include <QVector>

inline constexpr QSize kThumbnail(160, 120);
inline constexpr QSize kCell(80, 60); // half of it

inline const QColor kBackground(0xc0, 0xc0, 0xc0); // light grey
inline const QColor kOutline(Qt::black);
inline const QColor kRed(0xff, 0x00, 0x00);
inline const QColor kGreen(0x00, 0xff, 0x00);
inline const QColor kBlue(0x00, 0x00, 0xff);
inline const QColor kYellow(0xff, 0xff, 0x00);

/** A colour of its own for each of the first 16 photos. */
[[nodiscard]] QColor colourOf(int photo);

/** A page at full zoom. */
struct ZoomedShoot : GigapanShoot {
    ZoomedShoot() { page.m_hSlider->setValue(100); }
    QString addPhoto(const QString &name, const QColor &colour, long shotTime = 0,
                     const QSize &size = kThumbnail) const
    {
        FakePhoto photo;
        photo.colour = colour;
        photo.shotTime = shotTime;
        photo.size = size;
        return folder.addPhoto(name, photo);
    }
    /** Photos in the order of their names and times, each in its own colour. */
    void loadPhotos(int count) const
    {
        QStringList photos;
        for (int i = 0; i < count; ++i) {
            photos.append(addPhoto(QStringLiteral("%1.jpg").arg(i, 4, 10, QLatin1Char('0')),
                                   colourOf(i % 16), i));
        }
        driver.load(kSelectPhotos, photos);
    }
    void setNumbers(int rows, int bracket, int ignored) const
    {
        page.m_sbIgnore->setValue(ignored);
        page.m_sbBracket->setValue(bracket);
        page.m_sbRow->setValue(rows);
    }
};

/** A cell of the grid as the preview draws it. */
struct DrawnCell {
    int row;
    int column;
    QColor colour; ///< invalid: no photo
    QSize thumbnail = kThumbnail;
};

/** The picture of \p cells of \p size in their order, painted anew. */
[[nodiscard]] QImage painted(const QSize &canvas, const QSize &size,
                             const QVector<DrawnCell> &cells);
/** Cells without photos, in any order. */
[[nodiscard]] QImage outlines(const QSize &canvas, const QSize &size, int rows, int columns);
