// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/stitch/panoramastitch.h"

#include <QString>

namespace PanoHost
{

/** What a job says of its step, in the user's language: "warping photos (step 3 of 4)". */
[[nodiscard]] QString stepText(const QString &text);

/** What a job says in English, for users of a window, which has no options. */
[[nodiscard]] QString inWindow(const QString &text);

/** "12,568 x 6,284 pixels at most (106 x 53 cm at 300 dpi); takes up to ...". */
[[nodiscard]] QString needsText(const StitchNeeds &needs, bool inInches);

} // namespace PanoHost
