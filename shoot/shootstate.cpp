// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/shootstate.h"

namespace PanoHead
{

void ShootState::setExtents(const AngleExtents &extents)
{
    yawMin = extents.yaw.minimum;
    yawMax = extents.yaw.maximum;
    pitchMin = extents.pitch.minimum;
    pitchMax = extents.pitch.maximum;
}

void ShootState::invertPitchRange()
{
    const AngleRange inverted = extents().pitch.negated();
    pitchMin = inverted.minimum;
    pitchMax = inverted.maximum;
}

} // namespace PanoHead
