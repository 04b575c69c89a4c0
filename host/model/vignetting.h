// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace PanoHost
{

/** How much light of the middle arrives at r halves of the photo's diagonal: 1 + b r^2 + c r^4 + d
 * r^6, as in a Hugin project. */
struct Vignetting {
    double b = 0.0;
    double c = 0.0;
    double d = 0.0;
};

} // namespace PanoHost
