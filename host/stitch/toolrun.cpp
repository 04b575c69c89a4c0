// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/stitch/toolrun.h"

#include "host/model/displayname.h"
#include "host/model/safefile.h"
#include "host/model/said.h"
#include "host/stitch/stitchneeds.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QHash>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QStorageInfo>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <utility>

#include <sys/prctl.h>
#include <unistd.h>

namespace PanoHost
{
namespace
{

constexpr int kTickMilliseconds = 100;
constexpr int kPatienceMilliseconds = 2000;
constexpr int kKeptBytes = 1 << 20;

QString systemText(int error)
{
    return QRegularExpression::escape(QString::fromLocal8Bit(std::strerror(error)));
}

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
    return packages.value(tool);
}

QString installAgain(const QString &tool)
{
    const QString packages = packagesOf(tool);
    return packages.isEmpty() ? Said::tr("try it by itself")
                              : QStringLiteral("apt install --reinstall %1").arg(packages);
}

/** How the tools say that there is no room. */
bool tellsOfWriting(const QString &line)
{
    static const QRegularExpression words(
        QStringLiteral("write error|write failed|error writing|unable to write|%1|%2|%3")
            .arg(systemText(ENOSPC), systemText(EDQUOT), systemText(EFBIG)),
        QRegularExpression::CaseInsensitiveOption);
    return words.match(line).hasMatch();
}

bool isPlaceInSource(const QString &line)
{
    static const QRegularExpression place(QStringLiteral("^\\(\\S+:\\d+\\)$"));
    return place.match(line).hasMatch();
}

/** The last line that says something, for an error message: of writing, when one does. */
QString tellingLine(const QString &output)
{
    const QStringList lines = output.split(QRegularExpression(QStringLiteral("[\r\n]")));
    QString last;
    QString ofWriting;
    for (const QString &line : lines) {
        const QString text = line.simplified();
        // Where in its own source a program has failed says nothing to anybody.
        last = text.isEmpty() || isPlaceInSource(text) ? last : text;
        ofWriting = tellsOfWriting(text) ? text : ofWriting;
    }
    return ofWriting.isEmpty() ? last : ofWriting;
}

/** Processor time that a process and all that it has started have used, in the system's ticks. */
qint64 usedTicks(qint64 process)
{
    const QString folder = QStringLiteral("/proc/%1/").arg(process);
    constexpr qint64 kMostBytes = 1 << 16;
    const auto stat = readRegularFile(folder + QStringLiteral("stat"), kMostBytes);
    const auto children
        = readRegularFile(folder + QStringLiteral("task/%1/children").arg(process), kMostBytes);
    qint64 ticks = 0;
    if (stat) {
        // Behind the name, which may hold anything: its own time and that of children that ended.
        const QByteArray &line = stat.value();
        const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
        for (const int field : { 11, 12, 13, 14 }) {
            ticks += fields.value(field).toLongLong();
        }
    }
    if (children) {
        for (const QByteArray &child : children.value().simplified().split(' ')) {
            ticks += child.isEmpty() ? 0 : usedTicks(child.toLongLong());
        }
    }
    return ticks;
}

/** Tells a process that does nothing from one that takes its time. */
class Patience
{
public:
    Patience(qint64 process, std::chrono::milliseconds patience)
        : m_process(process)
        , m_patience(patience)
    {
        m_clock.start();
    }

    [[nodiscard]] bool isOver()
    {
        if (!m_clock.hasExpired(m_patience.count())) {
            return false;
        }
        // Who waits for something looks after it now and then; starting takes a moment too.
        constexpr double kLeastShare = 0.01;
        constexpr double kStartTicks = 3.0;
        const qint64 used = usedTicks(m_process);
        const double least = kLeastShare * double(m_clock.restart()) / 1000.0
            * static_cast<double>(::sysconf(_SC_CLK_TCK));
        return static_cast<double>(used - std::exchange(m_used, used))
            < std::max(least, kStartTicks);
    }

private:
    const qint64 m_process;
    const std::chrono::milliseconds m_patience;
    QElapsedTimer m_clock;
    qint64 m_used = 0;
};

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
                         : Said::tr("%1 minutes").arg(seconds / 60);
}

QString askForRoom(const QString &folder)
{
    return Said::tr("is there enough room in %1?").arg(displayName(folder));
}

/** Why \p process did not come to an end of its own. */
Failure crash(const QString &name, const QProcess &process, const QString &said,
              const QString &folder)
{
    // Of a program that crashed this is the signal.
    if (process.exitCode() == SIGKILL) {
        return toolFailure(name, Said::tr("it was killed, perhaps because memory ran out"),
                           Said::tr("close other programs and try again"));
    }
    const QString line = tellingLine(said);
    const QString why = Said::tr("it crashed (signal %1)").arg(process.exitCode());
    // vips says nothing when it crashes on a full disk.
    return toolFailure(name, line.isEmpty() ? why : Said::tr("%1 and said: %2").arg(why, line),
                       askForRoom(folder) + Said::tr(" if so: %1").arg(installAgain(name)));
}

} // namespace

Result<QString> findTool(const QString &name)
{
    const QString path = QStandardPaths::findExecutable(name);
    if (!path.isEmpty()) {
        return path;
    }
    const QString packages = packagesOf(name);
    return Failure{ ExitCode::ToolMissing, name,
                    Said::tr("this program is needed for stitching and was not found"),
                    QStringLiteral("apt install %1").arg(packages.isEmpty() ? name : packages) };
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
    // There is room where their results go; elsewhere nobody has looked.
    environment.insert(QStringLiteral("TMPDIR"), QDir(folder).absolutePath());
    process.setProcessEnvironment(environment);
    process.start(path, arguments, QIODevice::ReadOnly);
    if (!process.waitForStarted()) {
        return toolFailure(name, Said::tr("cannot be started (%1)").arg(process.errorString()),
                           installAgain(name));
    }
    Patience patience(process.processId(), watch.patience);
    QByteArray said;
    while (!process.waitForFinished(kTickMilliseconds) && process.state() != QProcess::NotRunning) {
        if (watch.stopWanted()) {
            stop(process);
            return interruption();
        }
        if (patience.isOver()) {
            stop(process);
            return toolFailure(
                name,
                Said::tr("it was stopped since it did nothing for %1").arg(inWords(watch.patience)),
                Said::tr("is the machine very busy, or a network drive away? try again"));
        }
        said = (said + process.readAll()).right(kKeptBytes);
        if (tick) {
            tick();
        }
    }
    if (watch.stopWanted()) { // Ctrl-C reaches the helper program too
        return interruption();
    }
    said = (said + process.readAll()).right(kKeptBytes);
    if (process.exitStatus() != QProcess::NormalExit) {
        return orLackOfRoom(crash(name, process, QString::fromLocal8Bit(said), folder), folder);
    }
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
    const QString line = tellingLine(end.value().said);
    return orLackOfRoom(
        toolFailure(QFileInfo(path).fileName(),
                    line.isEmpty() ? Said::tr("it failed without a message")
                                   : Said::tr("it failed and said: %1").arg(line),
                    tellsOfWriting(line)
                        ? askForRoom(folder)
                        : Said::tr("is the disk full, or a file damaged that it reads?")),
        folder);
}

Failure orLackOfRoom(const Failure &failure, const QString &folder)
{
    constexpr qint64 kHardlyAny = 16LL << 20; // a warped photo may take as much
    const QStorageInfo disk(folder);
    const qint64 free = disk.bytesAvailable();
    if (failure.code != ExitCode::ToolFailed || free >= kHardlyAny) {
        return failure;
    }
    return { failure.code, failure.what,
             Said::tr("it failed, and there is hardly any room left on the disk at %1 (%2)")
                 .arg(disk.rootPath(), bytesText(free)),
             Said::tr("make room there and go on with the same command; nothing is lost") };
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
