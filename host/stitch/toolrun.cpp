// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/stitch/toolrun.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QHash>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>
#include <csignal>

#include <sys/prctl.h>
#include <unistd.h>

namespace PanoHost
{
namespace
{

constexpr int kTickMilliseconds = 100;
constexpr int kPatienceMilliseconds = 2000;
constexpr int kKeptBytes = 1 << 20;

/** A program that goes when this one goes, however that comes about. */
class ToolProcess : public QProcess
{
protected:
    void setupChildProcess() override
    {
        // Too late when the parent has gone already: then somebody else is the parent.
        if (::prctl(PR_SET_PDEATHSIG, SIGKILL) != 0 || ::getppid() != m_parent) {
            ::_exit(1);
        }
    }

private:
    const pid_t m_parent = ::getpid();
};

/** The tools that the host runs, and what Debian calls them. */
QString packagesOf(const QString &tool)
{
    static const QString hugin = QStringLiteral("hugin-tools enblend");
    static const QHash<QString, QString> packages{
        { QStringLiteral("nona"), hugin },
        { QStringLiteral("verdandi"), hugin },
        { QStringLiteral("checkpto"), hugin },
        { QStringLiteral("enblend"), hugin },
        { QStringLiteral("enfuse"), QStringLiteral("enfuse") },
        { QStringLiteral("vips"), QStringLiteral("libvips-tools") },
    };
    return packages.value(tool, tool);
}

/** The last line that says something, for an error message. */
QString lastLine(const QString &output)
{
    const QStringList lines = output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
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

Failure toolFailure(const QString &name, const QString &why, const QString &tryThis)
{
    return { ExitCode::ToolFailed, name, why, tryThis };
}

QString inWords(std::chrono::milliseconds time)
{
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(time).count();
    return seconds < 120 ? QStringLiteral("%1 s").arg(seconds)
                         : QStringLiteral("%1 minutes").arg(seconds / 60);
}

/** Why \p process did not come to an end of its own. */
Failure crash(const QString &name, const QProcess &process)
{
    // Of a program that crashed this is the signal.
    if (process.exitCode() == SIGKILL) {
        return toolFailure(name, QStringLiteral("it was killed, perhaps because memory ran out"),
                           QStringLiteral("close other programs and try again"));
    }
    return toolFailure(name, QStringLiteral("it crashed (signal %1)").arg(process.exitCode()),
                       QStringLiteral("try again; if it crashes again: "
                                      "apt install --reinstall hugin-tools"));
}

} // namespace

Result<QString> findTool(const QString &name)
{
    const QString path = QStandardPaths::findExecutable(name);
    if (!path.isEmpty()) {
        return path;
    }
    return Failure{ ExitCode::ToolMissing, name,
                    QStringLiteral("this program is needed for stitching and was not found"),
                    QStringLiteral("apt install %1").arg(packagesOf(name)) };
}

Result<ToolEnd> runToEnd(const QString &path, const QStringList &arguments, const QString &folder,
                         const JobWatch &watch, const std::function<void()> &tick)
{
    const QString name = QFileInfo(path).fileName();
    ToolProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setWorkingDirectory(folder);
    // The tools' threads spin while they wait for each other, which on a busy machine costs
    // minutes.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("OMP_WAIT_POLICY"), QStringLiteral("PASSIVE"));
    if (name == QLatin1String("nona")) { // photos are warped side by side
        environment.insert(QStringLiteral("OMP_NUM_THREADS"), QStringLiteral("1"));
    }
    process.setProcessEnvironment(environment);
    process.start(path, arguments, QIODevice::ReadOnly);
    if (!process.waitForStarted()) {
        return toolFailure(name,
                           QStringLiteral("cannot be started (%1)").arg(process.errorString()),
                           QStringLiteral("apt install --reinstall hugin-tools"));
    }
    QElapsedTimer clock;
    clock.start();
    QByteArray said;
    while (!process.waitForFinished(kTickMilliseconds) && process.state() != QProcess::NotRunning) {
        if (watch.stopWanted()) {
            stop(process);
            return interruption();
        }
        if (clock.hasExpired(watch.patience.count())) {
            stop(process);
            return toolFailure(
                name,
                QStringLiteral("it was stopped since it did not end within %1")
                    .arg(inWords(watch.patience)),
                QStringLiteral("is the machine very busy, or a network drive away? try again"));
        }
        said = (said + process.readAll()).right(kKeptBytes);
        if (tick) {
            tick();
        }
    }
    if (watch.stopWanted()) { // Ctrl-C reaches the helper program too
        return interruption();
    }
    if (process.exitStatus() != QProcess::NormalExit) {
        return crash(name, process);
    }
    said = (said + process.readAll()).right(kKeptBytes);
    return ToolEnd{ process.exitCode(), QString::fromLocal8Bit(said) };
}

Result<QString> runTool(const QString &path, const QStringList &arguments, const QString &folder,
                        const JobWatch &watch, const std::function<void()> &tick)
{
    const Result<ToolEnd> end = runToEnd(path, arguments, folder, watch, tick);
    if (!end) {
        return end.error();
    }
    if (end.value().exitCode == 0) {
        return path;
    }
    const QString line = lastLine(end.value().said);
    return toolFailure(QFileInfo(path).fileName(),
                       line.isEmpty() ? QStringLiteral("it failed without a message")
                                      : QStringLiteral("it failed and said: %1").arg(line),
                       QStringLiteral("is there enough room in %1?").arg(QDir::tempPath()));
}

QString shellQuoted(const QString &word)
{
    const bool isPlain = !word.isEmpty() && std::all_of(word.cbegin(), word.cend(), [](QChar c) {
        return c.isLetterOrNumber() || QStringLiteral("/._-+=:,%@").contains(c);
    });
    QString quoted = word;
    return isPlain ? word
                   : QLatin1Char('\'') + quoted.replace(QLatin1Char('\''), QStringLiteral("'\\''"))
            + QLatin1Char('\'');
}

} // namespace PanoHost
