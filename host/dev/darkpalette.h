// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPalette>

/** As dark desktops have it, for pictures and tests. */
inline QPalette darkPalette()
{
    const QColor window(0x2b, 0x2e, 0x31);
    const QColor text(0xec, 0xec, 0xec);
    QPalette palette(window, window);
    for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText }) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x83, 0x86));
    }
    palette.setColor(QPalette::Base, QColor(0x1d, 0x1f, 0x21));
    palette.setColor(QPalette::AlternateBase, QColor(0x31, 0x35, 0x38));
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0x8e, 0xc9));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x6c, 0xb4, 0xe8));
    palette.setColor(QPalette::LinkVisited, QColor(0xb0, 0x95, 0xd8));
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, QColor(0x90, 0x93, 0x96));
    return palette;
}
