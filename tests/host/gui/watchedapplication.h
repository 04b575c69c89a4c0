// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/plugin/panohostapplication.h"

#include <chrono>

/**
 * Measures the processor time of each step of the event loop on the GUI thread: neighbours on the
 * machine do not count, and neither do the steps of a loop that a step runs, which count apart.
 * Steps of the library's pages are told from the host's own.
 */
class WatchedApplication : public PanoHost::PanoHostApplication
{
public:
    using PanoHostApplication::PanoHostApplication;

    struct Step {
        std::chrono::nanoseconds time{ 0 };
        QString what; ///< the receiver and the event
    };
    struct Steps {
        Step longestOfHost;
        Step longestOfPages;
    };
    /** Since the last call. */
    [[nodiscard]] Steps takeSteps();

    bool notify(QObject *receiver, QEvent *event) override;

    /** How much slower than usual processor time goes by now. */
    [[nodiscard]] static double slownessNow();

private:
    int m_level = -1; ///< of the event loop whose step runs; -1: none does
    std::chrono::nanoseconds m_inner{ 0 }; ///< of the step: in loops that it ran
    Steps m_steps;
};
