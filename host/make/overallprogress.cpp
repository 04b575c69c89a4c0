// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/make/overallprogress.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace PanoHost
{
namespace
{

double secondsOf(OverallProgress::Time time)
{
    return std::chrono::duration<double>(time).count();
}

} // namespace

OverallProgress::OverallProgress(QVector<Step> steps)
    : m_steps(std::move(steps))
{
}

void OverallProgress::expect(int step, double seconds)
{
    m_steps[step].seconds = seconds;
}

void OverallProgress::begin(int step, Time now)
{
    if (m_totalOfPart > 0) { // otherwise the one before has told nothing: it was kept
        m_tookSeconds += secondsOf(now - m_begun);
        m_expectedSeconds += m_steps[m_step].seconds;
    }
    m_step = step;
    m_begun = now;
    m_totalOfPart = 0;
}

/** A part that counts from the beginning again, or to another end, is the next one. */
void OverallProgress::enterPart(int done, int total)
{
    if (m_totalOfPart == total && done >= m_doneOfPart) {
        return;
    }
    if (m_totalOfPart == 0) {
        m_part = 0;
        m_partBegins = 0.0;
    } else {
        ++m_part;
        m_partBegins += m_partShare;
    }
    m_totalOfPart = total;
    const QVector<double> &parts = m_steps.at(m_step).parts;
    const double rest = 1.0 - m_partBegins;
    m_partShare = std::min(parts.value(m_part, rest / 2.0), rest);
}

/** At the end of \p share of a step that took \p secondsOfStep so far. */
double OverallProgress::secondsLeft(double share, double secondsOfStep) const
{
    const auto later = [this](double sum, const Step &step) { return sum + step.seconds; };
    const double ofLater = std::accumulate(m_steps.begin() + m_step + 1, m_steps.end(), 0.0, later);
    const double ofStep = m_steps.at(m_step).seconds;
    // The guess counts like a tenth of the whole job that went as guessed.
    constexpr double kBelief = 0.1;
    const double belief = kBelief * (m_expectedSeconds + ofStep + ofLater);
    const double slowness
        = (m_tookSeconds + secondsOfStep + belief) / (m_expectedSeconds + share * ofStep + belief);
    // Of the step itself its own pace tells more, the more of it is done.
    return secondsOfStep * (1.0 - share) + (1.0 - share) * (1.0 - share) * ofStep * slowness
        + ofLater * slowness;
}

OverallProgress::State OverallProgress::at(int done, int total, const QString &text, Time now)
{
    enterPart(done, total);
    m_doneOfPart = done;
    const double share = std::clamp(
        m_partBegins + m_partShare * std::clamp(double(done) / std::max(total, 1), 0.0, 1.0), 0.0,
        1.0);
    const double over = secondsOf(now);
    const double left = secondsLeft(share, secondsOf(now - m_begun));
    // Only the end of the job is the end, and it is told by whoever knows it.
    const int permille
        = over > 0.0 ? static_cast<int>(std::floor(kTotal * over / (over + left))) : 0;
    m_told = std::clamp(permille, m_told, kTotal - 1);
    return { m_told,
             QStringLiteral("%1 (step %2 of %3)")
                 .arg(text, QString::number(m_step + 1), QString::number(m_steps.size())) };
}

} // namespace PanoHost
