// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/previewpainter.h"

#include <QBrush>
#include <QImage>
#include <QRect>
#include <QRegion>

#include <utility>
#include <vector>

namespace PanoHead
{

/** Colours of a layout picture. */
struct PreviewColours {
    QBrush background;
    CaptionColours caption; ///< outlines have the painter's default pen

    friend bool operator==(const PreviewColours &a, const PreviewColours &b)
    {
        return a.background == b.background && a.caption == b.caption;
    }
};

/**
 * A layout picture at 100 percent that follows its scene: it redraws only the cells whose photo
 * has changed, and what lies over or under them, with the same pixels as a redraw of everything.
 */
class PreviewCanvas
{
public:
    /** What an update did to the picture. */
    struct Change {
        bool everything = false;
        QRegion region; ///< changed pixels; empty for no change and for everything

        [[nodiscard]] bool isNone() const { return !everything && region.isEmpty(); }
    };

    /** What \c update would do; nothing is drawn yet. */
    [[nodiscard]] Change changeTo(const PreviewScene &scene, const PreviewColours &colours) const;
    /** Draws \p change, the answer of \c changeTo. Without memory for it the picture is null. */
    void update(const PreviewScene &scene, const PreviewColours &colours, const Change &change);
    /** The next update redraws everything: fonts have changed, or photos may be gone. */
    void invalidate() { m_isValid = false; }

    /** Null when there is nothing to show. */
    [[nodiscard]] const QImage &image() const { return m_image; }

private:
    void redraw();
    void patch(const QRegion &region);
    void indexCells();
    [[nodiscard]] std::vector<int> changedCells(const PreviewScene &scene) const;
    [[nodiscard]] QRect paintedRect(const PreviewScene &scene, int cell) const;
    [[nodiscard]] std::vector<int> cellsTouching(const QRegion &region) const;
    void fillBackground(QPainter &painter) const;

    bool m_isValid = false;
    PreviewScene m_scene;
    PreviewColours m_colours;
    QImage m_image;
    CellPainter m_painter;
    QSize m_largestPainted; // of all cells drawn so far
    std::vector<std::pair<int, int>> m_cellOfImage; // image and cell, by image
    int m_bucketColumns = 0;
    int m_bucketRows = 0;
    std::vector<int> m_bucketStarts; // per bucket, and one behind the last: place in m_bucketCells
    std::vector<int> m_bucketCells; // cells, bucket by bucket, by their top left corner
};

} // namespace PanoHead
