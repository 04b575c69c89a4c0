// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>

class QWidget;

/**
 * Silences a widget tree while code writes values into it; each widget gets its former state back
 * when the guard goes. A widget added meanwhile ends unblocked, whatever it was when added.
 */
class BlockSignal
{
public:
    /** \p root may be null: then nothing is touched. */
    explicit BlockSignal(QWidget *root);
    ~BlockSignal();
    BlockSignal(const BlockSignal &) = delete;
    BlockSignal &operator=(const BlockSignal &) = delete;

private:
    QWidget *m_root;
    QMap<QWidget *, bool> m_wasBlocked;
};
