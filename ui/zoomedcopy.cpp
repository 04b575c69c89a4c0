// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/zoomedcopy.h"

#include "ui/pixels.h"

#include <QPainter>
#include <QPixmap>

#include <algorithm>

namespace PanoHead
{

namespace
{

int zoomed(int side, int percent)
{
    return static_cast<int>(qint64{ side } * percent / 100);
}

/** Which pixel of \p sourceSide pixels each of \p side scaled ones shows, as Qt itself picks them.
 */
std::vector<int> sourceTable(int sourceSide, int side, Qt::Orientation orientation)
{
    const bool isRow = orientation == Qt::Horizontal;
    QImage numbers
        = withPixels(QImage(isRow ? sourceSide : 1, isRow ? 1 : sourceSide, QImage::Format_RGB32));
    for (int i = 0; i < sourceSide; ++i) {
        numbers.setPixel(isRow ? i : 0, isRow ? 0 : i, static_cast<uint>(i));
    }
    const QImage picked = withPixels(numbers.scaled(isRow ? side : 1, isRow ? 1 : side,
                                                    Qt::IgnoreAspectRatio, Qt::FastTransformation));
    std::vector<int> table;
    table.reserve(side);
    for (int i = 0; i < side; ++i) {
        table.push_back(static_cast<int>(picked.pixel(isRow ? i : 0, isRow ? 0 : i) & RGB_MASK));
    }
    return table;
}

/** Places in \p table, which ascends, whose source lies in first..last: begin and end. */
std::pair<int, int> placesFrom(const std::vector<int> &table, int first, int last)
{
    const auto begin = std::lower_bound(table.cbegin(), table.cend(), first);
    const auto end = std::upper_bound(begin, table.cend(), last);
    return { static_cast<int>(begin - table.cbegin()), static_cast<int>(end - table.cbegin()) };
}

} // namespace

QImage ZoomedCopy::make(const QImage &original, int percent)
{
    const QSize size = begin(original.size(), percent);
    return size.isEmpty()
        ? QImage()
        : withPixels(original.scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation));
}

QSize ZoomedCopy::begin(const QSize &originalSize, int percent)
{
    forget();
    m_percent = percent;
    const QSize size(zoomed(originalSize.width(), percent), zoomed(originalSize.height(), percent));
    if (!size.isEmpty()) {
        m_sourceColumns = sourceTable(originalSize.width(), size.width(), Qt::Horizontal);
        m_sourceRows = sourceTable(originalSize.height(), size.height(), Qt::Vertical);
    }
    return size;
}

QRegion ZoomedCopy::patch(QPixmap *copy, const QImage &original, const QRegion &region) const
{
    QRegion patched;
    if (copy->isNull()) {
        return patched;
    }
    QPainter painter(copy);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const QRect &rect : region) {
        const auto [left, right] = placesFrom(m_sourceColumns, rect.left(), rect.right());
        const auto [top, bottom] = placesFrom(m_sourceRows, rect.top(), rect.bottom());
        if (left >= right || top >= bottom) {
            continue;
        }
        QImage part = withPixels(QImage(right - left, bottom - top, original.format()));
        for (int y = top; y < bottom; ++y) {
            const auto *source
                = reinterpret_cast<const QRgb *>(original.constScanLine(m_sourceRows[y]));
            auto *target = reinterpret_cast<QRgb *>(part.scanLine(y - top));
            for (int x = left; x < right; ++x) {
                target[x - left] = source[m_sourceColumns[x]];
            }
        }
        painter.drawImage(left, top, part);
        patched += QRect(left, top, part.width(), part.height());
    }
    return patched;
}

} // namespace PanoHead
