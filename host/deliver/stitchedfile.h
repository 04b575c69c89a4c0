// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/stitch/stitchedpicture.h"
#include "host/stitch/vipsfile.h"

namespace PanoHost
{

/** The pixels of \p picture; refuses a file that is another picture than that. */
[[nodiscard]] Result<VipsFile> openStitched(const StitchedPicture &picture);

} // namespace PanoHost
