// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/common/previewlayout.h"

#include <QBrush>
#include <QCache>
#include <QList>
#include <QPen>
#include <QPixmap>
#include <QPoint>
#include <QSize>

class QPainter;
class XIImageDef;

namespace PanoHead
{

/** How photos and captions are drawn into the cells. */
enum class CellStyle {
    FittedWithCaption, ///< scaled to the cell, aspect ratio ignored; number and angles on top
    UnscaledPhoto, ///< at its own size from the cell's corner; no caption
};

/** How captions stand out from the photos under them. */
struct CaptionColours {
    QPen text;
    QBrush ground = {}; ///< behind the text; no brush: nothing

    friend bool operator==(const CaptionColours &a, const CaptionColours &b)
    {
        return a.text == b.text && a.ground == b.ground;
    }
};

/** A layout picture to draw. */
struct PreviewScene {
    PreviewLayout layout;
    QList<XIImageDef *> images; ///< photos by preview index; a cell without its photo is an outline
    CellStyle style = CellStyle::FittedWithCaption;
};

/** The thumbnail that belongs into \p cell; null when there is none to draw. */
[[nodiscard]] const QPixmap *thumbnailOf(const PreviewScene &scene, const PreviewCell &cell);

/**
 * Draws cells, outlined with the painter's pen. A thumbnail is first scaled into a tile of its own
 * that starts on a whole pixel: copying a tile gives the same pixels under any clip, scaling under
 * a clip does not. Some tiles are kept for the redraw of their neighbours.
 */
class CellPainter
{
public:
    /** \p tileBytes bounds what is kept. */
    explicit CellPainter(int tileBytes = 0)
        : m_tiles(tileBytes)
    {
    }

    void draw(QPainter &painter, const PreviewScene &scene, int cell,
              const CaptionColours &caption);
    /** The photo of \p cell has changed. */
    void forget(int cell) { m_tiles.remove(cell); }
    /** Everything has changed. */
    void reset(int tileBytes);

private:
    /** A thumbnail made ready to be copied pixel by pixel to \c position. */
    struct Tile {
        QPoint position;
        QPixmap pixmap;
    };

    static Tile fittedTile(const QPixmap &thumbnail, const PreviewCell &cell);
    void drawFitted(QPainter &painter, const QPixmap &thumbnail, const PreviewCell &cell,
                    int index);

    QCache<int, Tile> m_tiles; // by cell, cost in bytes
};

} // namespace PanoHead
