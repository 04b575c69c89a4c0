// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/commanderror.h"

#include <QString>

#include <chrono>
#include <functional>

namespace PanoHost
{

/**
 * How a long job talks to the program around it: progress, the wish to stop, and what is to be told
 * on the way. Anything may be empty. Called on the thread that runs the job.
 */
struct JobWatch {
    enum class Note {
        Detail, ///< for whoever wants to know exactly
        Info, ///< what was done or learnt
        Warning, ///< the user should know, and the job goes on
    };

    /** \p done of \p total, and what is being done: "warping photos". */
    std::function<void(int done, int total, const QString &text)> progress;
    /** True when the user wants to stop; asked several times a second. */
    std::function<bool()> interrupted;
    std::function<void(Note note, const QString &text)> log;
    /** A helper program that uses no processor for so long is stuck, and stopped. */
    std::chrono::milliseconds patience = std::chrono::minutes(15);

    void report(int done, int total, const QString &text) const;
    [[nodiscard]] bool stopWanted() const { return interrupted && interrupted(); }
    void note(Note note, const QString &text) const;
    /** Throws `interruption()` when the user wants to stop. */
    void check() const;
};

/** What a job answers that the user has stopped: without any text. */
[[nodiscard]] Failure interruption();

} // namespace PanoHost
