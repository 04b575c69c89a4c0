// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace PanoHost
{

/**
 * Distance of the point (\p x right, \p y up) from the strokes of a compass letter (N, E, S or W)
 * of height 1 that stands around the origin; far away for any other letter.
 */
[[nodiscard]] float distanceToLetter(char letter, float x, float y);

/** Width of a letter of height 1, strokes' thickness not counted. */
[[nodiscard]] float letterWidth(char letter);

} // namespace PanoHost
