// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "hostlink/readingthread.h"

#include "tests/support/fakeapplication.h"
#include "tests/unit/photonames.h"
#include "tests/unit/readingrecorder.h"

#include <QMetaMethod>
#include <QTest>

#include <type_traits>

static_assert(std::is_base_of_v<QThread, ReadingThread>);
static_assert(std::is_constructible_v<ReadingThread, QObject *>);
static_assert(!std::is_copy_constructible_v<ReadingThread>);

/** The thread itself, and runs that go undisturbed to their end. */
class TestReadingThreadRuns : public QObject
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
    void theLockIsFreeWhileTheHostReads();
    void twoThreadsReadAtTheSameTime();
};

void TestReadingThreadRuns::init()
{
    fakeHost().forget();
}

void TestReadingThreadRuns::metaMethodsStandInTheirOrder()
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

void TestReadingThreadRuns::aFreshThreadIsIdleAndEmpty()
{
    QObject page;
    const auto *thread = new ReadingThread(&page);
    QCOMPARE(thread->parent(), &page);
    QVERIFY(!thread->isRunning());
    QVERIFY(const_cast<ReadingThread *>(thread)->XIImageDefs().isEmpty());
}

void TestReadingThreadRuns::signalsFollowThePhotos_data()
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

void TestReadingThreadRuns::signalsFollowThePhotos()
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

void TestReadingThreadRuns::imagesStandInReadingOrder()
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

void TestReadingThreadRuns::aFileGivenTwiceIsReadOnce()
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

void TestReadingThreadRuns::duplicatesOfALongListAreFound()
{
    const QStringList names = photoNames(20000);
    fakeHost().setPhotos(names, {});
    ReadingThread thread(nullptr);
    thread.Start(names + names);
    QVERIFY(thread.wait());
    QCOMPARE(fakeHost().readFiles(), names);
}

void TestReadingThreadRuns::receiversOnTheGuiThreadSeeTheImages()
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

void TestReadingThreadRuns::theLastSignalOfTheWorkIsKnown()
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

void TestReadingThreadRuns::startForgetsTheEarlierImages()
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

void TestReadingThreadRuns::startOfAnEmptyListForgetsToo()
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

void TestReadingThreadRuns::theLockIsFreeWhileTheHostReads()
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

void TestReadingThreadRuns::twoThreadsReadAtTheSameTime()
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

TEST_CLASS(TestReadingThreadRuns, FakeCoreApplication)
#include "tst_readingthread_runs.moc"
