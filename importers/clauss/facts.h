// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "hostlink/about.h"

namespace PanoHead
{

struct HeadFacts;

inline constexpr About kClaussAbout{
    "Clauss",
    "Clauss Rodeon import plugin",
    ":/%1/Resources/XClauss.png",
    "7A21C94E-5B20-2020-2020-D6D081182F97",
};

[[nodiscard]] const HeadFacts &claussFacts();

} // namespace PanoHead
