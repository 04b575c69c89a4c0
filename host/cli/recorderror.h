// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/core/result.h"
#include "shoot/recordfile.h"

namespace PanoHost
{

/** Why the record at \p path cannot be used: "RECORD: line N: reason". */
[[nodiscard]] Failure unusableRecord(const QString &path, const PanoHead::ReadError &error,
                                     const QString &tryThis
                                     = QStringLiteral("is it the record that the head wrote?"));

} // namespace PanoHost
