// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/previewpainter.h"

#include "plugin/xiimagedef.h"

#include <QPainter>
#include <QTransform>

#include <cmath>
#include <new>

namespace PanoHead
{

namespace
{

/** A thumbnail made ready to be copied pixel by pixel to \c position. */
struct Tile {
    QPoint position;
    QPixmap pixmap;
};

QPixmap turned(const QPixmap &thumbnail, float rollDegrees)
{
    if (rollDegrees == 0.0F || !std::isfinite(rollDegrees)) {
        return thumbnail;
    }
    return thumbnail.transformed(QTransform().rotate(static_cast<qreal>(rollDegrees)));
}

/**
 * The thumbnail scaled into \p box. The tile starts on a whole pixel, so that the place within the
 * pixel is kept: copying a tile gives the same pixels under any clip, scaling under a clip does
 * not.
 */
Tile fittedTile(const QPixmap &thumbnail, const PreviewCell &cell)
{
    const QPoint position(static_cast<int>(std::floor(cell.box.left())) - 1,
                          static_cast<int>(std::floor(cell.box.top())) - 1);
    const QSize size(static_cast<int>(std::ceil(cell.box.width())) + 3,
                     static_cast<int>(std::ceil(cell.box.height())) + 3);
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    const QPixmap photo = turned(thumbnail, cell.roll);
    QPainter painter(&pixmap);
    painter.drawPixmap(cell.box.translated(-position), photo, QRectF(photo.rect()));
    return { position, pixmap };
}

const QPixmap *thumbnailOf(const PreviewScene &scene, const PreviewCell &cell)
{
    if (cell.image < 0 || cell.image >= scene.images.size()) {
        return nullptr;
    }
    const QPixmap *thumbnail = scene.images.at(cell.image)->Thumbnail();
    return thumbnail == nullptr || thumbnail->isNull() ? nullptr : thumbnail;
}

void drawCaption(QPainter &painter, const PreviewCell &cell)
{
    painter.drawText(cell.box.adjusted(1.0, 1.0, -1.0, -1.0),
                     QStringLiteral("%1 (%2,%3)")
                         .arg(QString::number(cell.image), QString::number(cell.yaw),
                              QString::number(cell.pitch)));
}

void drawCell(QPainter &painter, const PreviewScene &scene, const PreviewCell &cell)
{
    if (const QPixmap *thumbnail = thumbnailOf(scene, cell)) {
        if (scene.style == CellStyle::FittedWithCaption) {
            const Tile tile = fittedTile(*thumbnail, cell);
            painter.drawPixmap(tile.position, tile.pixmap);
        } else {
            painter.drawPixmap(cell.box.topLeft(), *thumbnail);
        }
    }
    painter.drawRect(cell.box);
    if (scene.style == CellStyle::FittedWithCaption) {
        drawCaption(painter, cell);
    }
}

} // namespace

QPixmap paintPreview(const PreviewScene &scene)
{
    if (scene.layout.isEmpty()) {
        return {};
    }
    try {
        QPixmap canvas(scene.layout.canvas);
        if (canvas.isNull()) {
            return {};
        }
        canvas.fill(Qt::transparent);
        QPainter painter(&canvas);
        painter.fillRect(canvas.rect(), scene.background);
        for (const PreviewCell &cell : scene.layout.cells) {
            drawCell(painter, scene, cell);
        }
        return canvas;
    } catch (const std::bad_alloc &) {
        return {};
    }
}

} // namespace PanoHead
