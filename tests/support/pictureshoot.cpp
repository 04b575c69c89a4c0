// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/pictureshoot.h"

#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSlider>

PictureShoot::PictureShoot(const Head &shotWith)
    : HeadShoot(shotWith)
{
    QPalette palette = page->palette();
    palette.setColor(QPalette::Window, kBackground);
    page->setPalette(palette);
    setZoom(100);
}

void PictureShoot::load(const QVector<ShotAngles> &shots, const QStringList &photos) const
{
    const QString record = folder.write(QString::fromLatin1(head.recordName), head.recordOf(shots));
    driver.load(kSelectRecord, QStringList(photos) << record);
}

void PictureShoot::setZoom(int percent) const
{
    driver.find<QSlider>("m_hSlider")->setValue(percent);
}

QString PictureShoot::addPhoto(const char *name, const QColor &colour, long shotTime) const
{
    FakePhoto photo;
    photo.colour = colour;
    photo.shotTime = shotTime;
    return folder.addPhoto(QString::fromLatin1(name), photo);
}

QStringList PictureShoot::fourPhotos() const
{
    return { addPhoto("a.jpg", kRed, 1), addPhoto("b.jpg", kGreen, 2), addPhoto("c.jpg", kBlue, 3),
             addPhoto("d.jpg", kYellow, 4) };
}

QVector<ShotAngles> twoByTwo()
{
    return { { 0, 0 }, { 30, 0 }, { 30, -24 }, { 0, -24 } };
}

QColor cellColour(const QImage &picture, const QPoint &corner)
{
    return picture.pixelColor(corner + QPoint(80, 80));
}

QVector<QColor> cellColours(const QImage &picture)
{
    return { cellColour(picture, QPoint(2, 2)), cellColour(picture, QPoint(122, 2)),
             cellColour(picture, QPoint(122, 98)), cellColour(picture, QPoint(2, 98)) };
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
