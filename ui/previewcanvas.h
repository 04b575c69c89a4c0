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
        std::vector<int> cells; ///< whose photo is another one; empty for everything

        [[nodiscard]] bool isNone() const { return !everything && region.isEmpty(); }
    };

    /** What \c update would do; nothing is drawn yet. */
    [[nodiscard]] Change changeTo(const PreviewScene &scene, const PreviewColours &colours) const;
    /** Draws \p change, the answer of \c changeTo. Throws std::bad_alloc. */
    void update(const PreviewScene &scene, const PreviewColours &colours, const Change &change);
    /** The next update redraws everything. */
    void invalidate() { m_isValid = false; }
    /** Forgets picture and scene. */
    void clear();
    /** The photos drawn so far may be gone; another one may even have the same address. */
    void forgetPhotos();

    /** The picture; null when there is nothing to show. */
    [[nodiscard]] const QImage &image() const { return m_image; }

private:
    void redraw();
    void drawCells();
    void drawStrips();
    void patch(const QRegion &region);
    void patchRect(const Patch &patch);
    void indexCells();
    void notePhoto(int cell);
    [[nodiscard]] std::vector<int> changedCells(const PreviewScene &scene) const;
    [[nodiscard]] QRect changedPixels(const PreviewScene &scene, int cell) const;
    [[nodiscard]] QRect paintedRect(int cell) const;
    [[nodiscard]] std::vector<int> cellsTouching(const QRect &rect) const;
    void fillBackground(QPainter &painter) const;

    bool m_isValid = false;
    PreviewScene m_scene;
    PreviewColours m_colours;
    QImage m_image;
    CellPainter m_painter;
    QSize m_largestBox; // of all cells, with their outlines
    QSize m_largestPhoto; // of all unscaled ones drawn so far
    std::vector<std::pair<int, int>> m_cellOfImage; // image and cell, by image
    int m_bucketColumns = 0;
    int m_bucketRows = 0;
    std::vector<int> m_bucketStarts; // per bucket, and one behind the last: place in m_bucketCells
    std::vector<int> m_bucketCells; // cells, bucket by bucket, by their top left corner
};

} // namespace PanoHead
