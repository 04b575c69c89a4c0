// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "hostlink/readingthread.h"

#include "tests/support/fakeapplication.h"
#include "tests/support/gate.h"
#include "tests/support/longruns.h"

#include <QEventLoop>
#include <QMetaMethod>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

#include <atomic>
#include <memory>
#include <mutex>
#include <thread>
#include <type_traits>

static_assert(std::is_base_of_v<QThread, ReadingThread>);
static_assert(std::is_constructible_v<ReadingThread, QObject *>);
static_assert(!std::is_copy_constructible_v<ReadingThread>);

namespace
{

/** "/photos/0.jpg", "/photos/1.jpg"... */
QStringList photoNames(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names.append(QStringLiteral("/photos/%1.jpg").arg(i));
    }
    return names;
}

QStringList namesOf(const QList<XIImageDef *> &images)
{
    QStringList names;
    for (XIImageDef *image : images) {
        names.append(static_cast<FakeImage *>(image)->fileName());
    }
    return names;
}

/** A photo that stays in the host's hands until the test lets it go. */
FakePhoto heldBack(Gate *enter, Gate *leave)
{
    FakePhoto photo;
    photo.enter = enter;
    photo.leave = leave;
    return photo;
}

/**
 * Writes down the thread's signals where they are emitted, on the worker thread: the name, for
 * Loaded with the number of photos that the host has given out by then.
 */
class Recorder
{
public:
    explicit Recorder(ReadingThread *thread)
    {
        QObject::connect(
            thread, qOverload<>(&ReadingThread::Start), thread,
            [this] { append(QStringLiteral("Start")); }, Qt::DirectConnection);
        QObject::connect(
            thread, &ReadingThread::Done, thread, [this] { append(QStringLiteral("Done")); },
            Qt::DirectConnection);
        QObject::connect(
            thread, &ReadingThread::Loaded, thread,
            [this] { append(QStringLiteral("Loaded %1").arg(fakeHost().images().size())); },
            Qt::DirectConnection);
    }

    [[nodiscard]] QStringList signalsSoFar() const
    {
        const std::lock_guard lock(m_mutex);
        return m_signals;
    }

private:
    void append(const QString &entry)
    {
        const std::lock_guard lock(m_mutex);
        m_signals.append(entry);
    }

    mutable std::mutex m_mutex;
    QStringList m_signals;
};

} // namespace

class TestReadingThread : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void metaMethodsStandInTheirOrder();
    void aFreshThreadIsIdleAndEmpty();
    void signalsFollowThePhotos_data();
    void signalsFollowThePhotos();
    void imagesStandInReadingOrder();
    void aFileGivenTwiceIsReadOnce();
    void duplicatesOfALongListAreFound();
    void receiversOnTheGuiThreadSeeTheImages();
    void theLastSignalOfTheWorkIsKnown();
    void startForgetsTheEarlierImages();
    void startOfAnEmptyListForgetsToo();
    void startDuringARunReplacesTheQueueAndKeepsThePhotoInHand();
    void theLockIsFreeWhileTheHostReads();
    void twoThreadsReadAtTheSameTime();
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

void TestReadingThread::metaMethodsStandInTheirOrder()
{
    const QMetaObject &meta = ReadingThread::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        methods.append(QStringLiteral("%1 %2 %3")
                           .arg(method.methodType() == QMetaMethod::Signal
                                    ? QStringLiteral("signal")
                                    : QStringLiteral("slot"),
                                method.access() == QMetaMethod::Public ? QStringLiteral("public")
                                                                       : QStringLiteral("hidden"),
                                QString::fromLatin1(method.methodSignature())));
    }
    QCOMPARE(methods,
             QStringList({ QStringLiteral("signal public Loaded()"),
                           QStringLiteral("signal public Start()"),
                           QStringLiteral("signal public Done()"),
                           QStringLiteral("slot public Clear()") }));
    QCOMPARE(meta.className(), "ReadingThread");
}

void TestReadingThread::aFreshThreadIsIdleAndEmpty()
{
    QObject page;
    const auto *thread = new ReadingThread(&page);
    QCOMPARE(thread->parent(), &page);
    QVERIFY(!thread->isRunning());
    QVERIFY(const_cast<ReadingThread *>(thread)->XIImageDefs().isEmpty());
}

void TestReadingThread::signalsFollowThePhotos_data()
{
    QTest::addColumn<QString>("photos"); // r: readable, f: the host answers null, t: it throws
    QTest::addColumn<QList<int>>("loaded"); // the host's images at each Loaded

    const QString ten = QStringLiteral("rrrrrrrrrr");
    using Counts = QList<int>;
    QTest::newRow("no photo") << QString() << Counts();
    QTest::newRow("1 photo") << QStringLiteral("r") << Counts{ 1 };
    QTest::newRow("9 photos") << QStringLiteral("rrrrrrrrr") << Counts{ 9 };
    QTest::newRow("10 photos signal once") << ten << Counts{ 10 };
    QTest::newRow("11 photos") << ten + QStringLiteral("r") << Counts{ 10, 11 };
    QTest::newRow("20 photos") << ten + ten << Counts{ 10, 20 };
    QTest::newRow("25 photos") << ten + ten + QStringLiteral("rrrrr") << Counts{ 10, 20, 25 };
    QTest::newRow("last unreadable") << QStringLiteral("rrf") << Counts();
    QTest::newRow("last unreadable after ten") << ten + QStringLiteral("rf") << Counts{ 10 };
    QTest::newRow("first unreadable") << QStringLiteral("frr") << Counts{ 2 };
    QTest::newRow("tens are counted in images, not in files")
        << QStringLiteral("f") + ten + QStringLiteral("rr") << Counts{ 10, 12 };
    QTest::newRow("tenth image is the last too") << QStringLiteral("rrrrrrrrrfr") << Counts{ 10 };
    QTest::newRow("all unreadable") << QStringLiteral("fff") << Counts();
    QTest::newRow("an exception counts as unreadable") << QStringLiteral("rtr") << Counts{ 2 };
    QTest::newRow("only exceptions") << QStringLiteral("tt") << Counts();
    QTest::newRow("last one throws") << QStringLiteral("rt") << Counts();
}

void TestReadingThread::signalsFollowThePhotos()
{
    QFETCH(const QString, photos);
    QFETCH(const QList<int>, loaded);

    const QStringList names = photoNames(photos.size());
    QStringList readable;
    for (int i = 0; i < names.size(); ++i) {
        FakePhoto photo;
        if (photos.at(i) == QLatin1Char('f')) {
            photo.reading = FakePhoto::Reading::Fails;
        } else if (photos.at(i) == QLatin1Char('t')) {
            photo.reading = FakePhoto::Reading::Throws;
        } else {
            readable.append(names.at(i));
        }
        fakeHost().setPhoto(names.at(i), photo);
    }
    QStringList expected{ QStringLiteral("Start") };
    for (const int count : loaded) {
        expected.append(QStringLiteral("Loaded %1").arg(count));
    }
    expected.append(QStringLiteral("Done"));

    ReadingThread thread(nullptr);
    const Recorder recorder(&thread);
    thread.Start(names);
    QVERIFY(thread.wait());

    QCOMPARE(recorder.signalsSoFar(), expected);
    QCOMPARE(fakeHost().readFiles(), names);
    QCOMPARE(namesOf(thread.XIImageDefs()), readable);
}

void TestReadingThread::imagesStandInReadingOrder()
{
    const QStringList names{ QStringLiteral("/z.jpg"), QStringLiteral("/a.jpg"),
                             QStringLiteral("/m.jpg") };
    fakeHost().setPhotos(names, {});
    ReadingThread thread(nullptr);
    thread.Start(names);
    QVERIFY(thread.wait());
    QCOMPARE(namesOf(thread.XIImageDefs()), names);
    const QList<FakeImage *> given = fakeHost().images();
    QCOMPARE(given.size(), 3);
    for (int i = 0; i < given.size(); ++i) {
        QCOMPARE(thread.XIImageDefs().at(i), static_cast<XIImageDef *>(given.at(i)));
    }
}

void TestReadingThread::aFileGivenTwiceIsReadOnce()
{
    const QString a = QStringLiteral("/a.jpg");
    const QString b = QStringLiteral("/b.jpg");
    const QString upperA = QStringLiteral("/A.jpg");
    fakeHost().setPhotos({ a, b, upperA }, {});
    ReadingThread thread(nullptr);
    thread.Start({ a, b, a, upperA, b, a });
    QVERIFY(thread.wait());
    QCOMPARE(fakeHost().readFiles(), QStringList({ a, b, upperA }));

    // An earlier run's files are not remembered.
    thread.Start({ a });
    QVERIFY(thread.wait());
    QCOMPARE(fakeHost().readFiles(), QStringList({ a, b, upperA, a }));
}

void TestReadingThread::duplicatesOfALongListAreFound()
{
    const QStringList names = photoNames(20000);
    fakeHost().setPhotos(names, {});
    ReadingThread thread(nullptr);
    thread.Start(names + names);
    QVERIFY(thread.wait());
    QCOMPARE(fakeHost().readFiles(), names);
}

void TestReadingThread::receiversOnTheGuiThreadSeeTheImages()
{
    const QStringList names = photoNames(25);
    fakeHost().setPhotos(names, {});
    ReadingThread thread(nullptr);
    QObject page;
    QList<int> seen;
    connect(&thread, &ReadingThread::Loaded, &page, [&] {
        QCOMPARE(QThread::currentThread(), QCoreApplication::instance()->thread());
        seen.append(thread.XIImageDefs().size());
    });
    thread.Start(names);
    QTRY_COMPARE(seen.size(), 3);
    QVERIFY(seen.at(0) >= 10);
    QVERIFY(seen.at(1) >= 20);
    QCOMPARE(seen.at(2), 25);
}

void TestReadingThread::theLastSignalOfTheWorkIsKnown()
{
    Gate entered;
    Gate leave;
    const QStringList names = photoNames(25);
    fakeHost().setPhotos(names, {});
    ReadingThread thread(nullptr);
    QObject page;
    QList<bool> isLast;
    connect(&thread, &ReadingThread::Loaded, &page, [&] { isLast.append(thread.isLastLoaded()); });
    // All photos are there before the first of three signals is delivered.
    thread.Start(names);
    QVERIFY(thread.wait());
    QTRY_COMPARE(isLast, QList<bool>({ false, false, true }));

    // The photo after the twentieth is held back.
    isLast.clear();
    fakeHost().setPhoto(names.at(20), heldBack(&entered, &leave));
    thread.Start(names);
    entered.pass();
    QTRY_COMPARE(isLast, QList<bool>({ false, false }));
    leave.open();
    QTRY_COMPARE(isLast, QList<bool>({ false, false, true }));

    // A signal of work that was given up may come late.
    isLast.clear();
    fakeHost().setPhoto(names.at(20), {});
    thread.Start(names);
    QVERIFY(thread.wait());
    thread.Clear();
    QTRY_COMPARE(isLast, QList<bool>({ false, false, false, true }));
}

void TestReadingThread::startForgetsTheEarlierImages()
{
    const QStringList names = photoNames(3);
    fakeHost().setPhotos(names, {});
    ReadingThread thread(nullptr);
    thread.Start(names);
    QVERIFY(thread.wait());
    thread.Start({ names.last() });
    QVERIFY(thread.wait());
    QCOMPARE(namesOf(thread.XIImageDefs()), QStringList{ names.last() });
    QCOMPARE(fakeHost().images().size(), 4);
}

void TestReadingThread::startOfAnEmptyListForgetsToo()
{
    fakeHost().setPhotos(photoNames(2), {});
    ReadingThread thread(nullptr);
    thread.Start(photoNames(2));
    QVERIFY(thread.wait());
    const Recorder recorder(&thread);
    thread.Start({});
    QVERIFY(thread.XIImageDefs().isEmpty());
    QVERIFY(thread.wait());
    QCOMPARE(recorder.signalsSoFar(),
             QStringList({ QStringLiteral("Start"), QStringLiteral("Done") }));
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

void TestReadingThread::theLockIsFreeWhileTheHostReads()
{
    Gate entered;
    Gate leave;
    const QStringList names = photoNames(2);
    fakeHost().setPhoto(names.at(0), {});
    fakeHost().setPhoto(names.at(1), heldBack(&entered, &leave));
    ReadingThread thread(nullptr);
    thread.Start(names);
    entered.pass();
    QCOMPARE(namesOf(thread.XIImageDefs()), QStringList{ names.at(0) });
    leave.open();
    QVERIFY(thread.wait());
    QCOMPARE(namesOf(thread.XIImageDefs()), names);
}

void TestReadingThread::twoThreadsReadAtTheSameTime()
{
    Gate entered;
    Gate leave;
    const QStringList names = photoNames(2);
    fakeHost().setPhotos(names, heldBack(&entered, &leave));
    ReadingThread first(nullptr);
    ReadingThread second(nullptr);
    first.Start({ names.at(0) });
    second.Start({ names.at(1) });
    entered.pass();
    entered.pass(); // both are inside the host's call now
    leave.open(2);
    QVERIFY(first.wait());
    QVERIFY(second.wait());
    QCOMPARE(namesOf(first.XIImageDefs()), QStringList{ names.at(0) });
    QCOMPARE(namesOf(second.XIImageDefs()), QStringList{ names.at(1) });
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
    for (const QString &name : names) {
        FakePhoto photo;
        photo.spins = random.bounded(300);
        const int kind = random.bounded(10);
        photo.reading = kind == 0 ? FakePhoto::Reading::Fails
            : kind == 1           ? FakePhoto::Reading::Throws
                                  : FakePhoto::Reading::Succeeds;
        fakeHost().setPhoto(name, photo);
    }
    const auto readable = [](const QStringList &files) {
        // What an independent read of the table gives.
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
    };

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
