// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/pace.h"

#include <QCoreApplication>

#include <cmath>

namespace PanoHost
{

double Pace::perSecond() const
{
    constexpr std::chrono::milliseconds kTooShort{ 100 };
    return taken < kTooShort ? 0.0 : 1000.0 * done / static_cast<double>(taken.count());
}

std::optional<std::chrono::seconds> Pace::left() const
{
    constexpr std::chrono::seconds kTooShort{ 2 };
    if (taken < kTooShort || done <= 0 || done >= total) {
        return {};
    }
    return std::chrono::seconds(std::llround(std::ceil((total - done) / perSecond())));
}

QString timeLeftText(std::chrono::seconds left)
{
    const auto tr = [](const char *text) { return QCoreApplication::translate("PanoHost", text); };
    const qint64 seconds = left.count();
    const qint64 minutes = (seconds + 59) / 60;
    if (seconds < 100) {
        return tr("%1 s left").arg(seconds);
    }
    if (minutes < 100) {
        return tr("%1 min left").arg(minutes);
    }
    return tr("%1 h %2 min left").arg(minutes / 60).arg(minutes % 60);
}

} // namespace PanoHost
