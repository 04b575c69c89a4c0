// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/demo/direction.h"

#include <QtGlobal>

namespace PanoHost
{

/**
 * Smooth noise of unit cell size, about -1 to 1, 0 on average. The same arguments always give the
 * same value, on every machine.
 */
[[nodiscard]] float noise(const Vec3 &point, quint32 seed);

/** Octaves of `noise`, each of double frequency and half strength; about -1 to 1. */
[[nodiscard]] float fractalNoise(const Vec3 &point, int octaves, quint32 seed);

/** Like `fractalNoise`, with sharp crests; 0 to 1. */
[[nodiscard]] float ridgedNoise(const Vec3 &point, int octaves, quint32 seed);

/** Evenly spread over [0, 1), one value per pair of whole numbers. */
[[nodiscard]] float cellValue(int column, int row, quint32 seed);

} // namespace PanoHost
