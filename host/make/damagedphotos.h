// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace PanoHost
{

struct JobWatch;
struct Panorama;

/** Names the photos of \p panorama that cannot be read to their ends. They are put in their places
 * all the same: what they show is worth more than nothing. */
void warnOfDamage(const Panorama &panorama, const JobWatch &watch);

} // namespace PanoHost
