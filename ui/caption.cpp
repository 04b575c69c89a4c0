// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/caption.h"

#include "shoot/previewlayout.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QRawFont>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <cmath>

namespace PanoHead
{

namespace
{

constexpr int kOverhang = 4; // letters that reach out of their line, pixels

QString textIn(const PreviewCell &cell)
{
    return QStringLiteral("%1 (%2,%3)")
        .arg(QString::number(cell.image), QString::number(cell.yaw), QString::number(cell.pitch));
}

QRectF roomIn(const PreviewCell &cell)
{
    return cell.box.adjusted(1.0, 1.0, -1.0, -1.0);
}

} // namespace

Caption::Caption(const PreviewCell &cell, const QFont &font, LetterCase *letterCase)
    : m_letterCase(letterCase)
    , m_room(roomIn(cell))
{
    QTextLayout text(textIn(cell), font);
    text.setCacheEnabled(true); // or the glyphs would be shaped again when they are asked for
    const qreal leading = QFontMetricsF(font).leading();
    qreal width = 0.0;
    qreal height = -leading;
    text.beginLayout();
    for (QTextLine line = text.createLine(); line.isValid(); line = text.createLine()) {
        line.setLineWidth(std::max(0.0, m_room.width()));
        height = std::ceil(height + leading);
        line.setPosition(QPointF(0.0, height));
        height += line.height();
        width = std::max(width, line.naturalTextWidth());
    }
    text.endLayout();
    m_lines = QRectF(m_room.topLeft(), QSizeF(width, height));
    m_reach = m_lines.toAlignedRect().adjusted(-kOverhang, -kOverhang, kOverhang, kOverhang);
    m_seen = m_room.contains(m_lines) ? m_reach : m_reach & m_room.toAlignedRect();
    const QList<QGlyphRun> runs = text.glyphRuns();
    const auto isTaken = [&](const QGlyphRun &run) {
        return letterCase != nullptr && letterCase->take(run, m_room.topLeft(), &m_letters);
    };
    if (std::all_of(runs.cbegin(), runs.cend(), isTaken)) {
        return;
    }
    m_letters.clear();
    for (const QGlyphRun &run : runs) {
        const QRawFont raw = run.rawFont();
        m_runs.push_back({ run, run.glyphIndexes(), run.positions(), raw.ascent(), raw.descent(),
                           raw.pixelSize() });
    }
}

/** Draws the glyphs that may reach into \p seen, which counts from the room's corner as well. */
void Caption::Run::draw(QPainter &painter, const QPointF &origin, const QRectF &seen)
{
    // Digits and punctuation are narrower than the font is high, and stand on the line.
    const QRectF near
        = seen.adjusted(-size - kOverhang, -descent - kOverhang, kOverhang, ascent + kOverhang);
    int first = 0;
    int end = places.size();
    while (first < end && !near.contains(places.at(first))) {
        ++first;
    }
    while (end > first && !near.contains(places.at(end - 1))) {
        --end;
    }
    if (first < end) {
        drawn.setRawData(glyphs.constData() + first, places.constData() + first, end - first);
        painter.drawGlyphRun(origin, drawn);
    }
}

void Caption::draw(const Patch &patch, const CaptionColours &colours)
{
    if (colours.ground.style() != Qt::NoBrush) {
        patch.painter.fillRect(m_lines & m_room, colours.ground);
    }
    if (m_letters.empty()) {
        drawRuns(patch, colours);
    } else {
        m_letterCase->draw(patch.image, patch.rect & m_seen, m_letters);
    }
}

void Caption::drawRuns(const Patch &patch, const CaptionColours &colours)
{
    QPainter &painter = patch.painter;
    painter.setPen(colours.text);
    const QRect seen = patch.rect & m_seen;
    const bool isCut = seen != (patch.rect & m_reach);
    if (isCut) {
        painter.setClipRect(seen);
    }
    for (Run &run : m_runs) {
        run.draw(painter, m_room.topLeft(), QRectF(seen).translated(-m_room.topLeft()));
    }
    if (isCut) {
        painter.setClipRect(patch.rect);
    }
}

void Caption::drawOnce(QPainter &painter, const PreviewCell &cell, const CaptionColours &colours)
{
    const QRectF room = roomIn(cell);
    const QString text = textIn(cell);
    if (colours.ground.style() != Qt::NoBrush) {
        const QRectF ground = painter.boundingRect(room, text, QTextOption());
        painter.fillRect(ground & room, colours.ground);
    }
    const QPen outline = painter.pen();
    painter.setPen(colours.text);
    painter.drawText(room, text);
    painter.setPen(outline);
}

} // namespace PanoHead
