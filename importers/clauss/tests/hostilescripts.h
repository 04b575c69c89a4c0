// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/hosthead.h"

/** Clauss scripts, and what pretends to be one. */
[[nodiscard]] QVector<HostileFile> hostileScripts();
