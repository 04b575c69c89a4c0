// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "ui/blocksignal.h"

#include <QWidget>

namespace
{

QList<QWidget *> treeOf(QWidget *root)
{
    QList<QWidget *> tree = root->findChildren<QWidget *>();
    tree.append(root);
    return tree;
}

} // namespace

BlockSignal::BlockSignal(QWidget *root)
    : m_root(root)
{
    if (m_root == nullptr) {
        return;
    }
    const QList<QWidget *> tree = treeOf(m_root);
    for (QWidget *widget : tree) {
        m_wasBlocked.insert(widget, widget->signalsBlocked());
        widget->blockSignals(true);
    }
}

BlockSignal::~BlockSignal()
{
    if (m_root == nullptr) {
        return;
    }
    // The tree as it stands now: widgets deleted meanwhile are not found again.
    const QList<QWidget *> tree = treeOf(m_root);
    for (QWidget *widget : tree) {
        widget->blockSignals(m_wasBlocked[widget]);
    }
}
