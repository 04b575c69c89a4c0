// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/core/panorama.h"
#include "host/demo/shootplan.h"
#include "host/demo/toolrun.h"

namespace PanoHost
{

/**
 * Has checkpto read the project \p path. Answers what it found, for the user; fails where it does
 * not find \p photos photos, or is missing.
 */
[[nodiscard]] Result<QString> checkProject(const QString &path, int photos,
                                           const JobWatch &watch = {});

/**
 * Whether the positions of \p panorama lie to each other as those of \p plan do: of any two, the
 * same one is further right and the same one further up. Answers it in words for the user.
 */
[[nodiscard]] Result<QString> checkOrder(const Panorama &panorama, const ShootPlan &plan);

} // namespace PanoHost
