// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/hosthead.h"

/** Records in the Papywizard schema, and what pretends to be one. */
[[nodiscard]] QVector<HostileFile> hostileRecords();
