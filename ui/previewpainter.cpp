// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/previewpainter.h"

#include "plugin/xiimagedef.h"

#include <QPainter>
#include <QTextOption>
#include <QTransform>

#include <cmath>

namespace PanoHead
{

namespace
{

constexpr int kBytesPerPixel = 4;

QPixmap turned(const QPixmap &thumbnail, float rollDegrees)
{
    if (rollDegrees == 0.0F || !std::isfinite(rollDegrees)) {
        return thumbnail;
    }
    return thumbnail.transformed(QTransform().rotate(static_cast<qreal>(rollDegrees)));
}

void drawCaption(QPainter &painter, const PreviewCell &cell, const CaptionColours &colours)
{
    const QRectF room = cell.box.adjusted(1.0, 1.0, -1.0, -1.0);
    const QString text = QStringLiteral("%1 (%2,%3)")
                             .arg(QString::number(cell.image), QString::number(cell.yaw),
                                  QString::number(cell.pitch));
    if (colours.ground.style() != Qt::NoBrush) {
        const QRectF ground = painter.boundingRect(room, text, QTextOption());
        painter.fillRect(ground & room, colours.ground);
    }
    const QPen outline = painter.pen();
    painter.setPen(colours.text);
    painter.drawText(room, text);
    painter.setPen(outline);
}

} // namespace

const QPixmap *thumbnailOf(const PreviewScene &scene, const PreviewCell &cell)
{
    if (cell.image < 0 || cell.image >= scene.images.size()) {
        return nullptr;
    }
    const QPixmap *thumbnail = scene.images.at(cell.image)->Thumbnail();
    return thumbnail == nullptr || thumbnail->isNull() ? nullptr : thumbnail;
}

void CellPainter::reset(int tileBytes)
{
    m_tiles.clear();
    m_tiles.setMaxCost(tileBytes);
}

void CellPainter::draw(QPainter &painter, const PreviewScene &scene, int cell,
                       const CaptionColours &caption)
{
    const PreviewCell &drawn = scene.layout.cells.at(cell);
    const bool isFitted = scene.style == CellStyle::FittedWithCaption;
    if (const QPixmap *thumbnail = thumbnailOf(scene, drawn)) {
        if (isFitted) {
            drawFitted(painter, *thumbnail, drawn, cell);
        } else {
            painter.drawPixmap(drawn.box.topLeft(), *thumbnail);
        }
    }
    painter.drawRect(drawn.box);
    if (isFitted) {
        drawCaption(painter, drawn, caption);
    }
}

void CellPainter::drawFitted(QPainter &painter, const QPixmap &thumbnail, const PreviewCell &cell,
                             int index)
{
    if (const Tile *kept = m_tiles.object(index)) {
        painter.drawPixmap(kept->position, kept->pixmap);
        return;
    }
    const Tile tile = fittedTile(thumbnail, cell);
    painter.drawPixmap(tile.position, tile.pixmap);
    const int bytes = tile.pixmap.width() * tile.pixmap.height() * kBytesPerPixel;
    m_tiles.insert(index, new Tile(tile), bytes);
}

CellPainter::Tile CellPainter::fittedTile(const QPixmap &thumbnail, const PreviewCell &cell)
{
    const QPoint position(static_cast<int>(std::floor(cell.box.left())) - 1,
                          static_cast<int>(std::floor(cell.box.top())) - 1);
    QPixmap pixmap(static_cast<int>(std::ceil(cell.box.width())) + 3,
                   static_cast<int>(std::ceil(cell.box.height())) + 3);
    pixmap.fill(Qt::transparent);
    const QPixmap photo = turned(thumbnail, cell.roll);
    QPainter painter(&pixmap);
    // Moved by the painter, not beforehand: the scale comes from the box as it is, and a rounding
    // of its sides can shift every pixel that is picked.
    painter.translate(-position);
    painter.drawPixmap(cell.box, photo, QRectF(photo.rect()));
    return { position, pixmap };
}

} // namespace PanoHead
