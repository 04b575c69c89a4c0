// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/previewcanvas.h"

#include "ui/pixels.h"

#include <QPainter>

#include <algorithm>

namespace PanoHead
{

namespace
{

constexpr int kBucketSide = 128; // pixels
constexpr int kStripRows = 32;
// When more than this part of the cells changes, one redraw is cheaper than many patches.
constexpr int kWorthPatching = 4;
constexpr int kKeptPart = 8; // what the painter keeps may take this part of the picture's memory
// Beyond this many rectangles, keeping account of what is hidden costs more than it saves.
constexpr int kMostOpenRects = 32;

int bucketOf(int position, int buckets)
{
    return std::clamp(position / kBucketSide, 0, buckets - 1);
}

} // namespace

PreviewCanvas::Change PreviewCanvas::changeTo(const PreviewScene &scene,
                                              const PreviewColours &colours) const
{
    const bool isOtherPicture = !m_isValid || !(scene.layout == m_scene.layout)
        || scene.style != m_scene.style || !(colours == m_colours);
    // Gradients have other roundings under a clip.
    if (isOtherPicture || colours.background.gradient() != nullptr) {
        return { true, {}, {} };
    }
    const std::vector<int> changed = changedCells(scene);
    if (changed.size() * kWorthPatching > static_cast<size_t>(scene.layout.cells.size())) {
        return { true, {}, {} };
    }
    Change change;
    change.cells = changed;
    for (const int cell : changed) {
        change.region += changedPixels(scene, cell);
    }
    change.region &= m_image.rect();
    return change;
}

void PreviewCanvas::update(const PreviewScene &scene, const PreviewColours &colours,
                           const Change &change)
{
    m_scene = scene;
    m_colours = colours;
    if (change.everything) {
        redraw();
        return;
    }
    for (const int cell : change.cells) {
        notePhoto(cell);
    }
    if (!change.region.isEmpty()) {
        patch(change.region);
    }
}

void PreviewCanvas::forgetPhotos()
{
    std::fill(m_scene.images.begin(), m_scene.images.end(), nullptr);
}

void PreviewCanvas::clear()
{
    m_isValid = false;
    m_image = QImage();
    m_scene = PreviewScene();
    m_painter.reset(0);
}

void PreviewCanvas::redraw()
{
    m_isValid = false;
    m_painter.reset(0);
    // The old picture goes first: both together could be half a gigabyte.
    m_image = QImage();
    if (m_scene.layout.isEmpty()) {
        m_isValid = true;
        return;
    }
    const auto format = m_colours.background.isOpaque() ? QImage::Format_RGB32
                                                        : QImage::Format_ARGB32_Premultiplied;
    m_image = withPixels(QImage(m_scene.layout.canvas, format));
    m_painter.reset(m_image.sizeInBytes() / kKeptPart);
    indexCells();
    if (m_scene.style == CellStyle::FittedWithCaption) {
        drawCells();
    } else {
        drawStrips();
    }
    m_isValid = true;
}

void PreviewCanvas::drawCells()
{
    QPainter painter(&m_image);
    fillBackground(painter);
    const Patch whole{ m_image, painter, m_image.rect() };
    const CellParts all{ true, true, true };
    for (int cell = 0; cell < m_scene.layout.cells.size(); ++cell) {
        m_painter.drawParts(whole, m_scene, cell, all, m_colours.caption);
    }
}

/** Unscaled photos reach far over their neighbours: what they hide is left out, strip by strip. */
void PreviewCanvas::drawStrips()
{
    QPainter painter(&m_image);
    for (int top = 0; top < m_image.height(); top += kStripRows) {
        const QRect strip(0, top, m_image.width(), kStripRows);
        patchRect({ m_image, painter, strip & m_image.rect() });
    }
}

void PreviewCanvas::patch(const QRegion &region)
{
    m_isValid = false;
    QPainter painter(&m_image);
    for (const QRect &rect : region) {
        patchRect({ m_image, painter, rect });
    }
    m_isValid = true;
}

/** Looks from the last cell down for what is not hidden, then draws it from the first one up. */
void PreviewCanvas::patchRect(const Patch &patch)
{
    const QRect &rect = patch.rect;
    QPainter &painter = patch.painter;
    painter.setClipRect(rect);
    QRegion open(rect);
    std::vector<std::pair<int, CellParts>> seen;
    const std::vector<int> cells = cellsTouching(rect);
    for (auto cell = cells.crbegin(); cell != cells.crend() && !open.isEmpty(); ++cell) {
        const CellParts parts
            = m_painter.partsIn(open.boundingRect(), m_scene, *cell, painter.font());
        if (!parts.isNone()) {
            seen.emplace_back(*cell, parts);
        }
        if (parts.photo && open.rectCount() < kMostOpenRects) {
            open -= CellPainter::hiddenBehind(m_scene, m_scene.layout.cells.at(*cell));
        }
    }
    if (!open.isEmpty()) {
        fillBackground(painter);
    }
    for (auto cell = seen.crbegin(); cell != seen.crend(); ++cell) {
        m_painter.drawParts(patch, m_scene, cell->first, cell->second, m_colours.caption);
    }
}

void PreviewCanvas::fillBackground(QPainter &painter) const
{
    if (m_image.hasAlphaChannel()) {
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(m_image.rect(), Qt::transparent);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    }
    painter.fillRect(m_image.rect(), m_colours.background);
}

/** Sorts the cells by their photo and by their place. */
void PreviewCanvas::indexCells()
{
    const QVector<PreviewCell> &cells = m_scene.layout.cells;
    m_cellOfImage.clear();
    m_bucketColumns = m_image.width() / kBucketSide + 1;
    m_bucketRows = m_image.height() / kBucketSide + 1;
    m_bucketStarts.assign(static_cast<size_t>(m_bucketColumns) * m_bucketRows + 1, 0);
    m_largestBox = QSize();
    m_largestPhoto = QSize();
    std::vector<int> bucketOfCell;
    for (int cell = 0; cell < cells.size(); ++cell) {
        const QRect painted = paintedRect(cell);
        m_largestBox = m_largestBox.expandedTo(painted.size());
        notePhoto(cell);
        const int bucket = bucketOf(painted.top(), m_bucketRows) * m_bucketColumns
            + bucketOf(painted.left(), m_bucketColumns);
        bucketOfCell.push_back(bucket);
        ++m_bucketStarts[bucket + 1];
        m_cellOfImage.emplace_back(cells.at(cell).image, cell);
    }
    std::sort(m_cellOfImage.begin(), m_cellOfImage.end());
    for (size_t bucket = 1; bucket < m_bucketStarts.size(); ++bucket) {
        m_bucketStarts[bucket] += m_bucketStarts[bucket - 1];
    }
    std::vector<int> next = m_bucketStarts;
    m_bucketCells.resize(cells.size());
    for (int cell = 0; cell < cells.size(); ++cell) {
        m_bucketCells[next[bucketOfCell[cell]]++] = cell;
    }
}

/** Cells whose photo is another one in \p scene. */
std::vector<int> PreviewCanvas::changedCells(const PreviewScene &scene) const
{
    std::vector<int> changed;
    const auto addCellsOf = [this, &changed](int image) {
        auto entry = std::lower_bound(m_cellOfImage.cbegin(), m_cellOfImage.cend(),
                                      std::make_pair(image, 0));
        for (; entry != m_cellOfImage.cend() && entry->first == image; ++entry) {
            changed.push_back(entry->second);
        }
    };
    const int known = m_scene.images.size();
    const int now = scene.images.size();
    for (int image = 0; image < std::max(known, now); ++image) {
        if (image >= known || image >= now || m_scene.images.at(image) != scene.images.at(image)) {
            addCellsOf(image);
        }
    }
    return changed;
}

/** Pixels that change with the photo of \p cell: those of the old and of the new one. */
QRect PreviewCanvas::changedPixels(const PreviewScene &scene, int cell) const
{
    const PreviewCell &changed = scene.layout.cells.at(cell);
    const QPixmap *thumbnail = thumbnailOf(scene, changed);
    const QRect now
        = thumbnail == nullptr ? QRect() : photoRect(scene.style, changed, thumbnail->size());
    // The old photo itself may be gone.
    const bool hadPhoto = changed.image < m_scene.images.size();
    return hadPhoto ? now | photoRect(scene.style, changed, m_largestPhoto) : now;
}

/** Remembers how far the photo of \p cell reaches. */
void PreviewCanvas::notePhoto(int cell)
{
    const QPixmap *thumbnail = thumbnailOf(m_scene, m_scene.layout.cells.at(cell));
    if (thumbnail != nullptr && m_scene.style == CellStyle::UnscaledPhoto) {
        m_largestPhoto = m_largestPhoto.expandedTo(thumbnail->size());
    }
}

/** All pixels that \p cell may touch, whichever photo it shows. */
QRect PreviewCanvas::paintedRect(int cell) const
{
    const PreviewCell &painted = m_scene.layout.cells.at(cell);
    return outlineRect(painted) | QRect(painted.box.topLeft().toPoint(), m_largestPhoto);
}

/** In drawing order. */
std::vector<int> PreviewCanvas::cellsTouching(const QRect &rect) const
{
    std::vector<int> touching;
    const QSize reach = m_largestBox.expandedTo(m_largestPhoto + QSize(kSpill, kSpill));
    const int firstColumn = bucketOf(rect.left() - reach.width(), m_bucketColumns);
    const int lastColumn = bucketOf(rect.right(), m_bucketColumns);
    const int firstRow = bucketOf(rect.top() - reach.height(), m_bucketRows);
    const int lastRow = bucketOf(rect.bottom(), m_bucketRows);
    for (int row = firstRow; row <= lastRow; ++row) {
        const int bucket = row * m_bucketColumns;
        for (int slot = m_bucketStarts[bucket + firstColumn];
             slot < m_bucketStarts[bucket + lastColumn + 1]; ++slot) {
            if (paintedRect(m_bucketCells[slot]).intersects(rect)) {
                touching.push_back(m_bucketCells[slot]);
            }
        }
    }
    std::sort(touching.begin(), touching.end());
    return touching;
}

} // namespace PanoHead
