// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/caption.h"

#include "shoot/previewlayout.h"

#include <QPainter>
#include <QTextOption>
#include <QTransform>

#include <algorithm>

namespace PanoHead
{

namespace
{

constexpr int kOverhang = 4; // letters that reach out of their line, pixels
constexpr qreal kRounding = 1.0 / 32.0; // of the width of lines

QString textIn(const PreviewCell &cell)
{
    return QStringLiteral("%1 (%2,%3)")
        .arg(QString::number(cell.image), QString::number(cell.yaw), QString::number(cell.pitch));
}

} // namespace

Caption::Caption(const PreviewCell &cell, const QFont &font)
    : m_text(textIn(cell))
    , m_room(cell.box.adjusted(1.0, 1.0, -1.0, -1.0))
{
    m_text.setTextFormat(Qt::PlainText);
    m_text.setTextWidth(std::max(0.0, m_room.width()));
    m_text.prepare(QTransform(), font);
    const QRectF lines(m_room.topLeft(), m_text.size());
    m_reach = lines.toAlignedRect().adjusted(-kOverhang, -kOverhang, kOverhang, kOverhang);
    const bool fits = m_room.adjusted(0.0, 0.0, kRounding, kRounding).contains(lines);
    m_seen = fits ? m_reach : m_reach & m_room.toAlignedRect();
}

void Caption::draw(const Patch &patch, const CaptionColours &colours) const
{
    QPainter &painter = patch.painter;
    if (colours.ground.style() != Qt::NoBrush) {
        const QRectF lines = painter.boundingRect(m_room, m_text.text(), QTextOption());
        painter.fillRect(lines & m_room, colours.ground);
    }
    painter.setPen(colours.text);
    const QRect seen = patch.rect & m_seen;
    const bool isCut = seen != (patch.rect & m_reach);
    if (isCut) {
        painter.setClipRect(seen);
    }
    painter.drawStaticText(m_room.topLeft(), m_text);
    if (isCut) {
        painter.setClipRect(patch.rect);
    }
}

} // namespace PanoHead
