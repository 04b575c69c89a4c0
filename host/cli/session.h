// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/cli/console.h"
#include "host/cli/interrupt.h"
#include "host/core/panohostapplication.h"

namespace PanoHost
{

class CommandLine;

/** What every command works with; lives as long as the process. */
struct Session {
    PanoHostApplication &app;
    Console &console;
    Interrupt &interrupt;
    QString pluginPath; ///< file or folder of `--plugin`; empty: the usual places
};

/** Takes over the options that all commands share; throws the usage error for a wrong value. */
void applyCommonOptions(Session &session, const CommandLine &line);

} // namespace PanoHost
