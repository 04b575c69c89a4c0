// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

class XIImageDef;

namespace PanoHead
{

/** What photos with the same capture time do to the chronological order. */
enum class EqualTimes {
    KeepReadingOrder, ///< they stand in reading order among themselves
    GiveUp, ///< the whole list stays in reading order
};

/** \p images by their `ShotTime()`; none is lost. */
[[nodiscard]] QList<XIImageDef *> byShotTime(const QList<XIImageDef *> &images,
                                             EqualTimes equalTimes);

} // namespace PanoHead
