// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPoint>
#include <QRawFont>
#include <QRect>
#include <QRgb>

#include <array>
#include <cstdint>
#include <unordered_map>
#include <vector>

class QGlyphRun;

namespace PanoHead
{

/** A letter as the painter draws it, in pieces of some pixels that lie side by side. */
struct Letter {
    static constexpr int kPixels = 4;
    static constexpr int kChannels = kPixels * sizeof(QRgb);
    struct Piece {
        std::int16_t x; ///< from the whole pixel in which the letter stands
        std::int16_t y;
        std::array<uchar, kChannels> ink; ///< what is added to each channel,
        std::array<uchar, kChannels> rest; ///< and how much of it stays before; 255: all
    };
    QRect box; ///< around the pieces
    std::vector<Piece> pieces; ///< none of which leaves all as it is
};

/** A letter on a picture. */
struct PlacedLetter {
    const Letter *letter = nullptr; ///< owned by the case
    QPoint pixel;
};

/**
 * The letters of many captions in one opaque colour, each drawn by the painter once. Drawing them
 * from the case costs a fraction of what the painter takes and gives its pixels.
 */
class LetterCase
{
public:
    explicit LetterCase(QRgb colour)
        : m_colour(colour)
    {
    }

    /**
     * Appends the letters of \p run, drawn from \p origin, to \p letters. False when the painter's
     * own way has to be taken: it draws that font otherwise (coloured, as outlines, with a line
     * through it), or the case is full.
     */
    [[nodiscard]] bool take(const QGlyphRun &run, const QPointF &origin,
                            std::vector<PlacedLetter> *letters);
    /** Draws \p letters onto the opaque \p image within \p clip, which lies in it. */
    void draw(QImage &image, const QRect &clip, const std::vector<PlacedLetter> &letters) const;

    /** Further letters can be taken; without it trying costs more than the painter's own way. */
    [[nodiscard]] bool hasRoom() const;

private:
    enum class Match { Unknown, Same, Other };

    [[nodiscard]] const Letter *letterFor(quint32 glyph, const QPoint &phase);
    [[nodiscard]] bool isDrawnAlike(const QGlyphRun &run, const QPointF &origin,
                                    const std::vector<PlacedLetter> &letters) const;

    QRgb m_colour;
    QRawFont m_font;
    Match m_match = Match::Unknown; // of the painter's pixels and ours
    std::unordered_map<std::uint64_t, Letter> m_letters; // by glyph and place within the pixel
};

} // namespace PanoHead
