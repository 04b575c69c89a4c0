// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/deliver/deliver.h"

namespace PanoHost
{

/**
 * Makes the folder NAME_zoom: the panorama as a flat picture of any size, in tiles, and the page
 * that shows it, opened by a double click, without a network. Answers the page.
 */
[[nodiscard]] Result<QString> makeZoomFolder(const DeliverJob &job, const JobWatch &watch);

/**
 * Makes the folder NAME_iiif: the panorama in tiles as IIIF's Image API 3 names them, for level 0
 * (a plain web server), reached at the job's address. Answers its info.json.
 */
[[nodiscard]] Result<QString> makeIiifFolder(const DeliverJob &job, const JobWatch &watch);

} // namespace PanoHost
