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

constexpr int kSpill = 2; // outlines and rounding around a cell, pixels
constexpr qint64 kCaptionBytes = 768; // about
// Kept in any case, in bytes: a handful of tiles and the captions around them.
constexpr int kTileBytes = 512 * 1024;
constexpr qint64 kLeastCaptions = 256 * 1024;
// Some ten rows of the largest shoots; more are not drawn again and again.
constexpr qint64 kMostCaptions = 4 * 1024 * 1024;

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

template <typename Kept>
Kept &keep(QCache<int, Kept> &cache, std::unique_ptr<Kept> &loose, int number,
           std::unique_ptr<Kept> made, qint64 bytes)
{
    if (bytes > cache.maxCost()) {
        loose = std::move(made);
        return *loose;
    }
    Kept &kept = *made;
    cache.insert(number, made.release(), static_cast<int>(bytes));
    return kept;
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

void CellPainter::reset(qint64 bytes, std::optional<QRgb> textColour)
{
    m_tiles.clear();
    m_captions.clear();
    m_looseTile.reset();
    m_looseCaption.reset();
    m_letterCase.reset();
    if (textColour) {
        m_letterCase.emplace(*textColour);
    }
    m_tiles.setMaxCost(kTileBytes);
    m_captions.setMaxCost(static_cast<int>(std::clamp(bytes / 2, kLeastCaptions, kMostCaptions)));
}

void CellPainter::draw(const Patch &patch, const PreviewScene &scene, int cell,
                       const CaptionColours &caption)
{
    const PreviewCell &drawn = scene.layout.cells.at(cell);
    const bool isFitted = scene.style == CellStyle::FittedWithCaption;
    if (const QPixmap *thumbnail = thumbnailOf(scene, drawn)) {
        if (isFitted) {
            const QPixmap photo = turned(*thumbnail, drawn);
            patch.painter.drawPixmap(drawn.box, photo, QRectF(photo.rect()));
        } else {
            patch.painter.drawPixmap(drawn.box.topLeft(), *thumbnail);
        }
    }
    const bool hasRoom = m_letterCase && m_letterCase->hasRoom();
    drawParts(patch, scene, cell, { false, true, isFitted && hasRoom }, caption);
    if (isFitted && !hasRoom) {
        Caption::drawOnce(patch.painter, drawn, caption);
    }
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
        const Tile &tile = tileFor(*thumbnail, drawn, cell);
        painter.drawImage(tile.position, tile.image);
    }
    if (parts.outline) {
        drawOutline(patch, drawn.box);
    }
    if (parts.caption) {
        captionFor(drawn, cell, painter.font()).draw(patch, caption);
    }
}

CellParts CellPainter::partsIn(const QRect &rect, const PreviewScene &scene, int cell,
                               const QPainter &painter)
{
    const PreviewCell &asked = scene.layout.cells.at(cell);
    const QRect around = asked.box.toAlignedRect().adjusted(-kSpill, -kSpill, kSpill, kSpill);
    const bool isFitted = scene.style == CellStyle::FittedWithCaption;
    CellParts parts;
    if (around.intersects(rect)) {
        // Tiny cells have no inside; turned inside out, it would hold pixels all the same.
        const QRectF inside = asked.box.adjusted(kSpill, kSpill, -kSpill, -kSpill);
        parts.outline = !inside.isValid() || !inside.contains(QRectF(rect));
        parts.caption = isFitted && captionFor(asked, cell, painter.font()).rect().intersects(rect);
    } else if (isFitted) {
        return parts;
    }
    const QPixmap *thumbnail = thumbnailOf(scene, asked);
    parts.photo
        = thumbnail != nullptr && photoRect(scene.style, asked, thumbnail->size()).intersects(rect);
    return parts;
}

QRect CellPainter::hiddenBehind(const PreviewScene &scene, int cell)
{
    const PreviewCell &asked = scene.layout.cells.at(cell);
    const QPixmap *thumbnail = thumbnailOf(scene, asked);
    if (thumbnail == nullptr || thumbnail->hasAlphaChannel()) {
        return {};
    }
    if (scene.style == CellStyle::FittedWithCaption && !tileFor(*thumbnail, asked, cell).isOpaque) {
        return {};
    }
    return photoRect(scene.style, asked, thumbnail->size());
}

CellPainter::Tile &CellPainter::tileFor(const QPixmap &thumbnail, const PreviewCell &cell,
                                        int number)
{
    if (Tile *kept = m_tiles.object(number)) {
        return *kept;
    }
    auto tile = std::make_unique<Tile>(fittedTile(thumbnail, cell));
    const qint64 bytes = tile->image.sizeInBytes();
    return keep(m_tiles, m_looseTile, number, std::move(tile), bytes);
}

CellPainter::Tile CellPainter::fittedTile(const QPixmap &thumbnail, const PreviewCell &cell)
{
    const QPixmap photo = turned(thumbnail, cell);
    const QRect room = photoRect(CellStyle::FittedWithCaption, cell, photo.size());
    Tile tile;
    if (!photo.hasAlphaChannel() && !room.isEmpty()) {
        tile.position = room.topLeft();
        tile.image = withPixels(QImage(room.size(), QImage::Format_ARGB32_Premultiplied));
        // Scaling may leave out the last row or column, which then lacks in the corner too.
        const QPoint corner = tile.image.rect().bottomRight();
        tile.image.setPixel(corner, 0);
        drawInto(tile, photo, cell);
        if (qAlpha(tile.image.pixel(corner)) == 255) {
            tile.isOpaque = tile.image.reinterpretAsFormat(QImage::Format_RGB32);
            return tile;
        }
    }
    tile.position = QPoint(static_cast<int>(std::floor(cell.box.left())) - 1,
                           static_cast<int>(std::floor(cell.box.top())) - 1);
    tile.image = withPixels(QImage(static_cast<int>(std::ceil(cell.box.width())) + 3,
                                   static_cast<int>(std::ceil(cell.box.height())) + 3,
                                   QImage::Format_ARGB32_Premultiplied));
    tile.image.fill(Qt::transparent);
    drawInto(tile, photo, cell);
    return tile;
}

void CellPainter::drawInto(Tile &tile, const QPixmap &photo, const PreviewCell &cell)
{
    QPainter painter(&tile.image);
    // Moved by the painter, not beforehand: the scale comes from the box as it is, and a rounding
    // of its sides can shift every pixel that is picked.
    painter.translate(-tile.position);
    painter.drawPixmap(cell.box, photo, QRectF(photo.rect()));
}

Caption &CellPainter::captionFor(const PreviewCell &cell, int number, const QFont &font)
{
    if (Caption *kept = m_captions.object(number)) {
        return *kept;
    }
    return keep(m_captions, m_looseCaption, number,
                std::make_unique<Caption>(cell, font, m_letterCase ? &*m_letterCase : nullptr),
                kCaptionBytes);
}

} // namespace PanoHead
