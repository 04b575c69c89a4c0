// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "hostlink/about.h"

namespace PanoHead
{

struct HeadFacts;

inline constexpr About kPapywizardAbout{
    "Papywizard",
    "Papywizard XML import plugin",
    ":/%1/Resources/Papywizard.png",
    "7A21C94E-5B20-2020-2020-483181480AB7",
};

[[nodiscard]] const HeadFacts &papywizardFacts();

} // namespace PanoHead
