// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <vector>

namespace PanoHost
{

/** The middle one of \p values by size, of an even number the larger of the two; 0 when there are
 * none. */
[[nodiscard]] double median(std::vector<double> values);

} // namespace PanoHost
