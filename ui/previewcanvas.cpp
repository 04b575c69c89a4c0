// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/previewcanvas.h"

#include <QPainter>

#include <algorithm>
#include <new>

namespace PanoHead
{

namespace
{

constexpr int kBucketSide = 128; // pixels
constexpr int kSpill = 2; // outlines and rounding around a cell, pixels
// When more than this part of the cells changes, one redraw is cheaper than many patches.
constexpr int kWorthPatching = 4;
constexpr int kTilePart = 8; // tiles may take this part of the picture's memory

QRect grown(const QRectF &box)
{
    return box.toAlignedRect().adjusted(-kSpill, -kSpill, kSpill, kSpill);
}

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
        return { true, {} };
    }
    const std::vector<int> changed = changedCells(scene);
    if (changed.size() * kWorthPatching > static_cast<size_t>(scene.layout.cells.size())) {
        return { true, {} };
    }
    Change change;
    for (const int cell : changed) {
        change.region += paintedRect(scene, cell);
    }
    change.region &= m_image.rect();
    return change;
}

void PreviewCanvas::update(const PreviewScene &scene, const PreviewColours &colours,
                           const Change &change)
{
    if (change.isNone()) {
        m_scene.images = scene.images;
        return;
    }
    const std::vector<int> changed = change.everything ? std::vector<int>() : changedCells(scene);
    m_scene = scene;
    m_colours = colours;
    if (change.everything) {
        redraw();
        return;
    }
    for (const int cell : changed) {
        m_painter.forget(cell);
        m_largestPainted = m_largestPainted.expandedTo(paintedRect(m_scene, cell).size());
    }
    patch(change.region);
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
    try {
        const auto format = m_colours.background.isOpaque() ? QImage::Format_RGB32
                                                            : QImage::Format_ARGB32_Premultiplied;
        m_image = QImage(m_scene.layout.canvas, format);
        if (m_image.isNull()) {
            return;
        }
        m_painter.reset(static_cast<int>(m_image.sizeInBytes() / kTilePart));
        indexCells();
        QPainter painter(&m_image);
        fillBackground(painter);
        for (int cell = 0; cell < m_scene.layout.cells.size(); ++cell) {
            m_painter.draw(painter, m_scene, cell, m_colours.caption);
        }
        m_isValid = true;
    } catch (const std::bad_alloc &) {
        m_image = QImage();
    }
}

void PreviewCanvas::patch(const QRegion &region)
{
    m_isValid = false;
    try {
        const std::vector<int> cells = cellsTouching(region);
        QPainter painter(&m_image);
        painter.setClipRegion(region);
        fillBackground(painter);
        for (const int cell : cells) {
            m_painter.draw(painter, m_scene, cell, m_colours.caption);
        }
        m_isValid = true;
    } catch (const std::bad_alloc &) {
        m_image = QImage();
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
    m_largestPainted = QSize();
    std::vector<int> bucketOfCell;
    for (int cell = 0; cell < cells.size(); ++cell) {
        const QRect painted = paintedRect(m_scene, cell);
        m_largestPainted = m_largestPainted.expandedTo(painted.size());
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

/** All pixels that the cell may touch, whichever photo it shows or showed. */
QRect PreviewCanvas::paintedRect(const PreviewScene &scene, int cell) const
{
    const PreviewCell &drawn = scene.layout.cells.at(cell);
    QRect painted = grown(drawn.box);
    if (scene.style == CellStyle::UnscaledPhoto) {
        if (const QPixmap *thumbnail = thumbnailOf(scene, drawn)) {
            painted |= grown(QRectF(drawn.box.topLeft(), QSizeF(thumbnail->size())));
        }
        painted.setSize(painted.size().expandedTo(m_largestPainted));
    }
    return painted;
}

/** In drawing order. */
std::vector<int> PreviewCanvas::cellsTouching(const QRegion &region) const
{
    std::vector<int> touching;
    for (const QRect &rect : region) {
        const int firstColumn = bucketOf(rect.left() - m_largestPainted.width(), m_bucketColumns);
        const int lastColumn = bucketOf(rect.right(), m_bucketColumns);
        const int firstRow = bucketOf(rect.top() - m_largestPainted.height(), m_bucketRows);
        const int lastRow = bucketOf(rect.bottom(), m_bucketRows);
        for (int row = firstRow; row <= lastRow; ++row) {
            const int bucket = row * m_bucketColumns;
            for (int slot = m_bucketStarts[bucket + firstColumn];
                 slot < m_bucketStarts[bucket + lastColumn + 1]; ++slot) {
                if (paintedRect(m_scene, m_bucketCells[slot]).intersects(rect)) {
                    touching.push_back(m_bucketCells[slot]);
                }
            }
        }
    }
    std::sort(touching.begin(), touching.end());
    touching.erase(std::unique(touching.begin(), touching.end()), touching.end());
    return touching;
}

} // namespace PanoHead
