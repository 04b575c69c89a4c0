// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "model/shootdata.h"

/** A shot at these angles, degrees. */
inline ShootData shotAt(float yaw, float pitch, float roll = 0.0F)
{
    ShootData shot;
    shot.yaw = yaw;
    shot.pitch = pitch;
    shot.roll = roll;
    return shot;
}
