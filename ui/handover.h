// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "hostlink/hostapplication.h"
#include "hostlink/xiapplication.h"
#include "ui/lowmemory.h"
#include "ui/pagephotos.h"

namespace PanoHead
{

/**
 * Next, on every page: \p describe fills \p description, and the host gets a copy of it, after
 * which it may delete the photos. Without a host nothing is done and the answer is true. When \p
 * describe answers false or memory runs out, as in `describeWithinMemory`, nothing is handed over
 * and the answer is false.
 */
template <typename Describe>
[[nodiscard]] bool handOver(StructuredPanoramaProperties &description, const Describe &describe,
                            PagePhotos &photos, LowMemoryNotice &notice)
{
    XIApplication *host = findHost();
    if (host == nullptr) {
        return true;
    }
    if (!describeWithinMemory(description, describe, notice)) {
        return false;
    }
    photos.letGo();
    host->ImportStructuredPanorama(description);
    return true;
}

} // namespace PanoHead
