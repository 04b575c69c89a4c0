// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <algorithm>
#include <vector>

namespace PanoHost
{

/** The middle one of \p values by size, of an even number the larger of the two; 0 when there are
 * none. */
[[nodiscard]] inline double median(std::vector<double> values)
{
    if (values.empty()) {
        return 0.0;
    }
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace PanoHost
