// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/check/cardplan.h"

#include <QDateTime>

/** Photos and records of a card, made up for tests. Seconds count from 2024-05-01 10:00. */
namespace CardShoots
{

inline QDateTime timeAt(double seconds)
{
    return QDateTime({ 2024, 5, 1 }, { 10, 0 }, Qt::UTC).addMSecs(qRound64(1000.0 * seconds));
}

/** When shot \p shot of a shoot is taken: no two pauses of three are alike. */
inline double secondsOfShot(int shot)
{
    return 5.0 * shot + (shot * shot + shot / 7) % 3;
}

/** A photo without a time when \p seconds is negative. */
inline PanoHost::PhotoInfo photo(const QString &path, double seconds)
{
    PanoHost::PhotoInfo info;
    info.path = path;
    info.storedSize = QSize(6000, 4000);
    info.camera = QStringLiteral("Camera");
    info.lensName = QStringLiteral("Lens");
    info.exposureValue = 12.0;
    if (seconds >= 0.0) {
        info.timeMs = timeAt(seconds).toMSecsSinceEpoch();
        info.timeText = timeAt(seconds).toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss"));
    }
    return info;
}

/** "/card/IMG_0007.jpg". */
inline QString pathOf(int number, const QString &folder = QStringLiteral("/card"))
{
    return QStringLiteral("%1/IMG_%2.jpg").arg(folder).arg(number, 4, 10, QLatin1Char('0'));
}

/** Adds \p count photos of a shoot whose first is taken at \p start, numbered from \p number. */
inline void take(QVector<PanoHost::CardPhoto> &photos, int number, int count, double start,
                 const QString &folder = QStringLiteral("/card"))
{
    for (int shot = 0; shot < count; ++shot) {
        photos += PanoHost::CardPhoto{
            photo(pathOf(number + shot, folder), start + secondsOfShot(shot)), {}, {}
        };
    }
}

/** A record of \p count shots from \p start on; without times when that is negative. */
inline PanoHost::CardRecord record(const QString &path, int count, double start)
{
    PanoHost::CardRecord record;
    record.path = path;
    record.heads += QStringLiteral("papywizard");
    record.bracketCount = 1;
    for (int shot = 0; shot < count; ++shot) {
        PanoHead::NotedShot noted;
        noted.yawDegrees = 10.0 * shot;
        if (start >= 0.0) {
            noted.time = timeAt(start + secondsOfShot(shot));
        }
        record.shots += noted;
    }
    return record;
}

} // namespace CardShoots
