// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/jobwatch.h"
#include "host/model/result.h"

namespace PanoHost
{

/**
 * Has checkpto read the project \p path. Answers what it found, for the user; fails where it does
 * not find \p photos photos, or is missing.
 */
[[nodiscard]] Result<QString> checkProject(const QString &path, int photos,
                                           const JobWatch &watch = {});

} // namespace PanoHost
