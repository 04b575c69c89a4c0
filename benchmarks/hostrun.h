// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/** A program started on a shoot, with what it took. */
namespace HostRun
{

/** A Papywizard record of \p shots, 100 a row, on a grid of 1.2 degrees from 60 degrees downwards.
 */
[[nodiscard]] QByteArray record(int shots);

struct Run {
    int exitCode = -1; ///< also when the program was not ended by itself
    double wallSeconds = 0.0;
    double cpuSeconds = 0.0;
    double megabytes = 0.0; ///< the most that was resident
};

/** Runs \p program in \p folder; what it prints goes to \p output there, unless that is empty. */
[[nodiscard]] Run run(const QString &program, const QStringList &arguments, const QString &folder,
                      const QString &output = {});

} // namespace HostRun
