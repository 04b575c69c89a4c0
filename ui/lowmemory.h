// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "model/structuredpanoramaproperties.h"
#include "ui/lowmemorynotice.h"

#include <new>

namespace PanoHead
{

/**
 * Answers what \p describe does, which fills \p description. When memory runs out, the description
 * is what it was before, \p notice is shown, and the answer is false: Qt's event loop does not
 * survive an exception.
 */
template <typename Describe>
[[nodiscard]] bool describeWithinMemory(StructuredPanoramaProperties &description,
                                        const Describe &describe, LowMemoryNotice &notice)
{
    const StructuredPanoramaProperties before = description;
    try {
        return describe();
    } catch (const std::bad_alloc &) {
        description = before;
    }
    notice.show();
    return false;
}

} // namespace PanoHead
