// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/cli/commands.h"

namespace PanoHost
{

/** What the words on the command line ask for, before any option is understood. */
struct Invocation {
    enum class Kind {
        Window, ///< the import wizard, with `arguments`: files and common options
        Command, ///< `command` with `arguments`
        General, ///< `--help` or `--version` of the program itself
        Unknown, ///< `word` is neither a command nor a file
    };

    Kind kind = Kind::Window;
    const CommandRow *command = nullptr;
    QString word;
    QStringList arguments;
    QStringList qtOptions; ///< for the window, as every Qt program takes them

    /** \p words are the arguments without the program's name. */
    [[nodiscard]] static Invocation of(const QStringList &words);
};

} // namespace PanoHost
