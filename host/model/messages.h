// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace PanoHost
{

/** What the program answers to the shell. */
enum class ExitCode : int {
    Done = 0, ///< done, warnings allowed
    ToolFailed = 1, ///< a helper program failed, or a result could not be written
    Usage = 2, ///< the command line makes no sense
    InputRefused = 3, ///< record or photos cannot be used
    NoPlugin = 4, ///< plug-in library not found, or of another interface
    ToolMissing = 5, ///< a helper program is not installed
    Interrupted = 130,
};

/** Why something did not work: what is concerned, why, and what to try (may be empty). */
struct Failure {
    ExitCode code = ExitCode::InputRefused;
    QString what;
    QString why;
    QString tryThis;

    /** "WHAT: WHY; TRY", one line, safe to show on a terminal. Empty parts leave no punctuation. */
    [[nodiscard]] QString text() const;
};

/** What was given cannot be used. */
[[nodiscard]] inline Failure refused(const QString &what, const QString &why,
                                     const QString &tryThis = {})
{
    return { ExitCode::InputRefused, what, why, tryThis };
}

/** "panohost: error: WHAT: WHY; TRY" without a line end. */
[[nodiscard]] QString errorLine(const Failure &failure);

/** "panohost: warning: TEXT" without a line end. */
[[nodiscard]] QString warningLine(const QString &text);

/**
 * \p text on one line: line ends, tabs, other control characters and marks that turn the direction
 * of writing (a file name may hold any of them) become spaces, so that no name can fake a second
 * message or steer the terminal.
 */
[[nodiscard]] QString onOneLine(const QString &text);

} // namespace PanoHost
