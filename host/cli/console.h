// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/messages.h"

#include <QElapsedTimer>
#include <QString>

namespace PanoHost
{

/** What a command says on stderr: one line per message, and the progress. GUI thread. */
class Console
{
public:
    enum class Volume { Quiet, Normal, Verbose };
    enum class Progress {
        Auto, ///< one changing line on a terminal, else a line every ten seconds
        Plain, ///< a line per step
        None,
    };
    enum class Color { Auto, Always, Never };

    Console();

    void setVolume(Volume volume) { m_volume = volume; }
    void setProgress(Progress progress) { m_progress = progress; }
    void setColor(Color color);

    void error(const Failure &failure);
    void warning(const QString &text);
    /** What was done; not shown when quiet. */
    void info(const QString &text);
    /** What is being done; shown when verbose. */
    void detail(const QString &text);
    /** "[ 12/96] reading IMG_0012.jpg, 7 s left"; \p total of at least 1. */
    void progress(int done, int total, const QString &text);
    /** Takes a progress line off the terminal. */
    void endProgress();

private:
    [[nodiscard]] QString timeLeft(int done, int total);
    [[nodiscard]] bool progressIsDue();
    void writeLine(const QString &line, const char *color);

    Volume m_volume = Volume::Normal;
    Progress m_progress = Progress::Auto;
    bool m_terminal = false;
    bool m_colored = false;
    bool m_progressShown = false;
    QElapsedTimer m_sinceLastProgress;
    QString m_lastText; ///< of the progress
    int m_done = 0; ///< of the job that reports, to see where the next begins
    int m_total = 0;
    QElapsedTimer m_sinceStart;
};

} // namespace PanoHost
