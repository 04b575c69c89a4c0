// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "hostlink/readingthread.h"
#include "tests/hostile/failingmemory.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/longruns.h"

#include <QSignalSpy>
#include <QtTest>

#include <sys/resource.h>

#include <atomic>
#include <memory>
#include <new>
#include <optional>
#include <utility>
#include <vector>

namespace
{

constexpr int kMostAllocations = 5'000;

/** In the long form enough for that many, one for nearly every photo. */
int photoCount()
{
    return rounds(60, 4'700);
}

QStringList photoNames(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names.append(QStringLiteral("/photos/%1.jpg").arg(i));
    }
    return names;
}

} // namespace

/** A host whose image objects are there before they are asked for. */
class PreparedHost : public FakeCoreApplication
{
public:
    using FakeCoreApplication::FakeCoreApplication;

    void prepare(int count, ReadingThread *thread)
    {
        m_thread = thread;
        m_given = 0;
        while (m_images.size() < static_cast<std::size_t>(count)) {
            m_images.push_back(std::make_unique<FakeImage>(QString(), FakePhoto()));
        }
    }

    /** The first \p count images given out since the last prepare. */
    [[nodiscard]] QList<XIImageDef *> given(int count) const
    {
        QList<XIImageDef *> images;
        for (int i = 0; i < count; ++i) {
            images.append(m_images[static_cast<std::size_t>(i)].get());
        }
        return images;
    }

    XIImageDef *CreateImageDef(const QString &) override
    {
        // As a page does: the list that it has taken is not the worker's any more, so that each
        // further image needs memory.
        m_seen = m_thread->XIImageDefs();
        return m_images[m_given++].get();
    }

private:
    ReadingThread *m_thread = nullptr;
    std::vector<std::unique_ptr<FakeImage>> m_images;
    std::size_t m_given = 0;
    QList<XIImageDef *> m_seen;
};

namespace
{

PreparedHost &preparedHost()
{
    return *static_cast<PreparedHost *>(QCoreApplication::instance());
}

/** Makes allocations of a thread's run fail, from its first signal to its last. A lasting shortage
 * ends when the thread tries to tell of it once more. */
class ShortRun
{
public:
    ShortRun(ReadingThread *thread, int nth, Shortage shortage)
    {
        QObject::connect(
            thread, qOverload<>(&ReadingThread::Start), thread,
            [this, nth, shortage] { m_memory.emplace(Failing::Everything, nth, shortage); },
            Qt::DirectConnection);
        QObject::connect(
            thread, &ReadingThread::Loaded, thread,
            [this] {
                if (m_memory && m_memory->hasFailed() && std::exchange(m_hasFailed, true)) {
                    m_memory.reset();
                }
            },
            Qt::DirectConnection);
        QObject::connect(
            thread, &ReadingThread::Done, thread,
            [this] {
                m_hasFailed = m_hasFailed || m_memory->hasFailed();
                m_memory.reset();
            },
            Qt::DirectConnection);
    }

    [[nodiscard]] bool hasFailed() const { return m_hasFailed; }

private:
    std::optional<FailingMemory> m_memory; // made and destroyed on the worker thread
    bool m_hasFailed = false;
};

/** Lets Loaded find no memory on the worker thread, as often as it is told to. */
class ShortSignals
{
public:
    explicit ShortSignals(ReadingThread *thread)
    {
        QObject::connect(
            thread, &ReadingThread::Loaded, thread,
            [this, thread] {
                if (QThread::currentThread() == thread && ++attempts <= failures) {
                    throw std::bad_alloc(); // what the next receiver's event would do
                }
            },
            Qt::DirectConnection);
    }

    std::atomic<int> attempts{ 0 };
    std::atomic<int> failures{ 0 };
};

} // namespace

/** Memory runs out while photos are read. */
class TestLowMemoryReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyAllocationOfARunMayFail_data();
    void everyAllocationOfARunMayFail();
    void aSignalWaitsForMemory();
    void clearAndDestructionEndTheWaitForMemory();
    void startEndsTheWaitForMemory();
    void everyAllocationOfStartMayFail();
    void aThreadThatCannotBeMadeIsAShortage();
    void clearNeedsNoMemory();
};

void TestLowMemoryReading::everyAllocationOfARunMayFail_data()
{
    QTest::addColumn<bool>("lasts");
    QTest::newRow("one allocation") << false;
    QTest::newRow("and all after it") << true;
}

void TestLowMemoryReading::everyAllocationOfARunMayFail()
{
    QFETCH(const bool, lasts);
    const Shortage shortage = lasts ? Shortage::Lasting : Shortage::Momentary;
    const QStringList names = photoNames(photoCount());
    int shortages = 0;
    int nth = 1;
    for (; nth <= kMostAllocations; ++nth) {
        ReadingThread thread(nullptr);
        preparedHost().prepare(names.size(), &thread);
        const ShortRun shortRun(&thread, nth, shortage);
        QObject page;
        int started = 0;
        int seen = -1;
        connect(&thread, qOverload<>(&ReadingThread::Start), &page, [&] { ++started; });
        connect(&thread, &ReadingThread::Loaded, &page,
                [&] { seen = thread.XIImageDefs().size(); });
        thread.Start(names);
        QVERIFY(thread.wait());
        QCoreApplication::processEvents();

        const QList<XIImageDef *> images = thread.XIImageDefs();
        QCOMPARE(images, preparedHost().given(images.size()));
        QCOMPARE(seen, images.size()); // the page has heard of the last one
        const bool isShort = thread.takeShortage();
        QCOMPARE(isShort, images.size() < names.size());
        QVERIFY(!thread.takeShortage());
        QVERIFY(started == 1 || (started == 0 && nth <= 3));
        shortages += isShort ? 1 : 0;
        if (!shortRun.hasFailed()) {
            QVERIFY(!isShort);
            break;
        }
    }
    // Nearly every photo needs memory once, some signals and the list's growth more.
    QVERIFY2(shortages > qMin(names.size(), kMostAllocations) * 3 / 4,
             qPrintable(QString::number(shortages)));
    QVERIFY2(nth > qMin(names.size(), kMostAllocations - 1), qPrintable(QString::number(nth)));
}

void TestLowMemoryReading::aSignalWaitsForMemory()
{
    const QStringList names = photoNames(3);
    ReadingThread thread(nullptr);
    preparedHost().prepare(names.size(), &thread);
    ShortSignals shortSignals(&thread);
    shortSignals.failures = 3;
    const QObject page;
    int loaded = 0;
    connect(&thread, &ReadingThread::Loaded, &page, [&] { ++loaded; });
    thread.Start(names);
    QVERIFY(thread.wait());
    QCoreApplication::processEvents();
    QCOMPARE(shortSignals.attempts, 4);
    QCOMPARE(loaded, 1);
    QCOMPARE(thread.XIImageDefs(), preparedHost().given(3));
    QVERIFY(!thread.takeShortage());
}

void TestLowMemoryReading::clearAndDestructionEndTheWaitForMemory()
{
    const QStringList names = photoNames(3);
    auto thread = std::make_unique<ReadingThread>(nullptr);
    ShortSignals shortSignals(thread.get());
    const QObject page;
    int loaded = 0;
    connect(thread.get(), &ReadingThread::Loaded, &page, [&] { ++loaded; });
    for (const bool isDestroyed : { false, true }) {
        preparedHost().prepare(names.size(), thread.get());
        shortSignals.failures = shortSignals.attempts + 1'000;
        const int before = shortSignals.attempts;
        thread->Start(names);
        QTRY_VERIFY(shortSignals.attempts >= before + 3);
        if (isDestroyed) {
            thread.reset();
            break;
        }
        thread->Clear();
        QVERIFY(!thread->isRunning());
        QVERIFY(thread->XIImageDefs().isEmpty());
        QCOMPARE(loaded, 1);
    }
    QCoreApplication::processEvents();
    QCOMPARE(loaded, 1);
}

void TestLowMemoryReading::startEndsTheWaitForMemory()
{
    ReadingThread thread(nullptr);
    preparedHost().prepare(5, &thread);
    ShortSignals shortSignals(&thread);
    shortSignals.failures = 1'000;
    const QObject page;
    int seen = -1;
    connect(&thread, &ReadingThread::Loaded, &page, [&] { seen = thread.XIImageDefs().size(); });
    thread.Start(photoNames(3));
    QTRY_VERIFY(shortSignals.attempts >= 3);
    shortSignals.failures = 0;
    thread.Start(photoNames(2));
    QVERIFY(thread.wait());
    QCoreApplication::processEvents();
    QCOMPARE(thread.XIImageDefs(), preparedHost().given(5).mid(3));
    QCOMPARE(seen, 2);
}

void TestLowMemoryReading::everyAllocationOfStartMayFail()
{
    const QStringList names = photoNames(photoCount());
    int shortages = 0;
    ReadingThread thread(nullptr);
    const QSignalSpy loaded(&thread, &ReadingThread::Loaded);
    for (int nth = 1; nth <= kMostAllocations; ++nth) {
        preparedHost().prepare(names.size(), &thread);
        thread.Start(names);
        QVERIFY(thread.wait());
        QCOMPARE(thread.XIImageDefs().size(), names.size());
        preparedHost().prepare(names.size(), &thread);
        const int before = loaded.size();
        bool hasFailed = false;
        {
            const FailingMemory memory(Failing::Everything, nth);
            thread.Start(names);
            hasFailed = memory.hasFailed();
        }
        QVERIFY(thread.wait());
        if (!hasFailed) {
            break;
        }
        const int images = thread.XIImageDefs().size();
        QVERIFY2(images == 0 || images == names.size(), qPrintable(QString::number(images)));
        const bool isShort = thread.takeShortage();
        QCOMPARE(isShort, images == 0);
        if (isShort) {
            QVERIFY(!thread.isRunning());
            QCOMPARE(loaded.size(), before + 1);
            ++shortages;
        }
    }
    QVERIFY2(shortages >= 2, qPrintable(QString::number(shortages)));
}

void TestLowMemoryReading::aThreadThatCannotBeMadeIsAShortage()
{
    constexpr uint kMuch = 3'000'000'000;
    const QStringList names = photoNames(3);
    ReadingThread thread(nullptr);
    preparedHost().prepare(names.size(), &thread);
    const QSignalSpy loaded(&thread, &ReadingThread::Loaded);
    rlimit before{};
    QCOMPARE(getrlimit(RLIMIT_AS, &before), 0);
    rlimit less = before;
    less.rlim_cur = kMuch;
    QCOMPARE(setrlimit(RLIMIT_AS, &less), 0);
    thread.setStackSize(kMuch);
    thread.Start(names);
    const bool isRunning = thread.isRunning();
    QCOMPARE(setrlimit(RLIMIT_AS, &before), 0);
    QVERIFY(!isRunning);
    QVERIFY(thread.takeShortage());
    QVERIFY(thread.XIImageDefs().isEmpty());
    QCOMPARE(loaded.size(), 1);

    thread.setStackSize(0);
    thread.Start(names);
    QVERIFY(thread.wait());
    QCOMPARE(thread.XIImageDefs(), preparedHost().given(3));
    QVERIFY(!thread.takeShortage());
}

void TestLowMemoryReading::clearNeedsNoMemory()
{
    const QStringList names = photoNames(3);
    ReadingThread thread(nullptr);
    preparedHost().prepare(names.size(), &thread);
    thread.Start(names);
    QVERIFY(thread.wait());
    const QList<XIImageDef *> shared = thread.XIImageDefs();
    {
        const FailingMemory memory(Failing::Everything, 1, Shortage::Lasting);
        thread.Clear();
    }
    QVERIFY(thread.XIImageDefs().isEmpty());
    QCOMPARE(shared.size(), 3);
}

FAKE_HOST_MAIN(PreparedHost, TestLowMemoryReading)
#include "tst_lowmemory_reading.moc"
