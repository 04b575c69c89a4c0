// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "hostlink/hostapplication.h"
#include "hostlink/xiapplication.h"
#include "model/structuredpanoramaproperties.h"
#include "ui/pagephotos.h"
#include "ui/withinmemory.h"

namespace PanoHead
{

/**
 * Next, on every page: \p describe fills \p description, and the host gets a copy of it, after
 * which it may delete the photos. Without a host nothing is done and the answer is true. When \p
 * describe answers false, or memory runs out, nothing is handed over and the answer is false; of
 * the latter \p box tells, and the description is what it was before.
 */
template <typename Describe>
[[nodiscard]] bool handOver(StructuredPanoramaProperties &description, const Describe &describe,
                            PagePhotos &photos, const LowMemoryBox &box)
{
    XIApplication *host = findHost();
    if (host == nullptr) {
        return true;
    }
    const StructuredPanoramaProperties before = description;
    bool isDescribed = false;
    const bool hadMemory = withinMemory(box, [&] {
        if (describe()) {
            photos.letGo();
            isDescribed = true;
        }
    });
    if (!hadMemory) {
        description = before;
    }
    if (isDescribed) {
        host->ImportStructuredPanorama(description);
    }
    return isDescribed;
}

} // namespace PanoHead
