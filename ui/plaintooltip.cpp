// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/plaintooltip.h"

#include <QHelpEvent>
#include <QToolTip>
#include <QWidget>

namespace PanoHead
{

namespace
{

constexpr int kMaxShownCharacters = 2'000;

} // namespace

PlainToolTip::PlainToolTip(QWidget *widget)
    : QObject(widget)
{
    widget->installEventFilter(this);
}

bool PlainToolTip::eventFilter(QObject *watched, QEvent *event)
{
    const QWidget *widget = qobject_cast<QWidget *>(watched);
    if (event->type() != QEvent::ToolTip || widget == nullptr) {
        return QObject::eventFilter(watched, event);
    }
    const QString text = widget->toolTip().left(kMaxShownCharacters);
    const QString shown = text.isEmpty()
        ? text
        : QStringLiteral("<p style='white-space:pre-wrap'>%1</p>").arg(text.toHtmlEscaped());
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), shown,
                       qobject_cast<QWidget *>(watched));
    return true;
}

} // namespace PanoHead
