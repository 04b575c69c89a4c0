// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/stitch/stitcher.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>

using namespace PanoHost;

namespace
{

/** A program of the test's own in \p folder that stands in for a stitching tool. */
bool makeTool(const QTemporaryDir &folder, const char *name, const QByteArray &script)
{
    QFile file(folder.filePath(QString::fromLatin1(name)));
    return file.open(QIODevice::WriteOnly) && file.write("#!/bin/sh\n" + script) > 0
        && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

/** Their names; nothing may be left running. */
QStringList childrenOfThisProcess()
{
    QStringList names;
    const QStringList processes
        = QDir(QStringLiteral("/proc")).entryList({ QStringLiteral("[0-9]*") }, QDir::Dirs);
    for (const QString &process : processes) {
        QFile file(QStringLiteral("/proc/%1/stat").arg(process));
        if (file.open(QIODevice::ReadOnly)) {
            // PID (NAME) STATE PARENT ...; the name may hold anything.
            const QByteArray line = file.readAll();
            const int end = line.lastIndexOf(')');
            if (line.mid(end + 2).split(' ').value(1).toInt() == ::getpid()) {
                names.append(QString::fromLocal8Bit(line.left(end + 1)));
            }
        }
    }
    return names;
}

StitchJob jobFor(const QTemporaryDir &folder)
{
    return { folder.filePath(QStringLiteral("demo.pto")), QSize(40, 20), true, { 0, 1 } };
}

} // namespace

class TestStitcher : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void missingProgramIsNamedWithItsCure_data();
    void missingProgramIsNamedWithItsCure();
    void failureRepeatsWhatTheProgramSaid();
    void programThatLeavesNothingFails();
    void pictureStandsAtItsOffsetOnTheCanvas();
    void programsGetTheProjectTheImagesAndTheWrap();
    void interruptionStopsTheProgram();
    void badEndsAreExplained_data();
    void badEndsAreExplained();

private:
    QByteArray m_path;
    std::unique_ptr<QTemporaryDir> m_tools;
    std::unique_ptr<QTemporaryDir> m_temp;
};

void TestStitcher::init()
{
    m_path = qgetenv("PATH");
    m_tools = std::make_unique<QTemporaryDir>();
    m_temp = std::make_unique<QTemporaryDir>();
    qputenv("PATH", QFile::encodeName(m_tools->path()) + ":/usr/bin:/bin");
    qputenv("TMPDIR", QFile::encodeName(m_temp->path()));
}

void TestStitcher::cleanup()
{
    qputenv("PATH", m_path);
    qunsetenv("TMPDIR");
    // Whatever happened, nothing is left lying about.
    QCOMPARE(QDir(m_temp->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList());
}

void TestStitcher::missingProgramIsNamedWithItsCure_data()
{
    QTest::addColumn<QString>("present");
    QTest::addColumn<QString>("missing");
    QTest::newRow("none there") << QString() << QStringLiteral("nona");
    QTest::newRow("nona alone") << QStringLiteral("nona") << QStringLiteral("verdandi");
    QTest::newRow("verdandi alone") << QStringLiteral("verdandi") << QStringLiteral("nona");
}

void TestStitcher::missingProgramIsNamedWithItsCure()
{
    QFETCH(QString, present);
    QFETCH(QString, missing);
    qputenv("PATH", QFile::encodeName(m_tools->path()));
    if (!present.isEmpty()) {
        QVERIFY(makeTool(*m_tools, present.toLatin1().constData(), "exit 0\n"));
    }
    const Result<QImage> result = stitch(jobFor(*m_tools), {});
    QVERIFY(!result);
    QCOMPARE(result.error().code, ExitCode::ToolMissing);
    QCOMPARE(result.error().what, missing);
    QVERIFY(result.error().tryThis.contains(QStringLiteral("apt install hugin-tools enblend")));
}

void TestStitcher::failureRepeatsWhatTheProgramSaid()
{
    QVERIFY(makeTool(*m_tools, "nona", "echo loading; echo 'no such photo: a.jpg' >&2; exit 1\n"));
    QVERIFY(makeTool(*m_tools, "verdandi", "exit 0\n"));
    const Result<QImage> result = stitch(jobFor(*m_tools), {});
    QVERIFY(!result);
    QCOMPARE(result.error().code, ExitCode::ToolFailed);
    QCOMPARE(result.error().what, QStringLiteral("nona"));
    QVERIFY(result.error().why.contains(QStringLiteral("no such photo: a.jpg")));
}

void TestStitcher::programThatLeavesNothingFails()
{
    QVERIFY(makeTool(*m_tools, "nona", "exit 0\n"));
    QVERIFY(makeTool(*m_tools, "verdandi", "exit 0\n"));
    const Result<QImage> result = stitch(jobFor(*m_tools), {});
    QVERIFY(!result);
    QCOMPARE(result.error().code, ExitCode::ToolFailed);
    QCOMPARE(result.error().what, QStringLiteral("verdandi"));
}

void TestStitcher::pictureStandsAtItsOffsetOnTheCanvas()
{
    QImage part(10, 5, QImage::Format_ARGB32);
    part.fill(Qt::green);
    part.setOffset(QPoint(20, 3));
    QVERIFY(part.save(m_tools->filePath(QStringLiteral("part.png"))));
    QVERIFY(makeTool(*m_tools, "nona", "exit 0\n"));
    QVERIFY(makeTool(*m_tools, "verdandi",
                     "cp '" + QFile::encodeName(m_tools->path()) + "/part.png' \"$2\"\n"));
    const Result<QImage> result = stitch(jobFor(*m_tools), {});
    QVERIFY(result);
    const QImage &canvas = result.value();
    QCOMPARE(canvas.size(), QSize(40, 20));
    QCOMPARE(canvas.pixelColor(20, 3), QColor(Qt::green));
    QCOMPARE(canvas.pixelColor(29, 7), QColor(Qt::green));
    QCOMPARE(canvas.pixelColor(19, 3).alpha(), 0);
    QCOMPARE(canvas.pixelColor(30, 7).alpha(), 0);
    QCOMPARE(canvas.pixelColor(20, 8).alpha(), 0);
}

void TestStitcher::programsGetTheProjectTheImagesAndTheWrap()
{
    const QByteArray log = QFile::encodeName(m_tools->filePath(QStringLiteral("log")));
    QVERIFY(makeTool(*m_tools, "nona",
                     "echo nona \"$@\" >> '" + log
                         + "'; for a; do last=$a; done; [ -e \"$last\" ] && "
                           "touch \"$6\"0000.tif \"$6\"0001.tif\n"));
    QVERIFY(makeTool(*m_tools, "verdandi", "echo verdandi \"$@\" >> '" + log + "'; exit 1\n"));
    QTemporaryDir projects;
    StitchJob job = jobFor(projects);
    QFile project(job.projectPath);
    QVERIFY(project.open(QIODevice::WriteOnly));
    job.images = { 0, 3 };
    for (const bool fullTurn : { true, false }) {
        job.fullTurn = fullTurn;
        QVERIFY(!stitch(job, {}));
    }
    QFile file(QFile::decodeName(log));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList lines
        = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 4);
    QVERIFY(lines[0].endsWith(QStringLiteral(" -i 0 -i 3 ") + job.projectPath));
    QCOMPARE(lines[1], QStringLiteral("verdandi -o blended.png -w warped0000.tif warped0001.tif"));
    QCOMPARE(lines[3], QStringLiteral("verdandi -o blended.png warped0000.tif warped0001.tif"));
}

void TestStitcher::interruptionStopsTheProgram()
{
    const QByteArray pidFile = QFile::encodeName(m_tools->filePath(QStringLiteral("pid")));
    QVERIFY(makeTool(*m_tools, "nona", "echo $$ > '" + pidFile + "'; exec sleep 600\n"));
    QVERIFY(makeTool(*m_tools, "verdandi", "exit 0\n"));
    JobWatch watch;
    watch.interrupted = [&pidFile] { return QFile(QFile::decodeName(pidFile)).size() > 0; };
    const Result<QImage> result = stitch(jobFor(*m_tools), watch);
    QVERIFY(!result);
    QCOMPARE(result.error().code, ExitCode::Interrupted);
    QFile file(QFile::decodeName(pidFile));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(!QFile::exists(
        QStringLiteral("/proc/%1").arg(QString::fromLatin1(file.readAll().trimmed()))));
}

void TestStitcher::badEndsAreExplained_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("why");
    QTest::addColumn<QString>("tryThis");
    QTest::newRow("killed") << QByteArray("#!/bin/sh\nkill -KILL $$\n")
                            << QStringLiteral("it was killed, perhaps because memory ran out")
                            << QStringLiteral("close other programs and try again");
    QTest::newRow("crashed")
        << QByteArray("#!/bin/sh\nkill -SEGV $$\n") << QStringLiteral("it crashed (signal 11)")
        << QStringLiteral("try again; if it crashes again: apt install --reinstall hugin-tools");
    QTest::newRow("stuck") << QByteArray("#!/bin/sh\nexec sleep 600\n")
                           << QStringLiteral("it was stopped since it did not end within 1 s")
                           << QStringLiteral(
                                  "is the machine very busy, or a network drive away? try again");
    QTest::newRow("stuck and deaf")
        << QByteArray("#!/bin/sh\ntrap '' TERM INT\nwhile :; do sleep 0.05; done\n")
        << QStringLiteral("it was stopped since it did not end within 1 s")
        << QStringLiteral("is the machine very busy, or a network drive away? try again");
    QTest::newRow("chatty without end")
        << QByteArray("#!/bin/sh\nexec yes\n")
        << QStringLiteral("it was stopped since it did not end within 1 s")
        << QStringLiteral("is the machine very busy, or a network drive away? try again");
    QTest::newRow("not a program")
        << QByteArray("#!/no/such/interpreter\n")
        << QStringLiteral("cannot be started (execve: No such file or directory)")
        << QStringLiteral("apt install --reinstall hugin-tools");
    QTest::newRow("silent failure")
        << QByteArray("#!/bin/sh\nexit 3\n") << QStringLiteral("it failed without a message")
        << QStringLiteral("is there enough room in %1?");
    QTest::newRow("full disk") << QByteArray("#!/bin/sh\necho No space left >&2\nexit 1\n")
                               << QStringLiteral("it failed and said: No space left")
                               << QStringLiteral("is there enough room in %1?");
}

void TestStitcher::badEndsAreExplained()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, why);
    QFETCH(QString, tryThis);
    JobWatch watch;
    watch.patience = std::chrono::seconds(why.endsWith(QLatin1String("within 1 s")) ? 1 : 600);
    for (const char *bad : { "nona", "verdandi" }) {
        QVERIFY(makeTool(*m_tools, "nona", "exit 0\n"));
        QVERIFY(makeTool(*m_tools, "verdandi", "exit 0\n"));
        QFile tool(m_tools->filePath(QLatin1String(bad)));
        QVERIFY(tool.open(QIODevice::WriteOnly | QIODevice::Truncate));
        QVERIFY(tool.write(script) > 0);
        tool.close();
        const Result<QImage> result = stitch(jobFor(*m_tools), watch);
        QVERIFY(!result);
        QCOMPARE(result.error().code, ExitCode::ToolFailed);
        QCOMPARE(result.error().what, QString::fromLatin1(bad));
        QCOMPARE(result.error().why, why);
        QCOMPARE(result.error().tryThis,
                 tryThis.contains(QLatin1String("%1")) ? tryThis.arg(m_temp->path()) : tryThis);
        QCOMPARE(childrenOfThisProcess(), QStringList());
    }
}

TEST_CLASS(TestStitcher, QGuiApplication)
#include "tst_stitcher.moc"
