// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "hostlink/readingthread.h"

#include "tests/support/fakeapplication.h"
#include "tests/support/longruns.h"
#include "tests/unit/photonames.h"
#include "tests/unit/readingrecorder.h"

#include <QEventLoop>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

#include <atomic>
#include <memory>
#include <thread>

namespace
{

/** Photos that take their time, some of them unreadable. */
void setRandomPhotos(const QStringList &names, QRandomGenerator &random)
{
    for (const QString &name : names) {
        FakePhoto photo;
        photo.spins = random.bounded(300);
        const int kind = random.bounded(10);
        photo.reading = kind == 0 ? FakePhoto::Reading::Fails
            : kind == 1           ? FakePhoto::Reading::Throws
                                  : FakePhoto::Reading::Succeeds;
        fakeHost().setPhoto(name, photo);
    }
}

/** What an independent read of \p files gives. */
QStringList readable(const QStringList &files)
{
    QStringList answer;
    for (const QString &file : files) {
        try {
            if (fakeHost().CreateImageDef(file) != nullptr) {
                answer.append(file);
            }
        } catch (const std::exception &) {
            continue;
        }
    }
    return answer;
}

} // namespace

/** Runs that are replaced, cleared or destroyed before their end. */
class TestReadingThread : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void startDuringARunReplacesTheQueueAndKeepsThePhotoInHand();
    void clearDuringARunDropsThePhotoInHand_data();
    void clearDuringARunDropsThePhotoInHand();
    void clearOnAnIdleThreadEmptiesAndAnswersOnce();
    void clearIsASlot();
    void clearRightAfterStartLeavesNothing();
    void startAfterClearReadsAll();
    void startFromTheAnswerOfClearReadsAll();
    void startAsTheRunEndsIsNeverLost();
    void startWhileTheRunWindsDownIsNotLost();
    void startAfterAThreadThatCouldNotBeMadeIsNotLost();
    void destroyingWaitsForThePhotoInHandAndIsSilent();
    void randomOperationsKeepTheirPromises();
};

void TestReadingThread::init()
{
    fakeHost().forget();
}

void TestReadingThread::startDuringARunReplacesTheQueueAndKeepsThePhotoInHand()
{
    Gate entered;
    Gate leave;
    const QStringList old = photoNames(3);
    fakeHost().setPhotos(old, {});
    fakeHost().setPhoto(old.at(1), heldBack(&entered, &leave));
    const QStringList fresh{ QStringLiteral("/new/0.jpg"), QStringLiteral("/new/1.jpg") };
    fakeHost().setPhotos(fresh, {});

    ReadingThread thread(nullptr);
    const Recorder recorder(&thread);
    thread.Start(old);
    entered.pass();
    QCOMPARE(namesOf(thread.XIImageDefs()), QStringList{ old.at(0) });
    thread.Start(fresh);
    QVERIFY(thread.XIImageDefs().isEmpty());
    QVERIFY(thread.isRunning());
    leave.open();
    QVERIFY(thread.wait());

    QCOMPARE(namesOf(thread.XIImageDefs()), QStringList(old.at(1)) + fresh);
    QCOMPARE(fakeHost().readFiles(), old.mid(0, 2) + fresh);
    // One run: 4 images of the host, the last one with an empty queue.
    QCOMPARE(recorder.signalsSoFar(),
             QStringList(
                 { QStringLiteral("Start"), QStringLiteral("Loaded 4"), QStringLiteral("Done") }));
}

void TestReadingThread::clearDuringARunDropsThePhotoInHand_data()
{
    QTest::addColumn<int>("photos");
    QTest::addColumn<int>("inHand"); // index of the photo that the host is reading
    QTest::newRow("in the middle") << 4 << 1;
    QTest::newRow("the last one, which would have signalled") << 3 << 2;
    QTest::newRow("the tenth one, which would have signalled") << 12 << 9;
}

void TestReadingThread::clearDuringARunDropsThePhotoInHand()
{
    QFETCH(const int, photos);
    QFETCH(const int, inHand);

    Gate entered;
    Gate leave;
    const QStringList names = photoNames(photos);
    fakeHost().setPhotos(names, {});
    fakeHost().setPhoto(names.at(inHand), heldBack(&entered, &leave));
    ReadingThread thread(nullptr);
    const Recorder recorder(&thread);
    QObject page;
    int loaded = 0;
    connect(&thread, &ReadingThread::Loaded, &page, [&] {
        ++loaded;
        QVERIFY(thread.XIImageDefs().isEmpty());
        QVERIFY(!thread.isRunning());
    });
    thread.Start(names);
    entered.pass();

    // Lets the photo go once Clear has emptied the list and can only be waiting for the run.
    std::atomic<bool> letGo{ false };
    std::thread helper([&] {
        while (!thread.XIImageDefs().isEmpty()) {
            std::this_thread::yield();
        }
        letGo = true;
        leave.open();
    });
    thread.Clear();
    QVERIFY(letGo);
    helper.join();

    QVERIFY(!thread.isRunning());
    QVERIFY(thread.XIImageDefs().isEmpty());
    QCOMPARE(loaded, 1);
    QCoreApplication::processEvents(); // nothing of the stopped run is on its way
    QCOMPARE(loaded, 1);
    QVERIFY(thread.XIImageDefs().isEmpty());
    QCOMPARE(fakeHost().readFiles(), names.mid(0, inHand + 1));
    // The run itself ended with Done; the one Loaded came after it.
    QCOMPARE(recorder.signalsSoFar(),
             QStringList({ QStringLiteral("Start"), QStringLiteral("Done"),
                           QStringLiteral("Loaded %1").arg(inHand + 1) }));
}

void TestReadingThread::clearOnAnIdleThreadEmptiesAndAnswersOnce()
{
    fakeHost().setPhotos(photoNames(2), {});
    ReadingThread thread(nullptr);
    thread.Start(photoNames(2));
    QVERIFY(thread.wait());
    QCOMPARE(thread.XIImageDefs().size(), 2);
    const Recorder recorder(&thread);
    thread.Clear();
    QVERIFY(thread.XIImageDefs().isEmpty());
    QCOMPARE(recorder.signalsSoFar(), QStringList{ QStringLiteral("Loaded 2") });
    thread.Clear();
    QCOMPARE(recorder.signalsSoFar().size(), 2);
}

void TestReadingThread::clearIsASlot()
{
    fakeHost().setPhotos(photoNames(2), {});
    ReadingThread thread(nullptr);
    thread.Start(photoNames(2));
    QVERIFY(thread.wait());
    QVERIFY(QMetaObject::invokeMethod(&thread, "Clear"));
    QVERIFY(thread.XIImageDefs().isEmpty());
}

void TestReadingThread::clearRightAfterStartLeavesNothing()
{
    const QStringList names = photoNames(3);
    fakeHost().setPhotos(names, {});
    ReadingThread thread(nullptr);
    for (int i = 0; i < 500; ++i) {
        thread.Start(names);
        thread.Clear();
        QVERIFY(!thread.isRunning());
        QVERIFY(thread.XIImageDefs().isEmpty());
    }
}

void TestReadingThread::startAfterClearReadsAll()
{
    const QStringList names = photoNames(5);
    fakeHost().setPhotos(names, {});
    ReadingThread thread(nullptr);
    for (int i = 0; i < 100; ++i) {
        thread.Start(names);
        thread.Clear();
        thread.Start(names);
        QVERIFY(thread.wait());
        QCOMPARE(namesOf(thread.XIImageDefs()), names);
    }
}

void TestReadingThread::startFromTheAnswerOfClearReadsAll()
{
    const QStringList names = photoNames(5);
    fakeHost().setPhotos(names, {});
    ReadingThread thread(nullptr);
    thread.Start(names);
    QObject page;
    bool restarted = false;
    connect(&thread, &ReadingThread::Loaded, &page, [&] {
        if (!restarted && !thread.isRunning() && thread.XIImageDefs().isEmpty()) {
            restarted = true;
            thread.Start(names);
        }
    });
    thread.Clear();
    QVERIFY(restarted);
    QVERIFY(thread.wait());
    QCOMPARE(namesOf(thread.XIImageDefs()), names);
}

void TestReadingThread::startAsTheRunEndsIsNeverLost()
{
    const int starts = rounds(5'000, 100'000);
    const QStringList names = photoNames(starts);
    fakeHost().setPhotos(names, {});
    ReadingThread thread(nullptr);
    QObject page;
    int started = 0;
    QEventLoop loop;
    const auto startNext = [&] {
        if (started == starts) {
            loop.quit();
            return;
        }
        thread.Start({ names.at(started++) });
    };
    // The handler runs while the worker, which has just signalled its last image, winds down.
    // A loop of its own, because the QTRY macros sleep between looks and would never meet it.
    connect(&thread, &ReadingThread::Loaded, &page, startNext);
    startNext();
    // A lost start is never followed by a signal: then only this guard ends the loop.
    QTimer::singleShot(std::chrono::minutes(rounds(2, 20)), &loop, [&loop] { loop.exit(1); });
    QCOMPARE(loop.exec(), 0);
    QVERIFY(thread.wait());
    QCOMPARE(fakeHost().readFiles(), names);
    QCOMPARE(namesOf(thread.XIImageDefs()), QStringList{ names.last() });
}

void TestReadingThread::startWhileTheRunWindsDownIsNotLost()
{
    const QStringList names = photoNames(3);
    fakeHost().setPhotos(names, {});
    ReadingThread thread(nullptr);
    Gate windingDown;
    Gate leave;
    connect(
        &thread, &ReadingThread::Done, &thread,
        [&] {
            windingDown.open();
            leave.pass();
        },
        Qt::DirectConnection);
    thread.Start({ names.at(0) });
    windingDown.pass();

    // The run will not look at the queue again, yet its thread still runs, and goes on running
    // until Start waits for it.
    std::thread helper([&] {
        for (int i = 0; i < 1000; ++i) {
            std::this_thread::yield();
        }
        leave.open(2);
    });
    thread.Start(names.mid(1));
    QVERIFY(thread.wait());
    helper.join();
    QCOMPARE(fakeHost().readFiles(), names);
    QCOMPARE(namesOf(thread.XIImageDefs()), names.mid(1));
}

void TestReadingThread::startAfterAThreadThatCouldNotBeMadeIsNotLost()
{
    const QStringList names = photoNames(3);
    fakeHost().setPhotos(names, {});
    ReadingThread thread(nullptr);
    thread.setStackSize(1); // less than the system grants
    QTest::ignoreMessage(QtSystemMsg,
                         QRegularExpression(QStringLiteral("Thread stack size error")));
    thread.Start(names);
    QVERIFY(!thread.isRunning());
    thread.setStackSize(0);
    thread.Start(names);
    QVERIFY(thread.wait());
    QCOMPARE(namesOf(thread.XIImageDefs()), names);
}

void TestReadingThread::destroyingWaitsForThePhotoInHandAndIsSilent()
{
    Gate entered;
    Gate leave;
    const QStringList names = photoNames(2);
    fakeHost().setPhotos(names, heldBack(&entered, &leave));
    auto page = std::make_unique<QObject>();
    auto *thread = new ReadingThread(page.get());
    int loaded = 0;
    QObject receiver;
    connect(thread, &ReadingThread::Loaded, &receiver, [&] { ++loaded; });
    connect(
        thread, &ReadingThread::Done, &receiver, [&] { ++loaded; }, Qt::DirectConnection);
    thread->Start(names);
    entered.pass();

    std::atomic<bool> destroying{ false };
    std::thread helper([&] {
        while (!destroying) {
            std::this_thread::yield();
        }
        for (int i = 0; i < 1000; ++i) {
            std::this_thread::yield();
        }
        leave.open(2);
    });
    destroying = true;
    page.reset();
    // The host has finished the first photo and was not asked for the second.
    QCOMPARE(fakeHost().images().size(), 1);
    QCOMPARE(fakeHost().readFiles(), QStringList{ names.at(0) });
    helper.join();
    QCoreApplication::processEvents();
    QCOMPARE(loaded, 0);
}

void TestReadingThread::randomOperationsKeepTheirPromises()
{
    const int operations = rounds(2'000, 100'000);
    constexpr quint32 kSeed = 20260501;
    QRandomGenerator random(kSeed);
    const QStringList names = photoNames(40);
    setRandomPhotos(names, random);
    auto thread = std::make_unique<ReadingThread>(nullptr);
    QObject page;
    const auto listen = [&] {
        connect(thread.get(), &ReadingThread::Loaded, &page, [&] { (void)thread->XIImageDefs(); });
    };
    listen();
    QStringList files;
    bool startedDuringARun = false;
    // Waiting and answering the signals are no operations.
    for (int operation = 0; operation < operations;) {
        switch (random.bounded(10)) {
        case 0:
            ++operation;
            thread.reset();
            thread = std::make_unique<ReadingThread>(nullptr);
            listen();
            files.clear();
            startedDuringARun = false;
            break;
        case 1:
        case 2:
            ++operation;
            thread->Clear();
            QVERIFY(!thread->isRunning());
            QVERIFY(thread->XIImageDefs().isEmpty());
            files.clear();
            startedDuringARun = false;
            break;
        case 3: {
            QVERIFY(thread->wait());
            const QStringList expected = readable(files);
            const QStringList got = namesOf(thread->XIImageDefs());
            // A photo that was in hand when Start came stands in front, one at most.
            QVERIFY2(got == expected || (startedDuringARun && got.mid(1) == expected),
                     qPrintable(got.join(QLatin1Char(' '))));
            break;
        }
        case 4:
            QCoreApplication::processEvents();
            break;
        default:
            ++operation;
            startedDuringARun = thread->isRunning();
            files = names.mid(random.bounded(names.size() - 5), 1 + random.bounded(5));
            thread->Start(files);
            break;
        }
    }
}

TEST_CLASS(TestReadingThread, FakeCoreApplication)
#include "tst_readingthread.moc"
