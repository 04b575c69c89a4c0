// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/cli/clibench.h"
#include "tests/host/cli/tinydisk.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QtTest>

#include <algorithm>
#include <csignal>

namespace
{

constexpr int kPatienceMs = 120000;

/** Writes its process id to PID and stays. */
const QByteArray kHangs = "#!/bin/sh\necho $$ > \"$PIDFILE\"\nexec sleep 600\n";
/** The same, and cannot be asked to go. */
const QByteArray kIsDeaf = "#!/bin/sh\ntrap '' TERM INT\necho $$ > \"$PIDFILE\"\n"
                           "while :; do sleep 0.05; done\n";

bool isRunning(qint64 process)
{
    return ::kill(static_cast<pid_t>(process), 0) == 0;
}

/** A small demo that says nothing about its progress, however slow the processor. */
QStringList silentDemo()
{
    return { QStringLiteral("demo"),       QStringLiteral("show"),   QStringLiteral("--head"),
             QStringLiteral("gigapan"),    QStringLiteral("--size"), QStringLiteral("small"),
             QStringLiteral("--progress"), QStringLiteral("none") };
}

bool haveTools()
{
    const QStringList tools{ QStringLiteral("checkpto"), QStringLiteral("nona"),
                             QStringLiteral("verdandi"), QStringLiteral("vips") };
    return std::none_of(tools.begin(), tools.end(), [](const QString &tool) {
        return QStandardPaths::findExecutable(tool).isEmpty();
    });
}

} // namespace

/** Helper programs that hang while the demo is made, and disks that fill up. */
class TestCliTools : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void interruptAtEachToolLeavesNothing_data();
    void interruptAtEachToolLeavesNothing();
    void noToolOutlivesTheProgram_data();
    void noToolOutlivesTheProgram();
    void photosThatAreMissedInTheProjectAreNamed();
    void fullDiskLeavesTheOldResult_data();
    void fullDiskLeavesTheOldResult();
    void fullDiskLeavesNoHalfPhoto();
    void fullFileSystemLeavesTheOldResult_data();
    void fullFileSystemLeavesTheOldResult();
    void fullFileSystemLeavesTheOldPanorama();

private:
    void setTool(const QString &name, const QByteArray &script);
    void startDemo(QProcess *process);
    /** The process id that the tool wrote; 0: not yet. */
    [[nodiscard]] qint64 toolProcess() const;
    /** What is wrong with the demo's folder after a run that did not reach its panorama. */
    [[nodiscard]] QString demoFolderProblem() const;

    std::unique_ptr<CliBench> m_bench;
};

void TestCliTools::init()
{
    m_bench = std::make_unique<CliBench>();
    QVERIFY(QDir(m_bench->path({})).mkpath(QStringLiteral("tools")));
    QProcessEnvironment &environment = m_bench->environment();
    environment.insert(QStringLiteral("PATH"),
                       m_bench->path(QStringLiteral("tools")) + QLatin1Char(':')
                           + environment.value(QStringLiteral("PATH")));
    environment.insert(QStringLiteral("PIDFILE"), m_bench->path(QStringLiteral("pid")));
    QVERIFY(QDir(m_bench->path({})).mkpath(QStringLiteral("show")));
    m_bench->file(QStringLiteral("show/demo.jpg"), "the old panorama");
}

void TestCliTools::setTool(const QString &name, const QByteArray &script)
{
    const QString file = m_bench->file(QStringLiteral("tools/") + name, script);
    QVERIFY(QFile::setPermissions(m_bench->path(file),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

void TestCliTools::startDemo(QProcess *process)
{
    process->setWorkingDirectory(m_bench->path({}));
    process->setProcessEnvironment(m_bench->environment());
    process->start(QStringLiteral(PANOHOST_TEST_BINARY), silentDemo());
    QVERIFY(process->waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(toolProcess() > 0, kPatienceMs);
    QVERIFY(isRunning(toolProcess()));
}

qint64 TestCliTools::toolProcess() const
{
    return m_bench->content(QStringLiteral("pid")).trimmed().toLongLong();
}

QString TestCliTools::demoFolderProblem() const
{
    if (m_bench->content(QStringLiteral("show/demo.jpg")) != "the old panorama") {
        return QStringLiteral("The old panorama is gone");
    }
    const QDir show(m_bench->path(QStringLiteral("show")));
    const QStringList files
        = show.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    const QStringList begun{ QStringLiteral("demo.jpg"), QStringLiteral("demo.work"),
                             QStringLiteral("photos") };
    if (files != begun) {
        return files.join(QLatin1Char(' '));
    }
    const QDir photos(show.filePath(QStringLiteral("photos")));
    for (const QString &photo : photos.entryList(QDir::Files | QDir::Hidden)) {
        if (QImage(photos.filePath(photo)).isNull()) {
            return photo;
        }
    }
    return {};
}

void TestCliTools::interruptAtEachToolLeavesNothing_data()
{
    QTest::addColumn<QString>("tool");
    for (const char *tool : { "nona", "verdandi", "vips" }) {
        QTest::newRow(tool) << QString::fromLatin1(tool);
    }
}

void TestCliTools::interruptAtEachToolLeavesNothing()
{
    QFETCH(QString, tool);
    if (!haveTools()) {
        QSKIP("The stitching programs are not installed");
    }
    setTool(tool, kHangs);
    QProcess process;
    startDemo(&process);
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), SIGINT), 0);
    QVERIFY(process.waitForFinished(kPatienceMs));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 130);
    QCOMPARE(QString::fromUtf8(process.readAllStandardError()).section(QLatin1Char('\n'), -2),
             QStringLiteral("panohost: stopped; the same command goes on from here\n"));
    QVERIFY(!isRunning(toolProcess()));
    QCOMPARE(demoFolderProblem(), QString());
    QCOMPARE(m_bench->leftovers(), QStringList());
}

void TestCliTools::noToolOutlivesTheProgram_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QVector<int>>("signalNumbers");
    QTest::newRow("program killed") << kHangs << QVector<int>{ SIGKILL };
    QTest::newRow("Ctrl-C twice, tool deaf") << kIsDeaf << QVector<int>{ SIGINT, SIGINT };
}

void TestCliTools::noToolOutlivesTheProgram()
{
    QFETCH(QByteArray, script);
    QFETCH(QVector<int>, signalNumbers);
    if (!haveTools()) {
        QSKIP("The stitching programs are not installed");
    }
    setTool(QStringLiteral("nona"), script);
    QProcess process;
    startDemo(&process);
    for (const int number : signalNumbers) {
        QCOMPARE(::kill(static_cast<pid_t>(process.processId()), number), 0);
    }
    QVERIFY(process.waitForFinished(kPatienceMs));
    QTRY_VERIFY(!isRunning(toolProcess()));
    QCOMPARE(demoFolderProblem(), QString());
}

void TestCliTools::photosThatAreMissedInTheProjectAreNamed()
{
    if (!haveTools()) {
        QSKIP("The stitching programs are not installed");
    }
    setTool(QStringLiteral("checkpto"), "#!/bin/sh\nexit 1\n");
    const CliBench::Run run = m_bench->run(silentDemo());
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.err.section(QLatin1Char('\n'), -2),
             QStringLiteral("panohost: error: demo.pto: checkpto does not find its 15 photos; were "
                            "photos moved or removed meanwhile? try again\n"));
}

void TestCliTools::fullDiskLeavesTheOldResult_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QStringList>("options");
    const QString import = QStringLiteral("import");
    const QString result = QStringLiteral("result");
    QTest::newRow("project") << import << QStringList{ QStringLiteral("-o"), result };
    QTest::newRow("description") << import << QStringList{ QStringLiteral("--json"), result };
    QTest::newRow("layout") << QStringLiteral("preview")
                            << QStringList{ QStringLiteral("-o"), QStringLiteral("result.png") };
}

void TestCliTools::fullDiskLeavesTheOldResult()
{
    QFETCH(QString, command);
    QFETCH(QStringList, options);
    const QString result = options.last();
    const QStringList photos = m_bench->photos(8);
    const QString record = m_bench->record(QStringLiteral("shoot.xml"), CliBench::row(8));
    m_bench->file(result, "the old result");
    const QByteArray recordBefore = m_bench->content(record);
    const QByteArray photoBefore = m_bench->content(photos.first());
    const QDir folder(m_bench->path({}));
    const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    const QStringList before = folder.entryList(all);

    const QStringList words = QStringList{ command, QStringLiteral("papywizard"), record } + photos
        + options + QStringList{ QStringLiteral("--progress"), QStringLiteral("none") };
    const CliBench::Run run = m_bench->runOnFullDisk(words, 1);
    QVERIFY2(run.exitCode == 1, qPrintable(run.err));
    const QString errors = run.err.section(QLatin1Char('\n'), -2);
    QCOMPARE(errors,
             QStringLiteral("panohost: error: %1: cannot be written (File too large); make room "
                            "there or choose another place\n")
                 .arg(m_bench->path(result)));
    QCOMPARE(m_bench->content(result), QByteArray("the old result"));
    QCOMPARE(m_bench->content(record), recordBefore);
    QCOMPARE(m_bench->content(photos.first()), photoBefore);
    QCOMPARE(folder.entryList(all), before);
    QCOMPARE(m_bench->leftovers(), QStringList());

    // With room the same words succeed.
    QVERIFY(m_bench->run(words).exitCode == 0);
    QVERIFY(m_bench->content(result) != "the old result");
}

void TestCliTools::fullDiskLeavesNoHalfPhoto()
{
    const CliBench::Run run
        = m_bench->runOnFullDisk({ QStringLiteral("demo"), QStringLiteral("show"),
                                   QStringLiteral("--size"), QStringLiteral("small") },
                                 1);
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.err.endsWith(QStringLiteral("demo_0001.jpg: cannot be written (File too large); "
                                             "make room there or choose another place\n")),
             qPrintable(run.err));
    QCOMPARE(QDir(m_bench->path(QStringLiteral("show/photos")))
                 .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList());
    QCOMPARE(m_bench->leftovers(), QStringList());
}

void TestCliTools::fullFileSystemLeavesTheOldResult_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("kilobytes");
    const QString import = QStringLiteral("import");
    const QStringList project{ QStringLiteral("-o"), QStringLiteral("tiny/result") };
    const QStringList description{ QStringLiteral("--json"), QStringLiteral("tiny/result") };
    const QStringList layout{ QStringLiteral("-o"), QStringLiteral("tiny/result.png") };
    QTest::newRow("project") << import << project << 0;
    QTest::newRow("project, room for a part") << import << project << 4;
    QTest::newRow("description") << import << description << 0;
    QTest::newRow("description, room for a part") << import << description << 4;
    QTest::newRow("layout") << QStringLiteral("preview") << layout << 0;
}

void TestCliTools::fullFileSystemLeavesTheOldResult()
{
    QFETCH(QString, command);
    QFETCH(QStringList, options);
    QFETCH(int, kilobytes);
    TinyDisk disk(m_bench.get());
    if (const QString problem = disk.problem(); !problem.isEmpty()) {
        QSKIP(qPrintable(problem));
    }
    constexpr int kPhotos = 40; // more than a page of text about them
    const QStringList photos = m_bench->photos(kPhotos);
    const QString record = m_bench->record(QStringLiteral("shoot.xml"), CliBench::row(kPhotos));
    const QString result = QFileInfo(options.last()).fileName();
    const CliBench::Run run
        = disk.run(result,
                   QStringList{ command, QStringLiteral("papywizard"), record } + photos + options
                       + QStringList{ QStringLiteral("--progress"), QStringLiteral("none") },
                   kilobytes);
    QVERIFY2(run.exitCode == 1, qPrintable(run.err));
    QCOMPARE(run.err.section(QLatin1Char('\n'), -2),
             QStringLiteral("panohost: error: %1: cannot be written (No space left on device); "
                            "make room there or choose another place\n")
                 .arg(m_bench->path(options.last())));
    QCOMPARE(m_bench->content(QStringLiteral("after")), QByteArray("the old result"));
    QCOMPARE(m_bench->content(QStringLiteral("after.txt")),
             QByteArray("filler\nphotos\n") + result.toUtf8() + '\n');
    QCOMPARE(m_bench->leftovers(), QStringList());
}

void TestCliTools::fullFileSystemLeavesTheOldPanorama()
{
    TinyDisk disk(m_bench.get());
    if (const QString problem = disk.problem(); !problem.isEmpty()) {
        QSKIP(qPrintable(problem));
    }
    const CliBench::Run run
        = disk.run(QStringLiteral("demo.jpg"),
                   { QStringLiteral("demo"), QStringLiteral("tiny"), QStringLiteral("--head"),
                     QStringLiteral("gigapan"), QStringLiteral("--size"), QStringLiteral("small") },
                   0);
    QVERIFY2(run.exitCode == 1, qPrintable(run.err));
    QCOMPARE(run.err.section(QLatin1Char('\n'), -2),
             QStringLiteral("panohost: error: %1: cannot be written (No space left on device); "
                            "make room there or choose another place\n")
                 .arg(m_bench->path(QStringLiteral("tiny/photos/demo_0001.jpg"))));
    QCOMPARE(m_bench->content(QStringLiteral("after")), QByteArray("the old result"));
    QCOMPARE(m_bench->content(QStringLiteral("after.txt")).simplified(),
             QByteArray("demo.jpg filler photos"));
    QCOMPARE(m_bench->leftovers(), QStringList());
}

TEST_CLASS(TestCliTools, QCoreApplication)
#include "tst_cli_tools.moc"
