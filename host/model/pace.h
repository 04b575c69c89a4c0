// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <chrono>
#include <optional>

namespace PanoHost
{

/** How fast a job goes and how long it still takes, by what it has done so far. */
struct Pace {
    int done = 0;
    int total = 0;
    std::chrono::milliseconds taken{ 0 };

    /** 0 while there is too little to go by. */
    [[nodiscard]] double perSecond() const;
    /** Nothing while there is too little to go by, for two seconds that is, and at the end. */
    [[nodiscard]] std::optional<std::chrono::seconds> left() const;
};

/** "8 s left", "3 min left", "2 h 5 min left". */
[[nodiscard]] QString timeLeftText(std::chrono::seconds left);

} // namespace PanoHost
