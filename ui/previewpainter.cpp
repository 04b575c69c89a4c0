// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/previewpainter.h"

#include "hostlink/xiimagedef.h"
#include "ui/pixels.h"

#include <QPainter>
#include <QPixmap>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace PanoHead
{

namespace
{

constexpr qint64 kCaptionBytes = 768; // about
constexpr qint64 kLeastCaptions = 256LL * 1024; // kept in any case, bytes
// Some ten rows of the largest shoots; more are not drawn again and again.
constexpr qint64 kMostCaptions = 4LL * 1024 * 1024;

bool isUnturned(const PreviewCell &cell)
{
    return cell.roll == 0.0F || !std::isfinite(cell.roll);
}

QPixmap turned(const QPixmap &thumbnail, const PreviewCell &cell)
{
    if (isUnturned(cell)) {
        return thumbnail;
    }
    return withPixels(thumbnail.transformed(QTransform().rotate(static_cast<qreal>(cell.roll))));
}

void fillOpaque(const Patch &patch, const QRect &rect, QRgb colour)
{
    const QRect seen = rect & patch.rect;
    uchar *bits = patch.image.bits();
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(bits + qint64{ y } * patch.image.bytesPerLine());
        std::fill_n(line + seen.left(), seen.width(), colour);
    }
}

/**
 * The lines that the painter strokes around \p box with its default pen, filled: they cover the
 * pixels that hold the box's sides. Strokes of tiny boxes have other ends, and places left of or
 * above the picture are rounded the other way.
 */
void drawOutline(const Patch &patch, const QRectF &box)
{
    constexpr qreal kLeastSide = 2.0;
    constexpr QRgb kBlack = 0xff000000;
    if (box.width() < kLeastSide || box.height() < kLeastSide || box.left() < 0.0
        || box.top() < 0.0) {
        patch.painter.setPen(QPen());
        patch.painter.drawRect(box);
        return;
    }
    const QRect frame(
        QPoint(static_cast<int>(std::floor(box.left())), static_cast<int>(std::floor(box.top()))),
        QPoint(static_cast<int>(std::floor(box.right())),
               static_cast<int>(std::floor(box.bottom()))));
    fillOpaque(patch, QRect(frame.left(), frame.top(), frame.width(), 1), kBlack);
    fillOpaque(patch, QRect(frame.left(), frame.bottom(), frame.width(), 1), kBlack);
    fillOpaque(patch, QRect(frame.left(), frame.top(), 1, frame.height()), kBlack);
    fillOpaque(patch, QRect(frame.right(), frame.top(), 1, frame.height()), kBlack);
}

void drawFitted(QPainter &painter, const QPixmap &thumbnail, const PreviewCell &cell)
{
    const QPixmap photo = turned(thumbnail, cell);
    painter.drawPixmap(cell.box, photo, QRectF(photo.rect()));
}

/** Scaling under a clip that cuts the photo would give other pixels; copying a tile does not. */
void drawFittedTile(QPainter &painter, const QPixmap &thumbnail, const PreviewCell &cell)
{
    const QRect around = cell.box.toAlignedRect().adjusted(-1, -1, 1, 1);
    QImage tile = withPixels(QImage(around.size(), QImage::Format_ARGB32_Premultiplied));
    tile.fill(Qt::transparent);
    QPainter tilePainter(&tile);
    // Moved by the painter, not beforehand: the scale comes from the box as it is, and a rounding
    // of its sides can shift every pixel that is picked.
    tilePainter.translate(-around.topLeft());
    drawFitted(tilePainter, thumbnail, cell);
    tilePainter.end();
    painter.drawImage(around.topLeft(), tile);
}

} // namespace

const QPixmap *thumbnailOf(const PreviewScene &scene, const PreviewCell &cell)
{
    if (cell.image < 0 || cell.image >= scene.images.size()) {
        return nullptr;
    }
    XIImageDef *photo = scene.images.at(cell.image);
    const QPixmap *thumbnail = photo == nullptr ? nullptr : photo->Thumbnail();
    return thumbnail == nullptr || thumbnail->isNull() ? nullptr : thumbnail;
}

QRect photoRect(CellStyle style, const PreviewCell &cell, const QSize &size)
{
    return style == CellStyle::UnscaledPhoto ? QRect(cell.box.topLeft().toPoint(), size)
                                             : cell.box.toRect();
}

void CellPainter::reset(qint64 bytes)
{
    m_captions.clear();
    m_captions.setMaxCost(static_cast<int>(std::clamp(bytes, kLeastCaptions, kMostCaptions)));
}

void CellPainter::drawParts(const Patch &patch, const PreviewScene &scene, int cell,
                            const CellParts &parts, const CaptionColours &caption)
{
    QPainter &painter = patch.painter;
    const PreviewCell &drawn = scene.layout.cells.at(cell);
    const QPixmap *thumbnail = parts.photo ? thumbnailOf(scene, drawn) : nullptr;
    if (thumbnail != nullptr && scene.style == CellStyle::UnscaledPhoto) {
        painter.drawPixmap(drawn.box.topLeft(), *thumbnail);
    } else if (thumbnail != nullptr) {
        if (patch.rect.contains(photoRect(scene.style, drawn, thumbnail->size()))) {
            drawFitted(painter, *thumbnail, drawn);
        } else {
            drawFittedTile(painter, *thumbnail, drawn);
        }
    }
    if (parts.outline) {
        drawOutline(patch, drawn.box);
    }
    if (parts.caption) {
        captionFor(drawn, cell, painter.font()).draw(patch, caption);
    }
}

CellParts CellPainter::partsIn(const QRect &rect, const PreviewScene &scene, int cell,
                               const QFont &font)
{
    const PreviewCell &asked = scene.layout.cells.at(cell);
    const bool isFitted = scene.style == CellStyle::FittedWithCaption;
    CellParts parts;
    if (outlineRect(asked).intersects(rect)) {
        // Tiny cells have no inside; turned inside out, it would hold pixels all the same.
        const QRectF inside = asked.box.adjusted(kSpill, kSpill, -kSpill, -kSpill);
        parts.outline = !inside.isValid() || !inside.contains(QRectF(rect));
        parts.caption = isFitted && captionFor(asked, cell, font).rect().intersects(rect);
    }
    // A photo that cannot be seen is not asked for its thumbnail.
    if (isFitted && !asked.box.toRect().intersects(rect)) {
        return parts;
    }
    const QPixmap *thumbnail = thumbnailOf(scene, asked);
    parts.photo
        = thumbnail != nullptr && photoRect(scene.style, asked, thumbnail->size()).intersects(rect);
    return parts;
}

QRect CellPainter::hiddenBehind(const PreviewScene &scene, const PreviewCell &cell)
{
    const QPixmap *thumbnail = thumbnailOf(scene, cell);
    if (thumbnail == nullptr || thumbnail->hasAlphaChannel()) {
        return {};
    }
    // Turned by other angles, a photo has see-through corners.
    const float roll = std::abs(cell.roll);
    const bool isWhole = scene.style == CellStyle::UnscaledPhoto || isUnturned(cell)
        || roll == 90.0F || roll == 180.0F || roll == 270.0F;
    return isWhole ? photoRect(scene.style, cell, thumbnail->size()) : QRect();
}

Caption CellPainter::captionFor(const PreviewCell &cell, int number, const QFont &font)
{
    if (const Caption *kept = m_captions.object(number)) {
        return *kept;
    }
    Caption made(cell, font);
    m_captions.insert(number, new Caption(made), kCaptionBytes);
    return made;
}

} // namespace PanoHead
