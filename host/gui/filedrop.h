// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

class QDropEvent;
class QWidget;

namespace PanoHost
{

/**
 * Takes the files that are dropped anywhere in a window or pasted there, also where a field would
 * take their names as text. While they are dragged over the window a frame says so.
 */
class FileDrop : public QObject
{
    Q_OBJECT
public:
    explicit FileDrop(QWidget *window);

    /** Whether files are taken now; they are, at first. */
    void setTaking(bool taking) { m_isTaking = taking; }

Q_SIGNALS:
    /** Absolute paths. */
    void given(const QStringList &files);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool take(const QStringList &files);
    [[nodiscard]] bool takeDragged(QDropEvent *event);
    void showFrame();

    QWidget *m_window;
    QWidget *m_frame; ///< over all of the window while something is dragged there
    QTimer m_left; ///< from one widget to the next, or out of the window
    bool m_bringsFiles = false; ///< what is dragged
    bool m_isTaking = true;
};

} // namespace PanoHost
