// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/cli/commandline.h"
#include "host/cli/session.h"
#include "host/make/makejob.h"

namespace PanoHost
{

/** The options of every command that stitches, but those that it shares with `alignOptionRows`. */
[[nodiscard]] QVector<OptionRow> stitchOptionRows();

/**
 * What they say. The path of the picture is what -o names; \p usualPath when it is not given.
 * Throws the usage error for words, numbers and combinations that make no sense.
 */
[[nodiscard]] PictureWishes pictureWishes(const CommandLine &line, const QString &usualPath);

/** Tells the user what was made, or throws why it was not. */
void tell(Session &session, const Result<QStringList> &made);

} // namespace PanoHost
