// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/ptofile.h"

#include <optional>
#include <vector>

namespace PanoHost
{

/** Pixels, one per image; nothing: it is not known. */
using PhotoResiduals = std::vector<std::optional<double>>;

/** How far the control points of each image of \p project land from their matches, as the project
 * places the images now: the median in pixels. Nothing for images without right points. */
[[nodiscard]] PhotoResiduals photoResiduals(const PtoFile &project);

} // namespace PanoHost
