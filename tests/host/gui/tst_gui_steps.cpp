// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/readingbar.h"
#include "host/gui/resultpage.h"
#include "host/import/pagetime.h"
#include "host/model/photofile.h"
#include "host/view/shootview.h"
#include "tests/host/gui/guibench.h"
#include "tests/host/gui/watchedapplication.h"
#include "tests/host/testphotos.h"
#include "tests/support/sanitized.h"
#include "tests/support/testprogram.h"

#include <QDir>
#include <QFile>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

using namespace PanoHost;

/** No step of the host's own code keeps the window from answering. */
class TestSteps : public QObject
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

private Q_SLOTS:
    void init()
    {
        m_bench = std::make_unique<GuiBench>();
        (void)app().takeSteps();
    }
    void cleanup() { m_bench.reset(); }
    void watchdogSeesLongSteps();
    void wayFromRecordToResult();
    void thousandsOfPhotosAreDropped();
    void foldersOfThousandsAreDropped();

private:
    [[nodiscard]] static WatchedApplication &app()
    {
        return *static_cast<WatchedApplication *>(QCoreApplication::instance());
    }
    [[nodiscard]] QWizardPage *page() const { return m_bench->wizard().currentPage(); }
    /** Names of one photo in a folder of their own. */
    [[nodiscard]] QStringList manyPhotos(int count);
    /** Of all since the last time. */
    static void judge();

    std::unique_ptr<GuiBench> m_bench;
};

constexpr std::chrono::milliseconds kLongest(100);

void TestSteps::judge()
{
    const WatchedApplication::Steps steps = app().takeSteps();
    const auto ms = [](const WatchedApplication::Step &step) {
        return QStringLiteral("%1 ms (%2)")
            .arg(std::chrono::duration<double, std::milli>(step.time).count(), 0, 'f', 1)
            .arg(step.what);
    };
    qInfo("longest step: the host's %s, the pages' %s", qPrintable(ms(steps.longestOfHost)),
          qPrintable(ms(steps.longestOfPages)));
    if (kIsSanitized || steps.longestOfHost.time <= kLongest) {
        return;
    }
    const double allowed = WatchedApplication::slownessNow();
    QVERIFY2(steps.longestOfHost.time <= kLongest * allowed, qPrintable(ms(steps.longestOfHost)));
}

QStringList TestSteps::manyPhotos(int count)
{
    const QString photo = m_bench->photo(QStringLiteral("one.jpg"), 0);
    QDir().mkpath(m_bench->path(QStringLiteral("many")));
    QStringList files;
    for (int i = 0; i < count; ++i) {
        files += m_bench->path(QStringLiteral("many/p%1.jpg").arg(i, 5, 10, QLatin1Char('0')));
        QFile::link(photo, files.last());
    }
    return files;
}

void TestSteps::watchdogSeesLongSteps()
{
    const auto work = [](std::chrono::milliseconds time) {
        const auto start = PageTime::now();
        while (PageTime::now() - start < time) { }
    };
    QMetaObject::invokeMethod(
        &m_bench->wizard(), [&work] { work(std::chrono::milliseconds(30)); }, Qt::QueuedConnection);
    QMetaObject::invokeMethod(
        page(),
        [&work] {
            const PageTime ofPage;
            work(std::chrono::milliseconds(50));
        },
        Qt::QueuedConnection);
    QCoreApplication::processEvents();
    const WatchedApplication::Steps steps = app().takeSteps();
    QVERIFY(steps.longestOfHost.time >= std::chrono::milliseconds(30));
    QVERIFY(steps.longestOfHost.what.contains(QLatin1String("ImportWizard")));
    QVERIFY(steps.longestOfPages.time >= std::chrono::milliseconds(50));
}

void TestSteps::wayFromRecordToResult()
{
    m_bench->drop(QStringList(m_bench->record(60)) + m_bench->photos(0, 59));
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    m_bench->press(QWizard::NextButton);
    QVERIFY(qobject_cast<ResultPage *>(page()));
    m_bench->press(QWizard::BackButton);
    m_bench->press(QWizard::BackButton);
    m_bench->press(QWizard::NextButton);
    QTRY_VERIFY(m_bench->isSettled() && m_bench->isNextEnabled());
    judge();
}

void TestSteps::thousandsOfPhotosAreDropped()
{
    m_bench->choose("Gigapan");
    m_bench->drop(manyPhotos(kIsSanitized ? 1000 : 10000));
    const auto *bar = m_bench->wizard().findChild<ReadingBar *>();
    QTRY_VERIFY(bar->total() > 0);
    // The page is alive while its photos are read.
    auto *tabs = page()->findChild<QTabWidget *>(QStringLiteral("tabWidget"));
    QVERIFY(tabs);
    QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(1).center());
    QCOMPARE(tabs->currentIndex(), 1);
    QVERIFY(bar->total() > 0);
    QTRY_VERIFY_WITH_TIMEOUT(m_bench->isSettled() && m_bench->isNextEnabled(), 60000);
    judge();
    m_bench->press(QWizard::NextButton);
    QVERIFY(qobject_cast<ResultPage *>(page()));
    const auto *view = page()->findChild<ShootView *>();
    QTRY_COMPARE(view->scene().frames.size(), kIsSanitized ? 1000 : 10000);
    const char *const kFiles[][2]
        = { { "m_saveProject", "a.pto" }, { "m_saveJson", "a.json" }, { "m_saveTable", "a.csv" } };
    for (const auto &[button, name] : kFiles) {
        const QString file = m_bench->path(QLatin1String(name));
        GuiBench::answerFileDialog(file);
        QTest::mouseClick(page()->findChild<QWidget *>(QLatin1String(button)), Qt::LeftButton);
        QVERIFY2(QFile::exists(file), name);
    }
    judge();
}

void TestSteps::foldersOfThousandsAreDropped()
{
    (void)manyPhotos(500);
    m_bench->drop({ m_bench->path(QStringLiteral("many")) });
    QTRY_VERIFY(m_bench->wizard().isVisible());
    m_bench->choose("Gigapan");
    QTRY_VERIFY_WITH_TIMEOUT(m_bench->isSettled() && m_bench->isNextEnabled(), 60000);
    judge();
}

TEST_CLASS(TestSteps, WatchedApplication)
#include "tst_gui_steps.moc"
