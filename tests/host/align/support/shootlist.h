// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/host/align/support/testshoot.h"

#include <QVector>

#include <optional>

namespace TestShoots
{

/** The shoots of the quality table, in its order. */
[[nodiscard]] QVector<TestShoot> all();

/** The one called \p name; nothing for a name that none has. */
[[nodiscard]] std::optional<TestShoot> named(const QString &name);

/** Two rows without a common point, of \p above and \p below photos. */
[[nodiscard]] TestShoot islands(int above, int below, quint32 seed);

/** 4 rows of 9 at 50 mm, of which the user says \p statedPoints percent too much overlap. */
[[nodiscard]] TestShoot grid(double statedPoints);

/** A shoot for tests of the machinery: 6 photos of 300 x 200 pixels in two rows. */
[[nodiscard]] TestShoot tiny();

} // namespace TestShoots
