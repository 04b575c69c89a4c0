// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "model/shootdata.h"
#include "shoot/recordfile.h"

#include <QByteArray>
#include <QVector>

namespace PanoHead
{

/** What a Clauss Rodeon script says. */
struct ClaussScript {
    QVector<ShootData> shots; ///< one per shooting command; degrees, `id` counts from 0
    bool isSound = true; ///< every angle was a number, and there were not too many shots
    ReadError firstError; ///< of the first angle that was none, or of the shot too many
};

/**
 * Reads a script: one command per line, up to the first NUL byte. An angle that is not a finite
 * number reads as 0 and reading goes on; more than `kMaxRecordedShots` shots leave none at all.
 * Unknown commands are skipped. Only letters, digits, underscores and hyphens belong to a value, so
 * that decimals are cut at the point.
 */
[[nodiscard]] ClaussScript readClaussScript(const QByteArray &bytes);

/**
 * The script in \p bytes with those of its shots only that \p shots counts from 0, rising, and
 * without the angles that only the others need. All other lines stay as they are, up to the first
 * NUL byte.
 */
[[nodiscard]] QByteArray claussExcerpt(const QByteArray &bytes, const QVector<int> &shots);

} // namespace PanoHead
