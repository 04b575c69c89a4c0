// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/recorderror.h"

#include "host/cli/displayname.h"

namespace PanoHost
{

Failure unusableRecord(const QString &path, const PanoHead::ReadError &error,
                       const QString &tryThis)
{
    const QString why = error.line > 0
        ? QStringLiteral("line %1: %2").arg(QString::number(error.line), error.reason)
        : error.reason;
    return { ExitCode::InputRefused, displayName(path), why, tryThis };
}

} // namespace PanoHost
