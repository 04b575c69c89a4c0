// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/panorama.h"

namespace PanoHost
{

/**
 * \p panorama for the eye: a heading, then a line per position with its angles in degrees, the
 * positions that it links to and its photos, named relative to \p folder.
 */
[[nodiscard]] QString panoramaTable(const Panorama &panorama, const QString &folder);

} // namespace PanoHost
