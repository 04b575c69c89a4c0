// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/headmodel.h"

namespace PanoHost
{

Eigen::Matrix3d HeadModel::rotation(int view) const
{
    const AlignView &shot = views[static_cast<size_t>(view)];
    const Angles &extra = corrections[static_cast<size_t>(view)];
    return rotationOf({ shot.recorded.yaw * yawScale + extra.yaw,
                        shot.recorded.pitch * pitchScale + extra.pitch,
                        shot.recorded.roll + extra.roll })
        * rotationOf({ 0.0, mountPitchDegrees, mountRollDegrees })
        * rotationOf({ 0.0, 0.0, shot.turnDegrees });
}

const AlignLens &HeadModel::lensOf(int view) const
{
    return lenses[static_cast<size_t>(views[static_cast<size_t>(view)].lens)];
}

} // namespace PanoHost
