// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRegion>
#include <QSize>

#include <vector>

class QPixmap;

namespace PanoHead
{

/**
 * Scales a picture to some percent of its size, as Qt's fast transformation does, and brings parts
 * of the copy up to date. The copy is the caller's.
 */
class ZoomedCopy
{
public:
    /** A copy of \p original; null when a side would have less than one pixel. Throws
     * std::bad_alloc. */
    [[nodiscard]] QImage make(const QImage &original, int percent);
    /** Answers the size of a copy that is all to be patched, of a picture of \p originalSize; may
     * be empty. Throws std::bad_alloc. */
    [[nodiscard]] QSize begin(const QSize &originalSize, int percent);
    /**
     * Copies the pixels that come from \p region of \p original again, onto \p copy, which `make`
     * or `begin` has made of a picture of the same size. Answers the pixels copied. Throws
     * std::bad_alloc.
     */
    QRegion patch(QPixmap *copy, const QImage &original, const QRegion &region) const;
    /** No copy is known any more. */
    void forget() { *this = ZoomedCopy(); }

    /** Of the last copy made; 0 for none. */
    [[nodiscard]] int percent() const { return m_percent; }

private:
    int m_percent = 0;
    // Fast scaling picks one column and one row of the original per pixel.
    std::vector<int> m_sourceColumns;
    std::vector<int> m_sourceRows;
};

} // namespace PanoHead
