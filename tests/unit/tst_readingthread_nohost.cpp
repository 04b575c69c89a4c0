// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "hostlink/readingthread.h"
#include "tests/support/testprogram.h"

#include <QSignalSpy>
#include <QTest>

/** The reading thread in a program whose application object is no host. */
class TestReadingThreadWithoutHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startDoesNotStartTheThread();
    void clearStillAnswersWithLoaded();
};

void TestReadingThreadWithoutHost::startDoesNotStartTheThread()
{
    ReadingThread thread(nullptr);
    const QSignalSpy started(&thread, &QThread::started);
    thread.Start({ QStringLiteral("/photos/a.jpg"), QStringLiteral("/photos/b.jpg") });
    QVERIFY(!thread.isRunning());
    QVERIFY(!thread.isFinished());
    QCoreApplication::processEvents();
    QCOMPARE(started.count(), 0);
    QVERIFY(thread.XIImageDefs().isEmpty());
}

void TestReadingThreadWithoutHost::clearStillAnswersWithLoaded()
{
    ReadingThread thread(nullptr);
    thread.Start({ QStringLiteral("/photos/a.jpg") });
    const QSignalSpy loaded(&thread, &ReadingThread::Loaded);
    thread.Clear();
    QCOMPARE(loaded.count(), 1);
}

TEST_CLASS(TestReadingThreadWithoutHost, QCoreApplication)
#include "tst_readingthread_nohost.moc"
