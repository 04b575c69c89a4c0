// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/common/photofacts.h"

#include "model/lensmodel.h"
#include "plugin/xiimagedef.h"

#include <algorithm>
#include <cmath>

namespace PanoHead
{

LensFacts lensFactsOf(const QList<XIImageDef *> &images)
{
    LensFacts facts;
    double sum = 0.0;
    int count = 0;
    for (XIImageDef *image : images) {
        const float focalMm = image->FocalLength();
        if (std::isfinite(focalMm)) {
            sum += static_cast<double>(focalMm);
            ++count;
        }
        const int lensType = image->LensType();
        if (isLensModel(lensType)) {
            facts.lensType = lensType;
        }
    }
    facts.focalMm = count > 0 ? sum / count : 0.0;
    return facts;
}

LensFacts presetLens(const LensFacts &photos, const LensFacts &record)
{
    if (photos.focalMm > 0.0) {
        return photos;
    }
    return { std::max(record.focalMm, 0.0), record.lensType };
}

} // namespace PanoHead
