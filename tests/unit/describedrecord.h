// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "importers/papywizard/papywizardreader.h"

#include <QString>

/** Everything a record says, one line per fact and per shot. */
[[nodiscard]] QString described(const PanoHead::PapywizardRecord &record);
