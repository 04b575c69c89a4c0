// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/outputs.h"

#include "host/cli/console.h"
#include "host/import/inputcheck.h"
#include "host/model/commanderror.h"
#include "host/model/safefile.h"

#include <QDir>
#include <QFileInfo>

namespace PanoHost
{

QString absolutePath(const QString &name)
{
    return QDir::cleanPath(QDir().absoluteFilePath(name));
}

Outputs outputsFrom(const CommandLine &line, const QString &usualProject)
{
    Outputs outputs;
    const QString project = line.value(QStringLiteral("output"));
    outputs.project = project.isEmpty() ? usualProject : absolutePath(project);
    const QString json = line.value(QStringLiteral("json"));
    outputs.jsonToStdout = json == QLatin1String("-");
    if (!json.isEmpty() && !outputs.jsonToStdout) {
        outputs.json = absolutePath(json);
    }
    if (!outputs.json.isEmpty() && outputs.json == outputs.project) {
        throw usageError(QStringLiteral("-o and --json name the same file"),
                         QStringLiteral("give each a name of its own"));
    }
    return outputs;
}

void requireWritable(const Outputs &outputs, const QStringList &inputs)
{
    for (const QString &path : { outputs.project, outputs.json }) {
        if (!path.isEmpty()) {
            requireWritable(path, inputs);
        }
    }
}

void writeJson(const Outputs &outputs, const std::function<QByteArray(const QString &)> &textFor)
{
    if (!outputs.json.isEmpty()) {
        const QString folder = QFileInfo(outputs.json).absolutePath();
        (void)valueOrThrow(writeFileAtomically(outputs.json, textFor(folder)));
    }
    if (outputs.jsonToStdout) {
        printOut(QString::fromUtf8(textFor(QDir::currentPath())));
    }
}

void writeProject(const PtoFile &project, const QString &path)
{
    const QString folder = QFileInfo(path).absolutePath();
    (void)valueOrThrow(writeFileAtomically(path, valueOrThrow(project.text(folder))));
}

} // namespace PanoHost
