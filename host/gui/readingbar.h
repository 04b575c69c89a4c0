// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QFrame>
#include <QTimer>

class QLabel;
class QProgressBar;

namespace PanoHost
{

/** How far a page has come with its photos, how fast it goes and how long it still takes. */
class ReadingBar : public QFrame
{
    Q_OBJECT
public:
    explicit ReadingBar(QWidget *parent = nullptr);

    /** The page is about to be given \p total photos; nothing moves until it has taken them. */
    void announce(int total);
    /** \p total photos are about to be read; it shows itself unless that is soon done. */
    void begin(int total);
    /** One photo more was read, or could not be. */
    void advance();
    /** Nothing is read any more; it hides itself. */
    void end();

    /** "120 of 300 photos, 85 per second, 3 s left". */
    [[nodiscard]] QString text() const;
    /** Of the photos that are being read; 0: none. */
    [[nodiscard]] int total() const { return m_total; }

private:
    QProgressBar *m_bar;
    QLabel *m_text;
    QTimer m_patience;
    QElapsedTimer m_clock;
    int m_done = 0;
    int m_total = 0;
};

} // namespace PanoHost
