// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/hosthead.h"

/** A record in the Papywizard schema that says which lens took \p shots. */
[[nodiscard]] QByteArray lensRecord(const QVector<ShotAngles> &shots);
