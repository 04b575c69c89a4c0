// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVector>

namespace PanoHead
{

/** More characters than any time stamp that is read. */
constexpr int kMaxShotTimeLength = 64;

/**
 * The time that a head has written as \p text, to the millisecond: 2024-05-01_10h00m00s,
 * 2024-05-01T10:00:00 or with a blank, 2024:05:01 10:00:00 as in photos, 20240501_100000 or with a
 * T, 10:00:00 or 10h00m00s (on 1 January 1970), or Qt's text form. All but the last may go on with
 * a fraction of the second and a time zone: Z, +02:00, +0200, +02.
 *
 * Without a zone the head's clock is taken for UTC, as the photos' is: no change of the clocks
 * skips an hour or makes one twice. Invalid for all else, for a date or time that does not exist as
 * well.
 */
[[nodiscard]] QDateTime readShotTime(const QString &text);

/**
 * As `readShotTime`, one for each of \p texts, which are in the order of the shots. A time without
 * a date is on the day that brings it nearest to the one before, so that shoots may pass midnight.
 */
[[nodiscard]] QVector<QDateTime> readShotTimes(const QStringList &texts);

} // namespace PanoHead
