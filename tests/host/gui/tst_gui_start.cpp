// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/dialogcatcher.h"
#include "host/model/photofile.h"
#include "tests/host/gui/guibench.h"
#include "tests/support/testprogram.h"

#include <QLineEdit>
#include <QProcess>
#include <QtTest>

using namespace PanoHost;

/** The window's first moments on a real screen, with keys that come from outside. */
class TestStart : public QObject
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

private Q_SLOTS:
    void init() { m_bench = std::make_unique<GuiBench>(); }
    void cleanup() { m_bench.reset(); }
    void keysReachTheWindowThatStartsWithFiles_data();
    void keysReachTheWindowThatStartsWithFiles();
    void goneDisplayIsSaid();

private:
    /** As if typed on the keyboard of the screen: whoever has the focus gets it. */
    static void typeKey(const QString &key);

    std::unique_ptr<GuiBench> m_bench;
};

void TestStart::typeKey(const QString &key)
{
    QProcess typing;
    typing.start(QStringLiteral(XDOTOOL), { QStringLiteral("key"), key });
    QVERIFY(typing.waitForFinished());
    QCOMPARE(typing.exitCode(), 0);
}

void TestStart::keysReachTheWindowThatStartsWithFiles_data()
{
    QTest::addColumn<int>("start");
    for (int start = 0; start < 4; ++start) {
        QTest::addRow("start %d", start + 1) << start;
    }
}

void TestStart::keysReachTheWindowThatStartsWithFiles()
{
    const QStringList files = QStringList(m_bench->record(3)) + m_bench->photos(0, 2);
    m_bench->reopen([&files](ImportWizard &wizard) { wizard.fillInWhenActive(files); });
    QTRY_VERIFY(m_bench->wizard().currentPage()->inherits("UIWPMerlin"));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    QVERIFY(m_bench->wizard().isActiveWindow());
    DialogCatcher boxes; // the question of Esc
    typeKey(QStringLiteral("Escape"));
    QStringList questions;
    QTRY_COMPARE((questions += boxes.takeMessages()).size(), 1);
    typeKey(QStringLiteral("alt+b"));
    QTRY_VERIFY(!m_bench->wizard().currentPage()->inherits("UIWPMerlin"));
}

void TestStart::goneDisplayIsSaid()
{
    QProcess screen;
    screen.start(QStringLiteral("Xvfb"), { QStringLiteral("-displayfd"), QStringLiteral("1") });
    QVERIFY(screen.waitForReadyRead());
    QTRY_VERIFY(screen.canReadLine());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"),
                       QLatin1Char(':') + QString::fromLatin1(screen.readLine().trimmed()));
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(
        QStringLiteral(PANOHOST_PROGRAM),
        { QStringLiteral("--plugin"), QStringLiteral(PANOHOST_TEST_LIBRARY), m_bench->record(3) });
    QProcess looking;
    looking.setProcessEnvironment(environment);
    looking.start(QStringLiteral(XDOTOOL),
                  { QStringLiteral("search"), QStringLiteral("--sync"), QStringLiteral("--name"),
                    QStringLiteral("Import a panorama") });
    QVERIFY(looking.waitForFinished());
    screen.terminate();
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 1);
    const QByteArray said = program.readAllStandardError();
    QVERIFY2(said.contains("error: the display has gone away"), said.constData());
    QVERIFY(screen.waitForFinished());
}

TEST_CLASS(TestStart, PanoHostApplication)
#include "tst_gui_start.moc"
