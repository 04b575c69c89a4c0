// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QBrush>
#include <QPen>
#include <QRect>
#include <QRectF>
#include <QStaticText>

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
    Caption(const PreviewCell &cell, const QFont &font);

    /** Draws what lies in \p patch. */
    void draw(const Patch &patch, const CaptionColours &colours) const;

    /** Pixels that are drawn, and perhaps some around them. */
    [[nodiscard]] QRect rect() const { return m_reach; }

private:
    QStaticText m_text;
    QRectF m_room; // in the cell
    QRect m_reach; // the lines and some pixels around them
    QRect m_seen; // what of it is drawn: text that does not fit is cut off at the room's sides
};

} // namespace PanoHead
