// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "photoshoot.h"
#include "testprogram.h"

#include <QTest>

#include <algorithm>

/** Pictures of the pages, looked at before the event loop gets a turn. */
class TestPhotoPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aPictureIsWholeWhenThePhotosAreRead_data();
    void aPictureIsWholeWhenThePhotosAreRead();
    void aPictureIsWholeWhenASlotReturns_data();
    void aPictureIsWholeWhenASlotReturns();
    void aPictureIsWholeWhilePhotosAreRead_data();
    void aPictureIsWholeWhilePhotosAreRead();
    void aLargeGridIsWholeWhenThePhotosAreRead_data();
    void aLargeGridIsWholeWhenThePhotosAreRead();
    void aLargeGridIsWholeWhenASlotReturns_data();
    void aLargeGridIsWholeWhenASlotReturns();
    void aLargeGridIsWholeWithItsFirstPhotos();
    void noTimerIsStarted_data();
    void noTimerIsStarted();
    void aLargeGridNeedsNoTimer();
    void nothingIsAskedLaterAfterNext();
};

namespace
{

bool isGrid(const Head &head)
{
    return head.record == nullptr;
}

const Head &grid()
{
    return *std::find_if(allHeads().begin(), allHeads().end(), &isGrid);
}

// Ten rows of ten cells of 400 x 300 pixels, half of a thumbnail's sides, and gaps of 4 pixels:
// 4,044 x 3,044 pixels, more than twelve million.
PhotoShoot largeGrid()
{
    photoHost().prepare = [](WatchedPhoto &photo) { photo.size = QSize(800, 600); };
    return { grid(), 10, 10 };
}

} // namespace

void TestPhotoPictures::init()
{
    photoHost().beginTest();
}

void TestPhotoPictures::aPictureIsWholeWhenThePhotosAreRead_data()
{
    addHeads();
}

void TestPhotoPictures::aPictureIsWholeWhenThePhotosAreRead()
{
    QFETCH(const Head *, head);
    PhotoShoot shoot(*head, 3, 4);
    shoot.load();
    QCOMPARE(shoot.wrong(), QString());
}

void TestPhotoPictures::aPictureIsWholeWhenASlotReturns_data()
{
    addRedraws();
}

void TestPhotoPictures::aPictureIsWholeWhenASlotReturns()
{
    QFETCH(const Head *, head);
    QFETCH(const Redraw *, redraw);
    PhotoShoot shoot(*head, 3, 4);
    shoot.load();
    redraw->perform(shoot);
    QCOMPARE(shoot.wrong(), QString());
}

void TestPhotoPictures::aPictureIsWholeWhilePhotosAreRead_data()
{
    addHeads();
}

void TestPhotoPictures::aPictureIsWholeWhilePhotosAreRead()
{
    QFETCH(const Head *, head);
    // Later photos were taken earlier, two by two: photos move among the cells while they come.
    photoHost().prepare = [](WatchedPhoto &photo) { photo.time = photo.number ^ 1; };
    PhotoShoot shoot(*head, 5, 7);
    shoot.choose();
    for (int photos = 10; photos < shoot.photoCount(); photos += 10) {
        shoot.read(10);
        shoot.deliver();
        QVERIFY2(shoot.wrong().isEmpty(),
                 qPrintable(QStringLiteral("%1 photos: %2").arg(photos).arg(shoot.wrong())));
    }
    shoot.readRest();
    shoot.deliver();
    QCOMPARE(shoot.wrong(), QString());
}

void TestPhotoPictures::aLargeGridIsWholeWhenThePhotosAreRead_data()
{
    QTest::addColumn<int>("zoomPercent");
    QTest::newRow("as it opens") << 50;
    QTest::newRow("tiny") << 1;
    QTest::newRow("almost full size") << 99;
    QTest::newRow("full size") << 100;
}

void TestPhotoPictures::aLargeGridIsWholeWhenThePhotosAreRead()
{
    QFETCH(const int, zoomPercent);
    PhotoShoot shoot = largeGrid();
    shoot.zoom(zoomPercent);
    shoot.load();
    QCOMPARE(shoot.wrong(), QString());
}

void TestPhotoPictures::aLargeGridIsWholeWhenASlotReturns_data()
{
    addRedraws([](const Head &head) { return &head == &grid(); });
}

void TestPhotoPictures::aLargeGridIsWholeWhenASlotReturns()
{
    QFETCH(const Redraw *, redraw);
    PhotoShoot shoot = largeGrid();
    shoot.load();
    redraw->perform(shoot);
    QCOMPARE(shoot.wrong(), QString());
}

void TestPhotoPictures::aLargeGridIsWholeWithItsFirstPhotos()
{
    PhotoShoot shoot = largeGrid();
    shoot.choose();
    shoot.read(10);
    shoot.deliver();
    QCOMPARE(shoot.wrong(), QString());
}

void TestPhotoPictures::noTimerIsStarted_data()
{
    addHeads();
}

void TestPhotoPictures::noTimerIsStarted()
{
    QFETCH(const Head *, head);
    PhotoShoot shoot(*head, 3, 4);
    QCOMPARE(shoot.runningTimers(), 0);
    shoot.choose();
    shoot.read(10);
    shoot.deliver();
    QCOMPARE(shoot.runningTimers(), 0);
    shoot.readRest();
    shoot.deliver();
    QCOMPARE(shoot.runningTimers(), 0);
    for (const Redraw &redraw : head->redraws) {
        redraw.perform(shoot);
        QVERIFY2(shoot.runningTimers() == 0, redraw.name);
    }
    shoot.goOn();
    QCOMPARE(shoot.runningTimers(), 0);
}

void TestPhotoPictures::aLargeGridNeedsNoTimer()
{
    PhotoShoot shoot = largeGrid();
    shoot.choose();
    shoot.read(10);
    shoot.deliver();
    QCOMPARE(shoot.runningTimers(), 0);
    shoot.readRest();
    shoot.deliver();
    QCOMPARE(shoot.runningTimers(), 0);
    shoot.zoom(70);
    QCOMPARE(shoot.runningTimers(), 0);
}

void TestPhotoPictures::nothingIsAskedLaterAfterNext()
{
    PhotoShoot shoot = largeGrid();
    shoot.load();
    const QImage picture = shoot.picture();
    shoot.goOn();
    const int asked = photoHost().asked();
    turnEventLoop();
    QCOMPARE(photoHost().asked(), asked);
    QCOMPARE(LayoutPicture::difference(shoot.picture(), picture), QString());
}

TEST_CLASS(TestPhotoPictures, PhotoHost)
#include "tst_photopictures.moc"
