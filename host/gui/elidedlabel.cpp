// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/elidedlabel.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace PanoHost
{

namespace
{

/** A tool tip of more letters would be larger than a screen. */
constexpr int kMostShown = 2000;

} // namespace

ElidedLabel::ElidedLabel(const QString &text, QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setFullText(text);
}

void ElidedLabel::setFullText(const QString &text)
{
    m_text = text;
    QString tip = text;
    if (tip.size() > kMostShown) {
        tip = tip.left(kMostShown) + QStringLiteral("...");
    }
    // File names may stand in it.
    setToolTip(QStringLiteral("<p>%1</p>").arg(tip.toHtmlEscaped()));
    setAccessibleName(tip);
    elide();
}

void ElidedLabel::elide()
{
    setText(fontMetrics().elidedText(m_text.left(kMostShown), Qt::ElideRight, width()));
}

void ElidedLabel::copy() const
{
    QGuiApplication::clipboard()->setText(m_text);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return { 0, QLabel::minimumSizeHint().height() };
}

QSize ElidedLabel::sizeHint() const
{
    return { fontMetrics().horizontalAdvance(m_text.left(kMostShown)),
             QLabel::sizeHint().height() };
}

void ElidedLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    if (hasFocus()) {
        QStylePainter painter(this);
        QStyleOptionFocusRect option;
        option.initFrom(this);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
    }
}

void ElidedLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    elide();
}

void ElidedLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        elide();
    }
}

void ElidedLabel::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu menu(this);
    menu.addAction(tr("Copy"), this, &ElidedLabel::copy, QKeySequence::Copy);
    menu.exec(event->globalPos());
}

void ElidedLabel::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy)) {
        copy();
        return;
    }
    QLabel::keyPressEvent(event);
}

} // namespace PanoHost
