// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "hostlink/about.h"

namespace PanoHead
{

struct HeadFacts;

inline constexpr About kGigapanAbout{
    "Gigapan",
    "Gigapan import plugin",
    ":/%1/Resources/XGigapan.png",
    "7A21C94E-5B20-2020-2020-6028D47773DF",
};

[[nodiscard]] const HeadFacts &gigapanFacts();

} // namespace PanoHead
