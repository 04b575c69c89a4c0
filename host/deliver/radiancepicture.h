// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/deliver/deliver.h"

namespace PanoHost
{

/**
 * Makes NAME.exr or, by the job's suffix, NAME.hdr beside the output: the light of the whole
 * sphere, black and, in the first, transparent where no photo reaches. Refuses pictures of 8 and 16
 * bits.
 */
[[nodiscard]] Result<QString> deliverRadiance(const DeliverJob &job, const JobWatch &watch);

} // namespace PanoHost
