// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

namespace PanoHead
{

/**
 * Shows the tool tip of a widget as plain text, cut to 2,000 characters. Texts from a record could
 * otherwise pass for rich text and make the tip open files or take for ever. The widget's property
 * keeps the full text.
 */
class PlainToolTip : public QObject
{
    Q_OBJECT

public:
    /** Watches \p widget, which becomes the parent. */
    explicit PlainToolTip(QWidget *widget);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace PanoHead
