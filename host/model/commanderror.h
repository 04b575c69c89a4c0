// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/result.h"

#include <exception>

namespace PanoHost
{

/**
 * Ends a command or an import early, with the reason that the user reads. Thrown by straight-line
 * code only, never through an event loop and never across the plug-in boundary.
 */
class CommandError : public std::exception
{
public:
    explicit CommandError(Failure failure)
        : m_failure(std::move(failure))
    {
    }

    /** When the user has interrupted the command: without any text, or with how to go on. */
    [[nodiscard]] const Failure &failure() const { return m_failure; }
    [[nodiscard]] const char *what() const noexcept override { return "panohost command error"; }

private:
    Failure m_failure;
};

/** The command line makes no sense: \p what is wrong, and what to try. */
[[nodiscard]] inline CommandError usageError(const QString &what, const QString &tryThis = {})
{
    return CommandError({ ExitCode::Usage, what, {}, tryThis });
}

/** \p what cannot be used: why, and what to try. */
[[nodiscard]] inline CommandError inputRefused(const QString &what, const QString &why,
                                               const QString &tryThis = {})
{
    return CommandError({ ExitCode::InputRefused, what, why, tryThis });
}

/** The value of \p result; throws its failure. */
template <typename T> [[nodiscard]] T valueOrThrow(Result<T> result)
{
    if (!result) {
        throw CommandError(result.error());
    }
    return std::move(result).value();
}

} // namespace PanoHost
