// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "hostlink/about.h"

namespace PanoHead
{

struct HeadFacts;

inline constexpr About kVRDrive2About{
    "VRDrive2",
    "VRDrive2 XML import plugin",
    ":/%1/Resources/VRDrive2.png",
    "7A21C94E-5B20-2020-2020-B662C695C918",
};

[[nodiscard]] const HeadFacts &vrdrive2Facts();

} // namespace PanoHead
