// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/common/photofacts.h"

#include "importers/common/shotorder.h"
#include "model/lensmodel.h"
#include "plugin/xiimagedef.h"

#include <algorithm>
#include <cmath>

namespace PanoHead
{

LensFacts LensTally::update(const QList<XIImageDef *> &images)
{
    if (!continues(images, m_seen)) {
        forget();
    }
    for (int i = m_seen.size(); i < images.size(); ++i) {
        add(images.at(i));
    }
    m_seen = images;
    return { m_focalCount > 0 ? m_focalSum / m_focalCount : 0.0, m_lensType };
}

void LensTally::add(XIImageDef *image)
{
    const float focalMm = image->FocalLength();
    if (std::isfinite(focalMm)) {
        m_focalSum += static_cast<double>(focalMm);
        ++m_focalCount;
    }
    const int lensType = image->LensType();
    if (isLensModel(lensType)) {
        m_lensType = lensType;
    }
}

LensFacts presetLens(const LensFacts &photos, const LensFacts &record)
{
    if (photos.focalMm > 0.0) {
        return photos;
    }
    return { std::max(record.focalMm, 0.0), record.lensType };
}

} // namespace PanoHead
