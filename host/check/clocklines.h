// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/check/shotpath.h"

#include <vector>

namespace PanoHost
{

/** Ways in which the clocks of photos and shots, both usable, may differ; the likeliest first, at
 * least one and at most \p most. They differ by more than the time between two shots may vary. */
[[nodiscard]] std::vector<ClockLine> clockLines(const ShotClock &photos, const ShotClock &shots,
                                                int most);

/** \p line moved to what the photos that \p shots pairs (by photo; -1: none) say; outliers count
 * little. */
[[nodiscard]] ClockLine fittedLine(const ClockLine &line, const ShotClock &photos,
                                   const ShotClock &shots, const std::vector<int> &pairs);

/** How unlikely \p line is before anything is known: most clocks agree, or differ by whole hours.
 */
[[nodiscard]] double costOfLine(const ClockLine &line, const ShotClock &shots);

/** How unlikely the times are when photo i was taken for shot i, and \p drift is right; the
 * camera's clock may have been set on the way, photos may have wild times, or all times may say
 * nothing. */
[[nodiscard]] double costInOrder(const ShotClock &photos, const ShotClock &shots, double drift,
                                 double toleranceSeconds);

} // namespace PanoHost
