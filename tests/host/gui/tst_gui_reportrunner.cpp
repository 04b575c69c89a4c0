// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/gui/reportrunner.h"
#include "host/model/photofile.h"
#include "tests/support/gate.h"
#include "tests/support/testprogram.h"

#include <QtTest>

using namespace PanoHost;

/** Jobs beside the window: the last one counts. */
class TestReportRunner : public QObject
{
    Q_OBJECT

public:
    /** Before the application. */
    static void initMain() { initializePhotoReading(); }

private Q_SLOTS:
    void answersComeOnTheThreadOfTheRunner();
    void laterJobTakesThePlaceOfTheOneBefore();
    void nothingComesOfAJobThatWasStopped();
    void destructionStopsTheJob();
    void failuresAreBorne();
    void reportsComeBySignal();

private:
    PanoHostApplication &m_app = *PanoHostApplication::instance();
};

void TestReportRunner::answersComeOnTheThreadOfTheRunner()
{
    ReportRunner runner(m_app);
    std::thread::id worker;
    std::thread::id answered;
    runner.start([&](const JobWatch &) -> std::function<void()> {
        worker = std::this_thread::get_id();
        return [&] { answered = std::this_thread::get_id(); };
    });
    QTRY_COMPARE(answered, std::this_thread::get_id());
    QVERIFY(worker != answered);
}

void TestReportRunner::laterJobTakesThePlaceOfTheOneBefore()
{
    ReportRunner runner(m_app);
    Gate begun;
    QStringList answers;
    const auto answer = [&answers](const char *text) {
        return [&answers, text] { answers += QLatin1String(text); };
    };
    runner.start([&](const JobWatch &watch) -> std::function<void()> {
        begun.open();
        while (!watch.stopWanted()) {
            std::this_thread::yield();
        }
        return answer("first"); // too late
    });
    begun.pass();
    runner.start([&](const JobWatch &) -> std::function<void()> { return answer("second"); });
    runner.start([&](const JobWatch &) -> std::function<void()> { return answer("third"); });
    QTRY_VERIFY(!answers.isEmpty());
    QCOMPARE(answers, QStringList(QStringLiteral("third")));
}

void TestReportRunner::nothingComesOfAJobThatWasStopped()
{
    ReportRunner runner(m_app);
    Gate done;
    bool isAnswered = false;
    bool isOther = false;
    runner.start([&](const JobWatch &) -> std::function<void()> {
        done.open();
        return [&] { isAnswered = true; };
    });
    done.pass();
    runner.stop();
    runner.start(
        [&](const JobWatch &) -> std::function<void()> { return [&] { isOther = true; }; });
    QTRY_VERIFY(isOther);
    QVERIFY(!isAnswered);
}

void TestReportRunner::destructionStopsTheJob()
{
    Gate begun;
    bool isStopped = false;
    {
        ReportRunner runner(m_app);
        runner.start([&](const JobWatch &watch) -> std::function<void()> {
            begun.open();
            while (!watch.stopWanted()) {
                std::this_thread::yield();
            }
            isStopped = true;
            watch.check(); // throws
            return [] { QFAIL("too late"); };
        });
        begun.pass();
    }
    QVERIFY(isStopped);
    QCoreApplication::processEvents();
}

void TestReportRunner::failuresAreBorne()
{
    ReportRunner runner(m_app);
    Gate thrown;
    runner.start([&](const JobWatch &) -> std::function<void()> {
        thrown.open();
        throw std::bad_alloc();
    });
    thrown.pass();
    bool isAnswered = false;
    runner.start(
        [&](const JobWatch &) -> std::function<void()> { return [&] { isAnswered = true; }; });
    QTRY_VERIFY(isAnswered);
}

void TestReportRunner::reportsComeBySignal()
{
    ReportRunner runner(m_app);
    std::shared_ptr<const ShootReport> told;
    connect(&runner, &ReportRunner::done, this, [&](const auto &report) { told = report; });
    ImportRequest request;
    request.head = &headNamed(QStringLiteral("papywizard"));
    request.record = QStringLiteral("/nowhere/record.xml");
    request.photos = QStringList{ QStringLiteral("/nowhere/a.jpg") };
    runner.look(request);
    QTRY_VERIFY(told != nullptr);
    QVERIFY(told->refusal.has_value());
    QCOMPARE(told->findings.size(), 1);
    QCOMPARE(told->findings.first().files, request.photos);
}

TEST_CLASS(TestReportRunner, PanoHostApplication)
#include "tst_gui_reportrunner.moc"
