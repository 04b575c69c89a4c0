// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/latestjob.h"
#include "tests/support/gate.h"
#include "tests/support/testprogram.h"

#include <QtTest>

using namespace PanoHost;

/** Jobs beside the window: the last one counts. */
class TestLatestJob : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void answersComeOnTheThreadOfTheirOwner();
    void laterJobTakesThePlaceOfTheOneBefore();
    void nothingComesOfAJobThatWasStopped();
    void destructionStopsTheJob();
    void failuresAreBorne();
};

void TestLatestJob::answersComeOnTheThreadOfTheirOwner()
{
    LatestJob jobs;
    std::thread::id worker;
    std::thread::id answered;
    jobs.start([&](const JobWatch &) -> std::function<void()> {
        worker = std::this_thread::get_id();
        return [&] { answered = std::this_thread::get_id(); };
    });
    QTRY_COMPARE(answered, std::this_thread::get_id());
    QVERIFY(worker != answered);
}

void TestLatestJob::laterJobTakesThePlaceOfTheOneBefore()
{
    LatestJob jobs;
    Gate begun;
    QStringList answers;
    const auto answer = [&answers](const char *text) {
        return [&answers, text] { answers += QLatin1String(text); };
    };
    jobs.start([&](const JobWatch &watch) -> std::function<void()> {
        begun.open();
        while (!watch.stopWanted()) {
            std::this_thread::yield();
        }
        return answer("first"); // too late
    });
    begun.pass();
    jobs.start([&](const JobWatch &) -> std::function<void()> { return answer("second"); });
    jobs.start([&](const JobWatch &) -> std::function<void()> { return answer("third"); });
    QTRY_VERIFY(!answers.isEmpty());
    QCOMPARE(answers, QStringList(QStringLiteral("third")));
}

void TestLatestJob::nothingComesOfAJobThatWasStopped()
{
    LatestJob jobs;
    Gate done;
    bool isAnswered = false;
    bool isOther = false;
    jobs.start([&](const JobWatch &) -> std::function<void()> {
        done.open();
        return [&] { isAnswered = true; };
    });
    done.pass();
    jobs.stop();
    jobs.start([&](const JobWatch &) -> std::function<void()> { return [&] { isOther = true; }; });
    QTRY_VERIFY(isOther);
    QVERIFY(!isAnswered);
}

void TestLatestJob::destructionStopsTheJob()
{
    Gate begun;
    bool isStopped = false;
    {
        LatestJob jobs;
        jobs.start([&](const JobWatch &watch) -> std::function<void()> {
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

void TestLatestJob::failuresAreBorne()
{
    LatestJob jobs;
    Gate thrown;
    jobs.start([&](const JobWatch &) -> std::function<void()> {
        thrown.open();
        throw std::bad_alloc();
    });
    thrown.pass();
    bool isAnswered = false;
    jobs.start(
        [&](const JobWatch &) -> std::function<void()> { return [&] { isAnswered = true; }; });
    QTRY_VERIFY(isAnswered);
}

TEST_CLASS(TestLatestJob, QCoreApplication)
#include "tst_latestjob.moc"
