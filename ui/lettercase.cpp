// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/lettercase.h"

#include "ui/pixels.h"

#include <QGlyphRun>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <optional>

namespace PanoHead
{

namespace
{

constexpr int kPhases = 64; // the painter cuts places down to parts of a pixel
constexpr size_t kMostLetters = 2'048; // some 700 bytes each
constexpr qreal kLargestFont = 60.0; // pixels; larger letters are filled as outlines

/** \p value times \p part / 255, rounded as the painter does it. */
uchar scaled(uchar value, uchar part)
{
    const auto product = static_cast<quint16>(value * part);
    return static_cast<uchar>(static_cast<quint16>(product + (product >> 8) + 128) >> 8);
}

/**
 * Draws \p kPixels pixels of a piece. Goes channel by channel, the opacity like the others, over
 * bytes of its own, which a compiler does for sixteen of them at once.
 */
template <int kPixels> void lay(const uchar *ink, const uchar *rest, QRgb *pixels)
{
    constexpr size_t kBytes = kPixels * sizeof(QRgb);
    std::array<uchar, kBytes> target;
    std::memcpy(target.data(), pixels, kBytes);
    for (size_t i = 0; i < kBytes; ++i) {
        target[i] = static_cast<uchar>(ink[i] + scaled(target[i], rest[i]));
    }
    std::memcpy(pixels, target.data(), kBytes);
}

/** Where a letter stands: the whole pixel, and how far into it. */
struct Stand {
    explicit Stand(const QPointF &place)
    {
        const QPoint phases(static_cast<int>(place.x() * kPhases),
                            static_cast<int>(place.y() * kPhases));
        pixel = QPoint(phases.x() / kPhases, phases.y() / kPhases);
        phase = phases - pixel * kPhases;
    }
    QPoint pixel;
    QPoint phase;
};

/** Writes pixel number \p i of \p piece. */
void setPixel(Letter::Piece *piece, int i, QRgb colour, uchar cover)
{
    std::array<uchar, sizeof(QRgb)> channels;
    std::memcpy(channels.data(), &colour, sizeof(QRgb));
    for (size_t channel = 0; channel < sizeof(QRgb); ++channel) {
        piece->ink[i * sizeof(QRgb) + channel] = scaled(channels[channel], cover);
        piece->rest[i * sizeof(QRgb) + channel] = static_cast<uchar>(255 - cover);
    }
}

/** What is not white in \p picture, black letters on white; none if there are colours. */
std::optional<Letter> readLetter(const QImage &picture, const QPoint &stand, QRgb colour)
{
    Letter letter;
    for (int y = 0; y < picture.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        int next = 0; // first pixel behind the last piece
        for (int x = 0; x < picture.width(); ++x) {
            const int light = qGreen(line[x]);
            if (qRed(line[x]) != light || qBlue(line[x]) != light) {
                return {};
            }
            if (light == 255) {
                continue;
            }
            const QPoint pixel = QPoint(x, y) - stand;
            if (x >= next) {
                letter.pieces.push_back({ static_cast<std::int16_t>(pixel.x()),
                                          static_cast<std::int16_t>(pixel.y()),
                                          {},
                                          {} });
                letter.pieces.back().rest.fill(255);
                letter.box |= QRect(pixel, QSize(Letter::kPixels, 1));
                next = x + Letter::kPixels;
            }
            Letter::Piece &piece = letter.pieces.back();
            setPixel(&piece, pixel.x() - piece.x, colour, static_cast<uchar>(255 - light));
        }
    }
    letter.pieces.shrink_to_fit();
    return letter;
}

QImage paper(const QSize &size)
{
    QImage image = withPixels(QImage(size, QImage::Format_RGB32));
    image.fill(Qt::white);
    return image;
}

} // namespace

bool LetterCase::take(const QGlyphRun &run, const QPointF &origin,
                      std::vector<PlacedLetter> *letters)
{
    if (m_match == Match::Unknown) {
        m_font = run.rawFont();
    }
    if (m_match == Match::Other || !(run.rawFont() == m_font) || run.underline() || run.strikeOut()
        || run.overline() || m_font.pixelSize() > kLargestFont) {
        return false;
    }
    const QVector<quint32> glyphs = run.glyphIndexes();
    const QVector<QPointF> places = run.positions();
    std::vector<PlacedLetter> taken;
    for (int i = 0; i < glyphs.size(); ++i) {
        const QPointF place = origin + places.at(i);
        if (place.x() < 0.0 || place.y() < 0.0) {
            return false; // the painter rounds these the other way
        }
        const Stand stand(place);
        const Letter *letter = letterFor(glyphs.at(i), stand.phase);
        if (letter == nullptr) {
            return false;
        }
        taken.push_back({ letter, stand.pixel });
    }
    if (m_match == Match::Unknown) {
        m_match = isDrawnAlike(run, origin, taken) ? Match::Same : Match::Other;
    }
    if (m_match == Match::Other) {
        return false;
    }
    letters->insert(letters->end(), taken.cbegin(), taken.cend());
    return true;
}

bool LetterCase::hasRoom() const
{
    return m_match != Match::Other && m_letters.size() < kMostLetters;
}

/** Null when it cannot be kept or is not drawn in shades of one colour. */
const Letter *LetterCase::letterFor(quint32 glyph, const QPoint &phase)
{
    const std::uint64_t key = (std::uint64_t{ glyph } * kPhases + phase.x()) * kPhases + phase.y();
    const auto known = m_letters.find(key);
    if (known != m_letters.end()) {
        return &known->second;
    }
    if (m_letters.size() == kMostLetters) {
        return nullptr;
    }
    const int em = static_cast<int>(std::ceil(m_font.pixelSize()));
    constexpr int kMargin = 2 * Letter::kPixels;
    const QPoint stand(em + kMargin, 2 * em + kMargin);
    QImage picture = paper(QSize(3 * em, 3 * em) + QSize(2 * kMargin, 2 * kMargin));
    {
        const QVector<quint32> glyphs{ glyph };
        const QVector<QPointF> places{ QPointF() };
        QGlyphRun run;
        run.setRawFont(m_font);
        run.setRawData(glyphs.constData(), places.constData(), 1);
        QPainter painter(&picture);
        painter.setPen(Qt::black);
        painter.drawGlyphRun(stand + QPointF(phase) / kPhases, run);
    }
    std::optional<Letter> letter = readLetter(picture, stand, m_colour);
    // One that reaches the paper's edge may go on behind it.
    const QRect inside = picture.rect().adjusted(1, 1, -1 - Letter::kPixels, -1);
    if (!letter || !inside.contains(letter->box.translated(stand) | QRect(stand, QSize(1, 1)))) {
        m_match = Match::Other;
        return nullptr;
    }
    return &m_letters.emplace(key, std::move(*letter)).first->second;
}

/** Lets the painter and the case draw the same letters onto many colours. */
bool LetterCase::isDrawnAlike(const QGlyphRun &run, const QPointF &origin,
                              const std::vector<PlacedLetter> &letters) const
{
    QRect room;
    for (const PlacedLetter &placed : letters) {
        room |= placed.letter->box.translated(placed.pixel);
    }
    constexpr int kMargin = 8;
    room.adjust(-kMargin, -kMargin, kMargin, kMargin);
    QImage ours = withPixels(QImage(room.size(), QImage::Format_RGB32));
    for (int y = 0; y < ours.height(); ++y) {
        for (int x = 0; x < ours.width(); ++x) {
            ours.setPixel(x, y, qRgb(x * 37 % 256, y * 53 % 256, (x + y) * 11 % 256));
        }
    }
    QImage theirs = ours;
    {
        QPainter painter(&theirs);
        painter.setPen(QColor(m_colour));
        painter.drawGlyphRun(origin - room.topLeft(), run);
    }
    std::vector<PlacedLetter> moved = letters;
    for (PlacedLetter &placed : moved) {
        placed.pixel -= room.topLeft();
    }
    draw(ours, ours.rect(), moved);
    return ours == theirs;
}

void LetterCase::draw(QImage &image, const QRect &clip,
                      const std::vector<PlacedLetter> &letters) const
{
    uchar *bits = image.bits();
    const qint64 stride = image.bytesPerLine();
    for (const PlacedLetter &placed : letters) {
        const QRect box = placed.letter->box.translated(placed.pixel);
        if (!box.intersects(clip)) {
            continue;
        }
        const bool isWhole = clip.contains(box);
        for (const Letter::Piece &piece : placed.letter->pieces) {
            const QRect place(placed.pixel + QPoint(piece.x, piece.y), QSize(Letter::kPixels, 1));
            QRgb *pixels = reinterpret_cast<QRgb *>(bits + stride * place.y()) + place.x();
            if (isWhole || clip.contains(place)) {
                lay<Letter::kPixels>(piece.ink.data(), piece.rest.data(), pixels);
                continue;
            }
            const QRect seen = place & clip;
            for (int x = seen.left(); x <= seen.right(); ++x) {
                const int i = x - place.left();
                const size_t channel = i * sizeof(QRgb);
                lay<1>(&piece.ink[channel], &piece.rest[channel], pixels + i);
            }
        }
    }
}

} // namespace PanoHead
