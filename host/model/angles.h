// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace PanoHost
{

/** Where a camera points, degrees: yaw to the right, pitch up, roll clockwise as seen from behind
 * it. It is rolled first, then pitched, then turned, as in a Hugin project. */
struct Angles {
    double yaw = 0.0;
    double pitch = 0.0;
    double roll = 0.0;
};

} // namespace PanoHost
