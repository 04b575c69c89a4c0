// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/photofacts.h"

#include <algorithm>

namespace PanoHead
{

LensFacts presetLens(const LensFacts &photos, const LensFacts &record)
{
    if (photos.focalMm > 0.0) {
        return photos;
    }
    return { std::max(record.focalMm, 0.0), record.lensType };
}

} // namespace PanoHead
