// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/deliver/deliver.h"

namespace PanoHost
{

/**
 * Makes the panorama itself, by the ending of the job's output a JPEG or a TIFF, with what viewers
 * need to show it as a sphere and what it carries on from its photos. Radiance is shown as a photo
 * of the reference exposure would. Answers the output.
 */
[[nodiscard]] Result<QString> deliverFlatPicture(const DeliverJob &job, const JobWatch &watch);

} // namespace PanoHost
