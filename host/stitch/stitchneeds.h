// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/stitch/stitchplan.h"

#include <optional>

namespace PanoHost
{

/** What \p plan takes in a work folder without any result yet. */
[[nodiscard]] StitchNeeds needsOf(const StitchPlan &plan);

/** Why a stitch cannot be done in \p folder with \p diskBytes free and \p memoryBytes, with figures
 * and cures; nothing: it can. \p doneBytes of it are there already. */
[[nodiscard]] std::optional<Failure> lackOfRoom(const StitchNeeds &needs, const QString &folder,
                                                qint64 doneBytes, qint64 diskBytes,
                                                qint64 memoryBytes);

/** Memory that programs can have now; a large number where the system does not say. */
[[nodiscard]] qint64 availableMemory();

/** "310 MB", "12.3 GB". */
[[nodiscard]] QString bytesText(qint64 bytes);

} // namespace PanoHost
