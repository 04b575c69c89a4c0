// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/panorama.h"

namespace PanoHost
{

class WorkFolder;

/**
 * Projects in \p work cannot name files with quotation marks or line ends: photos of \p panorama
 * that are called so are named by links in the folder, which hold as much of the name as may be.
 * Throws when these cannot be made.
 */
void givePlainNames(Panorama &panorama, const WorkFolder &work);

} // namespace PanoHost
