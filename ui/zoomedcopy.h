// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRegion>

#include <vector>

namespace PanoHead
{

/**
 * A picture scaled to some percent of its size, as Qt's fast transformation scales it, of which
 * parts can be brought up to date.
 */
class ZoomedCopy
{
public:
    /** Scales all of \p original; null when a side would have less than one pixel. */
    void make(const QImage &original, int percent);
    /** Copies the pixels that come from \p region of \p original again. */
    void patch(const QImage &original, const QRegion &region);

    [[nodiscard]] const QImage &image() const { return m_image; }
    [[nodiscard]] int percent() const { return m_percent; }

private:
    [[nodiscard]] bool sharesOriginal() const { return m_percent == 100; }

    int m_percent = 0;
    QImage m_image;
    // Fast scaling picks one column and one row of the original per pixel.
    std::vector<int> m_sourceColumns;
    std::vector<int> m_sourceRows;
};

} // namespace PanoHead
