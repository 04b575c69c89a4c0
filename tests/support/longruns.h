// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/** How often a test repeats itself: \p often when XPANOHEAD_LONG_TESTS is set. */
inline int rounds(int ordinarily, int often)
{
    return qEnvironmentVariableIsSet("XPANOHEAD_LONG_TESTS") ? often : ordinarily;
}
