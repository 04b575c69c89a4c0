// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/parallel.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <vector>

using namespace PanoHost;

class TestParallel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyRowIsDoneOnce_data();
    void everyRowIsDoneOnce();
    void jobsRunAtTheSameTime();
    void watchIsCalledOnTheCallersThread();
    void whatWorkThrowsArrives_data();
    void whatWorkThrowsArrives();
    void afterAThrowingWatchNoRowIsBegun();
};

void TestParallel::everyRowIsDoneOnce_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("jobs");
    QTest::newRow("none") << 0 << 2;
    QTest::newRow("fewer than jobs") << 1 << 3;
    QTest::newRow("one job") << 100 << 1;
    QTest::newRow("three jobs") << 100 << 3;
    QTest::newRow("all processors") << 100 << 0;
}

void TestParallel::everyRowIsDoneOnce()
{
    QFETCH(int, rows);
    QFETCH(int, jobs);
    for (const bool watched : { false, true }) {
        std::vector<int> done(static_cast<size_t>(rows), 0);
        forEachRow(
            rows, [&](int row) { ++done[static_cast<size_t>(row)]; }, jobs,
            watched ? [](int) {} : std::function<void(int)>());
        QCOMPARE(done, std::vector<int>(static_cast<size_t>(rows), 1));
    }
}

void TestParallel::jobsRunAtTheSameTime()
{
    constexpr int kJobs = 3;
    std::mutex mutex;
    std::condition_variable changed;
    int here = 0;
    // Each waits for the others: with fewer threads this would never end.
    forEachRow(
        kJobs,
        [&](int) {
            std::unique_lock<std::mutex> lock(mutex);
            ++here;
            changed.notify_all();
            changed.wait(lock, [&] { return here == kJobs; });
        },
        kJobs);
    QCOMPARE(here, kJobs);
}

void TestParallel::watchIsCalledOnTheCallersThread()
{
    const std::thread::id caller = std::this_thread::get_id();
    std::atomic<bool> seen{ false };
    std::atomic<bool> strange{ false };
    int last = 0;
    // No row ends before the watch was called.
    forEachRow(
        2,
        [&](int) {
            strange = strange || std::this_thread::get_id() == caller;
            while (!seen) {
                std::this_thread::yield();
            }
        },
        1,
        [&](int done) {
            seen = true;
            strange = strange || std::this_thread::get_id() != caller || done < last || done > 2;
            last = done;
        });
    QVERIFY(!strange);
}

void TestParallel::whatWorkThrowsArrives_data()
{
    QTest::addColumn<int>("jobs");
    QTest::newRow("one job") << 1;
    QTest::newRow("two jobs") << 2;
}

void TestParallel::whatWorkThrowsArrives()
{
    QFETCH(int, jobs);
    const auto work = [](int row) {
        if (row == 3) {
            throw std::runtime_error("row 3");
        }
    };
    QVERIFY_EXCEPTION_THROWN(forEachRow(1000, work, jobs), std::runtime_error);
    QVERIFY_EXCEPTION_THROWN(forEachRow(1000, work, jobs, [](int) {}), std::runtime_error);
}

void TestParallel::afterAThrowingWatchNoRowIsBegun()
{
    std::atomic<bool> thrown{ false };
    std::atomic<int> begun{ 0 };
    const auto work = [&](int) {
        ++begun;
        while (!thrown) {
            std::this_thread::yield();
        }
    };
    const auto watch = [&](int) {
        if (begun == 2) {
            thrown = true;
            throw std::runtime_error("enough");
        }
    };
    QVERIFY_EXCEPTION_THROWN(forEachRow(1'000'000, work, 2, watch), std::runtime_error);
    QVERIFY(begun < 1'000'000);
}

TEST_CLASS(TestParallel, TestProgram::NoApplication)
#include "tst_parallel.moc"
