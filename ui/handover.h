// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "plugin/hostapplication.h"
#include "plugin/xiapplication.h"
#include "ui/lowmemory.h"

namespace PanoHead
{

/**
 * Next, on every page: \p describe fills \p description, and the host gets a copy of it. Without a
 * host nothing is done and the answer is true. When \p describe answers false or memory runs out,
 * as in `describeWithinMemory`, nothing is handed over and the answer is false.
 */
template <typename Describe, typename Texts>
[[nodiscard]] bool handOver(QWidget *page, StructuredPanoramaProperties &description,
                            const Describe &describe, const Texts &texts)
{
    XIApplication *host = findHost();
    if (host == nullptr) {
        return true;
    }
    if (!describeWithinMemory(page, description, describe, texts)) {
        return false;
    }
    host->ImportStructuredPanorama(description);
    return true;
}

} // namespace PanoHead
