// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/plainpreview.h"

#include "hostlink/xiimagedef.h"

#include <QPainter>
#include <QPixmap>
#include <QTextOption>
#include <QTransform>
#include <QWidget>

#include <cmath>

using namespace PanoHead;

namespace
{

const QPixmap *photoFor(const PreviewScene &scene, const PreviewCell &cell)
{
    if (cell.image < 0 || cell.image >= scene.images.size()) {
        return nullptr;
    }
    const QPixmap *thumbnail = scene.images.at(cell.image)->Thumbnail();
    return thumbnail == nullptr || thumbnail->isNull() ? nullptr : thumbnail;
}

void drawCaption(QPainter &painter, const PreviewCell &cell, const CaptionColours &colours)
{
    const QRectF room = cell.box.adjusted(1, 1, -1, -1);
    const QString text
        = QStringLiteral("%1 (%2,%3)")
              .arg(QString::number(cell.image), QString::number(static_cast<double>(cell.yaw)),
                   QString::number(static_cast<double>(cell.pitch)));
    if (colours.ground.style() != Qt::NoBrush) {
        const QRectF lines = painter.boundingRect(room, text, QTextOption());
        painter.fillRect(lines.intersected(room), colours.ground);
    }
    painter.setPen(colours.text);
    painter.drawText(room, text);
}

} // namespace

void drawPlainCells(QPainter &painter, const PreviewScene &scene, const CaptionColours &caption)
{
    const QPen outline = painter.pen();
    const bool isUnscaled = scene.style == CellStyle::UnscaledPhoto;
    for (const PreviewCell &cell : scene.layout.cells) {
        if (const QPixmap *thumbnail = photoFor(scene, cell)) {
            if (isUnscaled) {
                painter.drawPixmap(cell.box.topLeft(), *thumbnail);
            } else if (cell.roll == 0.0F || !std::isfinite(cell.roll)) {
                painter.drawPixmap(cell.box, *thumbnail, QRectF(thumbnail->rect()));
            } else {
                const QPixmap turned
                    = thumbnail->transformed(QTransform().rotate(static_cast<qreal>(cell.roll)));
                painter.drawPixmap(cell.box, turned, QRectF(turned.rect()));
            }
        }
        painter.drawRect(cell.box);
        if (!isUnscaled) {
            drawCaption(painter, cell, caption);
            painter.setPen(outline);
        }
    }
}

QImage plainPicture(const PreviewScene &scene, const PreviewColours &colours)
{
    if (scene.layout.canvas.isEmpty()) {
        return {};
    }
    QPixmap pixmap(scene.layout.canvas);
    if (!colours.background.isOpaque()) {
        pixmap.fill(Qt::transparent);
    }
    QPainter painter(&pixmap);
    painter.fillRect(pixmap.rect(), colours.background);
    drawPlainCells(painter, scene, colours.caption);
    painter.end();
    return pixmap.toImage();
}

PreviewColours plainColours(CellStyle style, const QWidget &label)
{
    if (style == CellStyle::UnscaledPhoto) {
        return { QBrush(Qt::lightGray), { QPen(Qt::black), {} } };
    }
    const QBrush window = label.palette().brush(QPalette::Current, QPalette::Window);
    const QColor text = label.palette().color(QPalette::Current, QPalette::WindowText);
    QColor ground = window.color();
    ground.setAlphaF(0.6);
    const bool isDarkTheme = text.lightness() > window.color().lightness();
    return { window, { QPen(text), isDarkTheme ? QBrush(ground) : QBrush() } };
}

QImage plainZoom(const QImage &picture, int percent)
{
    const QSize size(picture.width() * percent / 100, picture.height() * percent / 100);
    if (size.isEmpty()) {
        return {};
    }
    return picture.scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation);
}

QString pixelDifference(const QImage &picture, const QImage &expected)
{
    if (picture.size() != expected.size()) {
        return QStringLiteral("%1 x %2 pixels, not %3 x %4")
            .arg(QString::number(picture.width()), QString::number(picture.height()),
                 QString::number(expected.width()), QString::number(expected.height()));
    }
    const QImage a = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage b = expected.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (a == b) {
        return {};
    }
    int count = 0;
    QPoint first;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y) && count++ == 0) {
                first = QPoint(x, y);
            }
        }
    }
    return QStringLiteral("%1 pixels differ, first at %2,%3: %4, not %5")
        .arg(QString::number(count), QString::number(first.x()), QString::number(first.y()),
             QString::number(a.pixel(first), 16), QString::number(b.pixel(first), 16));
}
