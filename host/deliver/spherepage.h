// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/deliver/deliver.h"

namespace PanoHost
{

/**
 * Makes NAME.html: one file that shows the panorama as seen from its middle, opened by a double
 * click, without a network. The picture in it is at most 8,192 x 4,096 pixels.
 */
[[nodiscard]] Result<QString> makeSpherePage(const DeliverJob &job, const JobWatch &watch);

} // namespace PanoHost
