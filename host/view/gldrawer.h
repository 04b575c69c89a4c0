// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/view/drawlist.h"

#include <memory>

namespace PanoHost
{

/** Who does OpenGL's work. */
enum class GlBy {
    Card, ///< not the processor's: that is slower than `SoftDrawer`
    Any,
};

/**
 * Draws with OpenGL 2.1 or ES 2, beside the window: pictures come back as images, so that a window
 * needs no surface of another kind, and stays as it is where there is no OpenGL. Null where there
 * is none that can. GUI thread.
 */
[[nodiscard]] std::unique_ptr<PictureDrawer> makeGlDrawer(GlBy by = GlBy::Card);

} // namespace PanoHost
