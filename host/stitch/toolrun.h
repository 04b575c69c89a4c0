// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/jobwatch.h"
#include "host/model/result.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace PanoHost
{

/** The path of the helper program \p name, or that it is missing and how to get it. */
[[nodiscard]] Result<QString> findTool(const QString &name);

/** What a helper program left that came to its own end. */
struct ToolEnd {
    int exitCode = 0;
    QString said; ///< the end of what it printed
};

/**
 * Runs the program \p path in \p folder, where its temporary files go too, until it ends; \p tick
 * is called several times a second. An interruption stops it, and so does the end of the watch's
 * patience; it never outlives this process. A crash is a failure, an exit code is not.
 */
[[nodiscard]] Result<ToolEnd> runToEnd(const QString &path, const QStringList &arguments,
                                       const QString &folder, const JobWatch &watch,
                                       const std::function<void()> &tick = {});

/**
 * The same for programs that answer 0 when all is well. What they said goes into the failure.
 * Answers the path.
 */
[[nodiscard]] Result<QString> runTool(const QString &path, const QStringList &arguments,
                                      const QString &folder, const JobWatch &watch,
                                      const std::function<void()> &tick = {});

/** \p failure of a tool; where there is hardly any room left in \p folder, that as its reason. To
 * be asked before what the tool has left is removed. */
[[nodiscard]] Failure orLackOfRoom(const Failure &failure, const QString &folder);

/** \p word as a shell reads it back. */
[[nodiscard]] QString shellQuoted(const QString &word);

} // namespace PanoHost
