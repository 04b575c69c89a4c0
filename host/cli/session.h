// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/cli/console.h"
#include "host/cli/interrupt.h"
#include "host/model/jobwatch.h"
#include "host/plugin/panohostapplication.h"

namespace PanoHost
{

class CommandLine;

/** What every command works with; lives as long as the process. */
struct Session {
    PanoHostApplication &app;
    Console &console;
    Interrupt &interrupt;
    QString pluginPath; ///< file or folder of `--plugin`; empty: the usual places

    /** Shows on the console what a job says, and stops it at Ctrl-C. */
    [[nodiscard]] JobWatch watch() const;
};

/** Takes over the options that all commands share; throws the usage error for a wrong value. */
void applyCommonOptions(Session &session, const CommandLine &line);

} // namespace PanoHost
