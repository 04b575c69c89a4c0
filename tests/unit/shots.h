// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "model/shootdata.h"

#include <QString>
#include <QStringList>

/** A shot at these angles, degrees. */
inline ShootData shotAt(float yaw, float pitch, float roll = 0.0F)
{
    ShootData shot;
    shot.yaw = yaw;
    shot.pitch = pitch;
    shot.roll = roll;
    return shot;
}

/** "/0.jpg", "/1.jpg"... */
inline QStringList photoNames(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names.append(QStringLiteral("/%1.jpg").arg(i));
    }
    return names;
}
