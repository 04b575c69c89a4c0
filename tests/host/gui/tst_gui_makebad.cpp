// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/makepage.h"
#include "tests/host/gui/guibench.h"
#include "tests/host/gui/tinyshoot.h"
#include "tests/host/testphotos.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QtTest>

using namespace PanoHost;

/** The window makes a panorama while tools and disk are bad, and again once they are well. */
class TestGuiMakeBad : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void failureIsSaidAndMadeGood_data();
    void failureIsSaidAndMadeGood();
    void hangingToolIsStopped();

private:
    template <typename Widget> [[nodiscard]] Widget *find(const char *name) const
    {
        return page()->findChild<Widget *>(QLatin1String(name));
    }
    [[nodiscard]] MakePage *page() const { return m_bench->wizard().findChild<MakePage *>(); }
    [[nodiscard]] QString state() const { return find<QLabel>("m_makeState")->text(); }
    void pressMake() const { QTest::mouseClick(find<QPushButton>("m_make"), Qt::LeftButton); }
    void setTool(const QString &name, const QByteArray &script) const;
    void makeWithGoodTools() const;

    std::unique_ptr<GuiBench> m_bench;
    QByteArray m_usualPath;
};

/** Opens the last page with a shoot of six photos. */
void TestGuiMakeBad::init()
{
    m_usualPath = qgetenv("PATH");
    m_bench = std::make_unique<GuiBench>();
    const QString folder = m_bench->path(QStringLiteral("shoot"));
    photographTinyShoot(folder);
    m_bench->drop({ folder });
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    m_bench->press(QWizard::NextButton);
    QTRY_COMPARE(m_bench->result().size(), 6);
    m_bench->press(QWizard::NextButton);
    QVERIFY(page()->isVisible());
}

void TestGuiMakeBad::cleanup()
{
    qputenv("PATH", m_usualPath);
    m_bench.reset();
}

/** Has the tool \p name do \p script, in which "$tool" is the true one. */
void TestGuiMakeBad::setTool(const QString &name, const QByteArray &script) const
{
    const QString folder = m_bench->path(QStringLiteral("tools"));
    QVERIFY(QDir().mkpath(folder));
    const QString path = folder + QLatin1Char('/') + name;
    const QByteArray tool = QFile::encodeName(QStandardPaths::findExecutable(name));
    TestPhotos::writeFile(path, "#!/bin/sh\ntool=" + tool + '\n' + script + '\n');
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    qputenv("PATH", QFile::encodeName(folder) + ':' + m_usualPath);
}

void TestGuiMakeBad::makeWithGoodTools() const
{
    qputenv("PATH", m_usualPath);
    pressMake();
    QTRY_VERIFY_WITH_TIMEOUT(!page()->isRunning(), 600'000);
    QVERIFY2(page()->hasMade(), qPrintable(state()));
    QVERIFY(QFileInfo(page()->path()).size() > 10'000);
}

void TestGuiMakeBad::failureIsSaidAndMadeGood_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("says");
    const auto row = [](const char *name, const char *tool, const char *script, const char *says) {
        QTest::newRow(name) << QString::fromLatin1(tool) << QByteArray(script)
                            << QString::fromLatin1(says);
    };
    // As where the disk is full: nothing that grows beyond some kilobytes can be written.
    row("the disk fills up while photos are bent", "nona",
        "trap '' XFSZ; ulimit -f 16; exec $tool \"$@\"", "^nona, of .*; is there enough room in ");
    row("the disk fills up while photos are blended", "verdandi",
        "trap '' XFSZ; ulimit -f 16; exec $tool \"$@\"",
        "^verdandi: it .*; is there enough room in ");
    row("a tool crashes", "verdandi", "kill -SEGV $$",
        "^verdandi: it crashed \\(signal 11\\); is there enough room in ");
    row("a tool ends without a word", "nona", "exit 3",
        "^nona, of .*: it failed without a message; ");
}

void TestGuiMakeBad::failureIsSaidAndMadeGood()
{
    QFETCH(QString, tool);
    QFETCH(QByteArray, script);
    QFETCH(QString, says);
    setTool(tool, script);
    pressMake();
    QTRY_VERIFY_WITH_TIMEOUT(!page()->isRunning(), 600'000);
    QVERIFY(!page()->hasMade());
    QVERIFY2(QRegularExpression(says).match(state()).hasMatch(), qPrintable(state()));
    static const QRegularExpression kOfTheCommand(QStringLiteral("--(size|jobs)| -o|command"));
    QVERIFY2(!state().contains(kOfTheCommand), qPrintable(state()));
    QVERIFY(!QFile::exists(page()->path()));
    QVERIFY(find<QLineEdit>("m_makePath")->isEnabled());
    makeWithGoodTools();
}

/** A tool that never ends holds nobody up. */
void TestGuiMakeBad::hangingToolIsStopped()
{
    setTool(QStringLiteral("nona"), "echo $$ > \"$(dirname \"$0\")/started\"; exec sleep 10000");
    pressMake();
    const QString started = m_bench->path(QStringLiteral("tools/started"));
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(started), 300'000);
    QVERIFY(find<QPushButton>("m_make")->isEnabled());
    pressMake(); // it says Stop
    QTRY_VERIFY_WITH_TIMEOUT(!page()->isRunning(), 60'000);
    QCOMPARE(
        state(),
        QStringLiteral("Stopped. What was finished is kept: Make panorama goes on from there."));
    makeWithGoodTools();
}

TEST_CLASS(TestGuiMakeBad, PanoHostApplication)
#include "tst_gui_makebad.moc"
