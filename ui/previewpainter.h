// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "shoot/previewlayout.h"
#include "ui/caption.h"

#include <QCache>
#include <QList>
#include <QRect>
#include <QSize>

class QPixmap;
class XIImageDef;

namespace PanoHead
{

/** How photos and captions are drawn into the cells. */
enum class CellStyle {
    FittedWithCaption, ///< scaled to the cell, aspect ratio ignored; number and angles on top
    UnscaledPhoto, ///< at its own size from the cell's corner; no caption
};

/** A layout picture to draw. */
struct PreviewScene {
    PreviewLayout layout;
    /** Photos by preview index; null for one that is gone. A cell without its photo is an outline.
     */
    QList<XIImageDef *> images;
    CellStyle style = CellStyle::FittedWithCaption;
};

/** The thumbnail that belongs into \p cell; null when there is none to draw. */
[[nodiscard]] const QPixmap *thumbnailOf(const PreviewScene &scene, const PreviewCell &cell);

/** The pixels in which \p cell shows a thumbnail of \p size. */
[[nodiscard]] QRect photoRect(CellStyle style, const PreviewCell &cell, const QSize &size);

/** How far a cell's outline, with roundings, may reach into and around its box, pixels. */
constexpr int kSpill = 2;

/** All pixels that the outline of \p cell may touch. */
[[nodiscard]] inline QRect outlineRect(const PreviewCell &cell)
{
    return cell.box.toAlignedRect().adjusted(-kSpill, -kSpill, kSpill, kSpill);
}

/** What of a cell is to be drawn. */
struct CellParts {
    bool photo = false;
    bool outline = false;
    bool caption = false;

    [[nodiscard]] bool isNone() const { return !photo && !outline && !caption; }
};

/** Draws the cells of a scene, outlined by a painter that has its default pen at first. */
class CellPainter
{
public:
    /**
     * Draws \p parts of cell number \p cell with the same pixels under any clip. Captions with
     * their lines broken are kept for the neighbours' next redraw.
     */
    void drawParts(const Patch &patch, const PreviewScene &scene, int cell, const CellParts &parts,
                   const CaptionColours &caption);
    /** The parts of cell number \p cell that may reach into \p rect, in the font \p font. */
    [[nodiscard]] CellParts partsIn(const QRect &rect, const PreviewScene &scene, int cell,
                                    const QFont &font);
    /** Pixels in which the photo of \p cell hides all that is below; may be none. */
    [[nodiscard]] static QRect hiddenBehind(const PreviewScene &scene, const PreviewCell &cell);

    /** Everything has changed. At most about \p bytes are kept from now on. */
    void reset(qint64 bytes);

private:
    Caption captionFor(const PreviewCell &cell, int number, const QFont &font);

    QCache<int, Caption> m_captions{ 0 }; // by cell, cost in bytes
};

} // namespace PanoHead
