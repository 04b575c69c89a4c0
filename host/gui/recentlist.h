// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/gui/recentshoots.h"

#include <QWidget>

class QListWidget;
class QPushButton;

namespace PanoHost
{

/** The shoots that were imported last, to be opened again. Not there while there are none. */
class RecentList : public QWidget
{
    Q_OBJECT
public:
    /** \p settings outlive it. */
    explicit RecentList(QSettings &settings, QWidget *parent = nullptr);

    /** The shoot was imported; \p preview shows it, in any size. */
    void add(const RecentShoot &shoot, const QPixmap &preview);
    /** Looks again which shoots are still there. */
    void refresh();

Q_SIGNALS:
    void openWanted(const PanoHost::RecentShoot &shoot);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void open();
    void remove();
    void clear();

    RecentShoots m_shoots;
    QListWidget *m_list;
    QPushButton *m_remove;
};

} // namespace PanoHost
