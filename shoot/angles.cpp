// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/angles.h"

#include "model/shootdata.h"
#include "model/structuredpanoramaproperties.h"

namespace PanoHead
{

float toRadians(float degrees)
{
    return static_cast<float>(static_cast<double>(degrees) * kPi / 180.0);
}

void appendAngles(StructuredPanoramaProperties &description, const QVector<ShootData> &shots,
                  RollAngles roll)
{
    for (const ShootData &shot : shots) {
        description.yaw.append(toRadians(shot.yaw));
        description.pitch.append(toRadians(shot.pitch));
        if (roll == RollAngles::Write) {
            description.roll.append(toRadians(shot.roll));
        }
    }
}

void invertPitch(QVector<ShootData> &shots)
{
    for (ShootData &shot : shots) {
        shot.pitch = -shot.pitch;
    }
}

void rotate(QVector<ShootData> &shots, float degrees)
{
    for (ShootData &shot : shots) {
        shot.roll += degrees;
    }
}

} // namespace PanoHead
