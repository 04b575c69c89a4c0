// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/anglerange.h"

#include "model/shootdata.h"

#include <algorithm>
#include <cmath>

namespace PanoHead
{

bool AngleRange::isUnknown() const
{
    return minimum == -kUnbounded || maximum == kUnbounded;
}

bool AngleRange::isMeasured() const
{
    return std::isfinite(minimum) && std::isfinite(maximum) && std::abs(minimum) < kUnbounded
        && std::abs(maximum) < kUnbounded;
}

void AngleRange::widen(float angle)
{
    minimum = std::min(minimum, angle);
    maximum = std::max(maximum, angle);
}

AngleExtents extentsOf(const QVector<ShootData> &shots)
{
    AngleExtents extents{ AngleRange::scanStart(), AngleRange::scanStart() };
    for (const ShootData &shot : shots) {
        extents.yaw.widen(shot.yaw);
        extents.pitch.widen(shot.pitch);
    }
    return extents;
}

} // namespace PanoHead
