// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/lettercase.h"

#include <QBrush>
#include <QGlyphRun>
#include <QPen>
#include <QRect>
#include <QRectF>
#include <QVector>

#include <vector>

class QFont;
class QImage;
class QPainter;

namespace PanoHead
{

struct PreviewCell;

/** How captions stand out from the photos under them. */
struct CaptionColours {
    QPen text;
    QBrush ground = {}; ///< behind the text; no brush: nothing

    friend bool operator==(const CaptionColours &a, const CaptionColours &b)
    {
        return a.text == b.text && a.ground == b.ground;
    }
};

/** A part of a picture that is drawn anew; the painter is cut to it. */
struct Patch {
    QImage &image; ///< that the painter draws on
    QPainter &painter;
    QRect rect;
};

/**
 * The number and the angles in a cell, laid out once and drawn many times, with the pixels of the
 * painter's own function for texts.
 */
class Caption
{
public:
    /** The case outlives the caption and holds its colour; without one the painter draws. */
    Caption(const PreviewCell &cell, const QFont &font, LetterCase *letterCase);

    /** Draws what lies in \p patch, whose image is opaque if there is a case. */
    void draw(const Patch &patch, const CaptionColours &colours);
    /** Lays the caption of \p cell out and draws all of it, in the painter's font. */
    static void drawOnce(QPainter &painter, const PreviewCell &cell, const CaptionColours &colours);

    /** Pixels that are drawn, and perhaps some around them. */
    [[nodiscard]] QRect rect() const { return m_reach; }

private:
    /** Glyphs of one font, line by line. */
    struct Run {
        QGlyphRun drawn; ///< shows a part of the glyphs, by their address
        QVector<quint32> glyphs;
        QVector<QPointF> places; ///< on their line's base, from the room's corner
        qreal ascent;
        qreal descent;
        qreal size;

        void draw(QPainter &painter, const QPointF &origin, const QRectF &seen);
    };

    void drawRuns(const Patch &patch, const CaptionColours &colours);

    const LetterCase *m_letterCase;
    std::vector<PlacedLetter> m_letters; // all of the caption, or none
    std::vector<Run> m_runs; // all of the caption, when there are no letters
    QRectF m_room; // in the cell
    QRectF m_lines; // what the lines take up
    QRect m_reach; // the lines and some pixels around them
    QRect m_seen; // what of it is drawn: text that does not fit is cut off at the room's sides
};

} // namespace PanoHead
