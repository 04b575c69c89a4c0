// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/cli/makebench.h"
#include "tests/support/longruns.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QtTest>

#include <csignal>
#include <random>

/** The command make, stopped at any time. */
class TestCliMakeCut : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void interruptedRunsGoOnToTheSamePicture();

private:
    MakeBench m_bench;
};

/** At moments that are spread by chance over a whole run, by Ctrl-C or like a power cut. */
void TestCliMakeCut::interruptedRunsGoOnToTheSamePicture()
{
    const QByteArray whole = m_bench.wholePicture();
    QVERIFY(!whole.isEmpty());
    const QByteArray wholePage = m_bench.content(QStringLiteral("whole/pano.html"));
    m_bench.makeFolder(QStringLiteral("timed"));
    QElapsedTimer timer;
    timer.start();
    QVERIFY(m_bench.make(QStringLiteral("timed/pano.jpg")).exitCode == 0);
    std::uniform_int_distribution<int> moments(0, static_cast<int>(timer.elapsed()));
    std::mt19937 chance(15);
    int stopped = 0;
    const int count = rounds(5, 50);
    for (int i = 0; i < count; ++i) {
        const QString folder = QStringLiteral("cut%1").arg(i);
        m_bench.makeFolder(folder);
        const QString output = folder + QStringLiteral("/pano.jpg");
        const QString page = folder + QStringLiteral("/pano.html");
        QProcess process;
        process.setWorkingDirectory(m_bench.path({}));
        process.setProcessEnvironment(m_bench.environment());
        process.start(QStringLiteral(PANOHOST_TEST_BINARY), m_bench.makeWords(output));
        QVERIFY(process.waitForStarted());
        const bool isPowerCut = i % 2 == 1;
        const int moment = moments(chance);
        if (!process.waitForFinished(moment)) {
            ::kill(static_cast<pid_t>(process.processId()), isPowerCut ? SIGKILL : SIGINT);
            QVERIFY(process.waitForFinished());
            if (!isPowerCut && process.exitCode() != 0) {
                // Before it listens, Ctrl-C just ends it.
                const bool listened = process.exitStatus() == QProcess::NormalExit;
                QVERIFY(!listened || process.exitCode() == 130);
                const QString said = QString::fromUtf8(process.readAllStandardError());
                QVERIFY2(!listened
                             || said.endsWith(QStringLiteral(
                                 "panohost: stopped; the same command goes on from here\n")),
                         qPrintable(said));
            }
            ++stopped;
        }
        for (const auto &[path, content] :
             { std::pair(output, whole), std::pair(page, wholePage) }) {
            const QByteArray left = m_bench.content(path);
            QVERIFY2(left.isEmpty() ? !QFile::exists(m_bench.path(path)) : left == content,
                     qPrintable(QStringLiteral("%1 after %2 ms").arg(path).arg(moment)));
        }
        const auto resumed = m_bench.make(output);
        QVERIFY2(resumed.exitCode == 0, qPrintable(resumed.err));
        QVERIFY2(m_bench.content(output) == whole,
                 qPrintable(QStringLiteral("cut after %1 ms").arg(moment)));
        QVERIFY(QDir(m_bench.path(folder)).removeRecursively());
    }
    QVERIFY(stopped > 0);
}

TEST_CLASS(TestCliMakeCut, QCoreApplication)
#include "tst_cli_makecut.moc"
