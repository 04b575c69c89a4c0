// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/cli/session.h"

#include <QStringList>

namespace PanoHost
{

/**
 * Shows the import wizard until it is closed. \p arguments are common options and files to fill in;
 * throws the CommandError that ends the program early.
 */
[[nodiscard]] ExitCode runWindow(Session &session, const QStringList &arguments);

} // namespace PanoHost
