// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/toolrun.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace PanoHost
{
namespace
{

constexpr int kTickMilliseconds = 100;
constexpr int kPatienceMilliseconds = 2000;

/** The last line that says something, for an error message. */
QString lastLine(const QByteArray &output)
{
    const QStringList lines
        = QString::fromLocal8Bit(output).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    return lines.isEmpty() ? QString() : lines.last().trimmed();
}

void stop(QProcess &process)
{
    process.terminate();
    if (!process.waitForFinished(kPatienceMilliseconds)) {
        process.kill();
        process.waitForFinished(kPatienceMilliseconds);
    }
}

} // namespace

void JobWatch::report(int done, int total, const QString &text) const
{
    if (progress) {
        progress(done, total, text);
    }
}

Failure interruption()
{
    return { ExitCode::Interrupted, {}, {}, {} };
}

Result<QString> findTool(const QString &name)
{
    const QString path = QStandardPaths::findExecutable(name);
    if (!path.isEmpty()) {
        return path;
    }
    return Failure{ ExitCode::ToolMissing, name,
                    QStringLiteral("this program is needed for stitching and was not found"),
                    QStringLiteral("apt install hugin-tools enblend") };
}

Result<QString> runTool(const QString &path, const QStringList &arguments, const QString &folder,
                        const JobWatch &watch, const std::function<void()> &tick)
{
    const QString name = QFileInfo(path).fileName();
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setWorkingDirectory(folder);
    // The tools' threads spin while they wait for each other, which on a busy machine costs
    // minutes.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("OMP_WAIT_POLICY"), QStringLiteral("PASSIVE"));
    process.setProcessEnvironment(environment);
    process.start(path, arguments, QIODevice::ReadOnly);
    if (!process.waitForStarted()) {
        return Failure{ ExitCode::ToolFailed,
                        name,
                        QStringLiteral("cannot be started (%1)").arg(process.errorString()),
                        {} };
    }
    while (!process.waitForFinished(kTickMilliseconds) && process.state() != QProcess::NotRunning) {
        if (watch.stopWanted()) {
            stop(process);
            return interruption();
        }
        if (tick) {
            tick();
        }
    }
    if (watch.stopWanted()) { // Ctrl-C reaches the helper program too
        return interruption();
    }
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0) {
        return path;
    }
    const QString said = lastLine(process.readAll());
    return Failure{ ExitCode::ToolFailed, name,
                    said.isEmpty() ? QStringLiteral("it failed without a message")
                                   : QStringLiteral("it failed and said: %1").arg(said),
                    QStringLiteral("is there enough room in %1?").arg(QDir::tempPath()) };
}

} // namespace PanoHost
