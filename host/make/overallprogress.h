// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QVector>

#include <chrono>

namespace PanoHost
{

/**
 * One progress of a job of several steps, each of which tells its own: how much of the time is
 * over, as far as anybody knows. It begins with a guess of how long each step takes and corrects it
 * by what has been measured; it never goes back. Has no clock: all times are since the job began.
 */
class OverallProgress
{
public:
    using Time = std::chrono::milliseconds;

    struct Step {
        double seconds = 1.0; ///< it may take; above 0, only what they are to each other counts
        /** How its time is shared among the parts that it tells one after the other, each from 0
         * on. Further ones get half of what is left each. */
        QVector<double> parts = {};
    };
    explicit OverallProgress(QVector<Step> steps);

    /** What is known better now of a step that has not begun. */
    void expect(int step, double seconds);
    /** \p step begins, and all before it are over: those that were passed over took no time. */
    void begin(int step, Time now);

    /** For `JobWatch::report`, with `kTotal`. */
    struct State {
        int done = 0;
        QString text; ///< "warping photos (step 3 of 4)"
    };
    static constexpr int kTotal = 1000;
    /** The step that began last has done \p done of \p total of what \p text says. */
    [[nodiscard]] State at(int done, int total, const QString &text, Time now);

private:
    void enterPart(int done, int total);
    [[nodiscard]] double secondsLeft(double share, double secondsOfStep) const;

    QVector<Step> m_steps;
    int m_step = 0;
    Time m_begun{ 0 }; ///< the step
    double m_tookSeconds = 0.0; ///< the steps that are over
    double m_expectedSeconds = 0.0; ///< the same, by the guess
    int m_part = 0; ///< of the step, that is told
    double m_partBegins = 0.0; ///< share of the step
    double m_partShare = 1.0;
    int m_doneOfPart = 0;
    int m_totalOfPart = 0; ///< 0: nothing was told yet
    int m_told = 0;
};

} // namespace PanoHost
