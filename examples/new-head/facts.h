// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "hostlink/about.h"

namespace PanoHead
{

struct HeadFacts;

inline constexpr About kCsvAbout{
    "Csv",
    "Shot list import plugin",
    ":/%1/Resources/Csv.png",
    "7A21C94E-5B20-2020-2020-3C5F0E8A41D6",
};

[[nodiscard]] const HeadFacts &csvFacts();

} // namespace PanoHead
