// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/alignment.h"
#include "host/cli/commandline.h"
#include "host/cli/session.h"

namespace PanoHost
{

/** The options of every command that aligns. */
[[nodiscard]] QVector<OptionRow> alignOptionRows();

/** What they say; throws the usage error for numbers that make no sense. */
[[nodiscard]] AlignOptions alignOptions(const CommandLine &line);

/** Tells the user what was found. */
void tell(Session &session, const AlignmentReport &report);

} // namespace PanoHost
