// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/demo/shootplan.h"
#include "host/model/panorama.h"

namespace PanoHost
{

/**
 * Whether the positions of \p panorama lie to each other as those of \p plan do: of any two, the
 * same one is further right and the same one further up. Answers it in words for the user.
 */
[[nodiscard]] Result<QString> checkOrder(const Panorama &panorama, const ShootPlan &plan);

} // namespace PanoHost
