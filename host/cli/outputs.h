// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/cli/commandline.h"
#include "host/model/ptofile.h"

#include <functional>

namespace PanoHost
{

/** What a command writes, absolute. */
struct Outputs {
    QString project; ///< empty: none
    QString json; ///< empty: no file
    bool jsonToStdout = false;
};

/** The path \p name as seen from where the command runs. */
[[nodiscard]] QString absolutePath(const QString &name);

/** What -o and --json ask for; \p usualProject is what -o is when it is not given. Throws when both
 * are one file. */
[[nodiscard]] Outputs outputsFrom(const CommandLine &line, const QString &usualProject = {});

/** Throws unless all of \p outputs can be written, and none is one of \p inputs. */
void requireWritable(const Outputs &outputs, const QStringList &inputs);

/** Writes what \p textFor makes, names in it being relative to the folder that it is given. */
void writeJson(const Outputs &outputs, const std::function<QByteArray(const QString &)> &textFor);

void writeProject(const PtoFile &project, const QString &path);

} // namespace PanoHost
