// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/cli/commandline.h"
#include "host/cli/session.h"
#include "host/import/importrequest.h"

namespace PanoHost
{

/** The options of all heads' pages. */
[[nodiscard]] QVector<OptionRow> importOptions();
/** Those of \p head's page. */
[[nodiscard]] QVector<OptionRow> optionsOf(const HeadFacts &head);

/**
 * The line of a command that imports: its help gets the list of heads, its options, after
 * \p ownOptions, those of all heads' pages.
 */
[[nodiscard]] CommandLine importingLine(CommandHelp help, const QVector<OptionRow> &ownOptions);

/**
 * Makes the request from the words HEAD [RECORD] PHOTO... and the options of \p line. Throws the
 * usage error for an unknown head, missing words, or options that exclude each other.
 */
[[nodiscard]] ImportRequest importRequest(const Session &session, const CommandLine &line);

} // namespace PanoHost
