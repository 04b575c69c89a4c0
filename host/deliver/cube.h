// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/deliver/deliver.h"

namespace PanoHost
{

/**
 * Makes the folder NAME_cube beside the output, with front, right, back, left, up and down as files
 * of the output's kind, of radiance as EXR; front is the panorama's middle. Sides that no photo
 * reaches are left out, and named to \p watch. Answers the folder.
 */
[[nodiscard]] Result<QString> deliverCube(const DeliverJob &job, const JobWatch &watch);

} // namespace PanoHost
