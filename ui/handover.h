// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "hostlink/hostapplication.h"
#include "hostlink/xiapplication.h"
#include "model/structuredpanoramaproperties.h"
#include "ui/pagephotos.h"

namespace PanoHead
{

/**
 * Next, on every page: `describe` of \p page fills the description, and the host gets a copy of
 * it, after which it may delete the photos. Without a host nothing is done and the answer is true.
 * When `describe` answers false, or memory runs out, nothing is handed over and the answer is
 * false; in the latter case the description is what it was before.
 */
template <typename Page> [[nodiscard]] bool handOver(Page &page, PagePhotos &photos)
{
    StructuredPanoramaProperties &description = page;
    XIApplication *host = findHost();
    if (host == nullptr) {
        return true;
    }
    const StructuredPanoramaProperties before = description;
    bool isDescribed = false;
    const bool hadMemory = photos.withinMemory([&] {
        if (page.describe()) {
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
