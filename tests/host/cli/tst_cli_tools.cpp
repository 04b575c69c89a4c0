// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/cli/clibench.h"
#include "tests/host/testphotos.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QtTest>

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

} // namespace

/** Helper programs and disks that fail while panohost works. */
class TestCliTools : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void interruptAtEachToolLeavesNothing_data();
    void interruptAtEachToolLeavesNothing();
    void noToolOutlivesTheProgram_data();
    void noToolOutlivesTheProgram();
    void failingToolLeavesTheOldPanorama_data();
    void failingToolLeavesTheOldPanorama();
    void fullDiskLeavesTheOldResult_data();
    void fullDiskLeavesTheOldResult();
    void fullDiskLeavesNoHalfPhoto();

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
    setTool(QStringLiteral("checkpto"), "#!/bin/sh\nprintf 'contains\\n15 images\\n'\n");
    setTool(QStringLiteral("nona"), "#!/bin/sh\nexit 0\n");
    setTool(QStringLiteral("verdandi"), "#!/bin/sh\nexit 0\n");
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
    process->start(QStringLiteral(PANOHOST_TEST_BINARY),
                   { QStringLiteral("demo"), QStringLiteral("show"), QStringLiteral("--head"),
                     QStringLiteral("gigapan"), QStringLiteral("--size"),
                     QStringLiteral("small") });
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
    const QStringList finished{ QStringLiteral("demo.jpg"), QStringLiteral("demo.json"),
                                QStringLiteral("demo.pto"), QStringLiteral("layout.png"),
                                QStringLiteral("photos") };
    if (files != finished) {
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
    for (const char *tool : { "checkpto", "nona", "verdandi" }) {
        QTest::newRow(tool) << QString::fromLatin1(tool);
    }
}

void TestCliTools::interruptAtEachToolLeavesNothing()
{
    QFETCH(QString, tool);
    setTool(tool, kHangs);
    QProcess process;
    startDemo(&process);
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), SIGINT), 0);
    QVERIFY(process.waitForFinished(kPatienceMs));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 130);
    QCOMPARE(QString::fromUtf8(process.readAllStandardError()),
             QStringLiteral("panohost: stopped; your files are as they were, and no unfinished "
                            "result is left\n"));
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

void TestCliTools::failingToolLeavesTheOldPanorama_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("message");
    QTest::newRow("checkpto fails")
        << QStringLiteral("checkpto") << QByteArray("#!/bin/sh\nexit 1\n")
        << QStringLiteral("demo.pto: checkpto does not find its 15 photos; were photos moved or "
                          "removed meanwhile? try again");
    QTest::newRow("nona killed")
        << QStringLiteral("nona") << QByteArray("#!/bin/sh\nkill -KILL $$\n")
        << QStringLiteral("nona: it was killed, perhaps because memory ran out; close other "
                          "programs and try again");
    QTest::newRow("verdandi leaves a broken picture")
        << QStringLiteral("verdandi") << QByteArray("#!/bin/sh\nprintf PNG > \"$2\"\n")
        << QStringLiteral("verdandi: it left no picture that can be read; is there enough room "
                          "in %1?");
}

void TestCliTools::failingToolLeavesTheOldPanorama()
{
    QFETCH(QString, tool);
    QFETCH(QByteArray, script);
    QFETCH(QString, message);
    setTool(tool, script);
    const CliBench::Run run = m_bench->run({ QStringLiteral("demo"), QStringLiteral("show"),
                                             QStringLiteral("--head"), QStringLiteral("gigapan"),
                                             QStringLiteral("--size"), QStringLiteral("small") });
    QCOMPARE(run.exitCode, 1);
    if (message.contains(QLatin1String("%1"))) {
        message = message.arg(m_bench->environment().value(QStringLiteral("TMPDIR")));
    }
    QCOMPARE(run.err, QStringLiteral("panohost: error: %1\n").arg(message));
    QCOMPARE(demoFolderProblem(), QString());
    QCOMPARE(m_bench->leftovers(), QStringList());
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

QTEST_GUILESS_MAIN(TestCliTools)
#include "tst_cli_tools.moc"
