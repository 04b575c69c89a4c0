// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

struct ShootData;
struct StructuredPanoramaProperties;

namespace PanoHead
{

constexpr double kPi = 3.141592653589793;

/** Degrees to radians, computed in double and stored as 32-bit float, as in the description. */
[[nodiscard]] float toRadians(float degrees);

enum class RollAngles { Write, LeaveEmpty };

/** Appends the recorded angles, in radians, one entry per shot in record order. */
void appendAngles(StructuredPanoramaProperties &description, const QVector<ShootData> &shots,
                  RollAngles roll);

/** Negates every pitch: the cure for a head that counts downwards. */
void invertPitch(QVector<ShootData> &shots);

/** Adds \p degrees to every roll, without wrapping. */
void rotate(QVector<ShootData> &shots, float degrees);

} // namespace PanoHead
