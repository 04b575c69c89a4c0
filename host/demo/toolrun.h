// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/core/result.h"

#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>

namespace PanoHost
{

/** How a long job talks to the program around it. Both may be empty. */
struct JobWatch {
    /** \p done of \p total, and what is being done: "warping photos". */
    std::function<void(int done, int total, const QString &text)> progress;
    /** True when the user wants to stop; asked several times a second. */
    std::function<bool()> interrupted;
    /** A helper program that runs longer is stuck, and stopped. */
    std::chrono::milliseconds patience = std::chrono::minutes(15);

    void report(int done, int total, const QString &text) const;
    [[nodiscard]] bool stopWanted() const { return interrupted && interrupted(); }
};

/** What a job answers that the user has stopped: without any text. */
[[nodiscard]] Failure interruption();

/** The path of the helper program \p name, or that it is missing and how to get it. */
[[nodiscard]] Result<QString> findTool(const QString &name);

/** What a helper program left that came to its own end. */
struct ToolEnd {
    int exitCode = 0;
    QString said; ///< the end of what it printed
};

/**
 * Runs the program \p path in \p folder until it ends; \p tick is called several times a second.
 * An interruption stops it, and so does the end of the watch's patience; it never outlives this
 * process. A crash is a failure, an exit code is not.
 */
[[nodiscard]] Result<ToolEnd> runToEnd(const QString &path, const QStringList &arguments,
                                       const QString &folder, const JobWatch &watch,
                                       const std::function<void()> &tick = {});

/**
 * The same for programs that answer 0 when all is well. What they said goes into the failure.
 * Answers the path.
 */
[[nodiscard]] Result<QString> runTool(const QString &path, const QStringList &arguments,
                                      const QString &folder, const JobWatch &watch,
                                      const std::function<void()> &tick = {});

} // namespace PanoHost
