// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/gigapan/uiwpgigapan.h"

#include "tests/pages/gigapanpicture.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/gate.h"
#include "ui/xui.h"

#include <QtTest>

#include <thread>

/** Which photos the cells show, and when. */
class TestUIWPGigapanPhotos : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void photosAreOrderedByShotTime_data();
    void photosAreOrderedByShotTime();
    void equalTimesThatComeLateUndoTheOrder();
    void firstThumbnailDecidesTheCellSize();
    void earliestThumbnailIsTheFirstOne();
    void missingThumbnailLeavesAnOutline_data();
    void missingThumbnailLeavesAnOutline();
    void photosAppearAsTheyAreRead();
    void unreadablePhotoMovesTheOthersUp();
    void otherPhotosOfTheSameNumberAreDrawn();
    void resetDuringReadingShowsTheFreshGrid();
};

void TestUIWPGigapanPhotos::init()
{
    fakeHost().forget();
    XUI::init(fakeHost().UIInstances());
}

void TestUIWPGigapanPhotos::photosAreOrderedByShotTime_data()
{
    QTest::addColumn<QVector<long>>("times"); // of the red, green, blue and yellow photo, as read
    QTest::addColumn<QVector<QColor>>("order"); // of the cells, column by column
    QTest::newRow("as read") << QVector<long>{ 1, 2, 3, 4 }
                             << QVector<QColor>{ kRed, kGreen, kBlue, kYellow };
    QTest::newRow("backwards") << QVector<long>{ 4, 3, 2, 1 }
                               << QVector<QColor>{ kYellow, kBlue, kGreen, kRed };
    QTest::newRow("mixed, negative, beyond 32 bits")
        << QVector<long>{ 7'000'000'000, -1, 7'000'000'001, 5 }
        << QVector<QColor>{ kGreen, kYellow, kRed, kBlue };
    QTest::newRow("two equal times: as read")
        << QVector<long>{ 5, 4, 5, 1 } << QVector<QColor>{ kRed, kGreen, kBlue, kYellow };
    QTest::newRow("equal neighbours: as read")
        << QVector<long>{ 9, 3, 3, 1 } << QVector<QColor>{ kRed, kGreen, kBlue, kYellow };
    QTest::newRow("all equal") << QVector<long>{ 0, 0, 0, 0 }
                               << QVector<QColor>{ kRed, kGreen, kBlue, kYellow };
}

void TestUIWPGigapanPhotos::photosAreOrderedByShotTime()
{
    QFETCH(QVector<long>, times);
    QFETCH(QVector<QColor>, order);
    const ZoomedShoot shoot;

    shoot.driver.load(kSelectPhotos,
                      { shoot.addPhoto(QStringLiteral("a.jpg"), kRed, times[0]),
                        shoot.addPhoto(QStringLiteral("b.jpg"), kGreen, times[1]),
                        shoot.addPhoto(QStringLiteral("c.jpg"), kBlue, times[2]),
                        shoot.addPhoto(QStringLiteral("d.jpg"), kYellow, times[3]) });

    QCOMPARE(
        shoot.driver.picture(),
        painted(
            QSize(172, 132), kCell,
            { { 0, 0, order[0] }, { 1, 0, order[1] }, { 0, 1, order[2] }, { 1, 1, order[3] } }));
}

void TestUIWPGigapanPhotos::equalTimesThatComeLateUndoTheOrder()
{
    Gate leave;
    const ZoomedShoot shoot;
    QStringList photos;
    for (int i = 0; i < 12; ++i) {
        FakePhoto photo;
        photo.size = kThumbnail;
        photo.colour = colourOf(i);
        photo.shotTime = 100 - i;
        if (i >= 10) {
            photo.shotTime = 100; // as the first one
            photo.leave = &leave;
        }
        photos.append(
            shoot.folder.addPhoto(QStringLiteral("%1.jpg").arg(i, 2, 10, QLatin1Char('0')), photo));
    }
    // Three rows of four cells, column by column: 4 x 84 + 4 by 3 x 64 + 4.
    const auto picture = [](const QVector<int> &order) {
        QVector<DrawnCell> cells;
        for (int cell = 0; cell < 12; ++cell) {
            const QColor colour = cell < order.size() ? colourOf(order[cell]) : QColor();
            cells.append({ cell % 3, cell / 3, colour });
        }
        return painted(QSize(340, 196), kCell, cells);
    };

    shoot.driver.chooseFiles(kSelectPhotos, photos);
    QTRY_COMPARE(shoot.driver.picture(), picture({ 9, 8, 7, 6, 5, 4, 3, 2, 1, 0 }));
    leave.open(2);
    shoot.driver.waitUntilRead();

    QCOMPARE(shoot.driver.picture(), picture({ 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11 }));
}

void TestUIWPGigapanPhotos::firstThumbnailDecidesTheCellSize()
{
    const ZoomedShoot shoot;
    const QSize small(41, 20);

    shoot.driver.load(kSelectPhotos,
                      { shoot.addPhoto(QStringLiteral("a.jpg"), kRed, 1, small),
                        shoot.addPhoto(QStringLiteral("b.jpg"), kGreen, 2),
                        shoot.addPhoto(QStringLiteral("c.jpg"), kBlue, 3, QSize(10, 5)),
                        shoot.addPhoto(QStringLiteral("d.jpg"), kYellow, 4) });

    // Cells of 20 x 10: 2 x 24 + 4 by 2 x 14 + 4.
    QCOMPARE(shoot.driver.picture(),
             painted(QSize(52, 32), QSize(20, 10),
                     { { 0, 0, kRed, small },
                       { 1, 0, kGreen },
                       { 0, 1, kBlue, QSize(10, 5) },
                       { 1, 1, kYellow } }));
}

void TestUIWPGigapanPhotos::earliestThumbnailIsTheFirstOne()
{
    const ZoomedShoot shoot;
    const QSize small(40, 20);

    shoot.driver.load(kSelectPhotos,
                      { shoot.addPhoto(QStringLiteral("a.jpg"), kRed, 2),
                        shoot.addPhoto(QStringLiteral("b.jpg"), kGreen, 1, small) });

    QCOMPARE(shoot.driver.picture(),
             painted(QSize(52, 18), QSize(20, 10), { { 0, 0, kGreen, small }, { 0, 1, kRed } }));
}

void TestUIWPGigapanPhotos::missingThumbnailLeavesAnOutline_data()
{
    QTest::addColumn<int>("preview");
    QTest::newRow("no pixmap") << static_cast<int>(FakePhoto::Preview::NullPointer);
    QTest::newRow("pixmap without pixels") << static_cast<int>(FakePhoto::Preview::NullPixmap);
}

void TestUIWPGigapanPhotos::missingThumbnailLeavesAnOutline()
{
    QFETCH(int, preview);
    const ZoomedShoot shoot;
    FakePhoto photo;
    photo.preview = static_cast<FakePhoto::Preview>(preview);
    const auto without = [&](const char *name, long shotTime) {
        photo.shotTime = shotTime;
        return shoot.folder.addPhoto(QString::fromLatin1(name), photo);
    };

    // The first usable thumbnail decides the size.
    shoot.driver.load(kSelectPhotos,
                      { without("a.jpg", 1), without("b.jpg", 2),
                        shoot.addPhoto(QStringLiteral("c.jpg"), kBlue, 3), without("d.jpg", 4) });

    QCOMPARE(
        shoot.driver.picture(),
        painted(QSize(172, 132), kCell,
                { { 0, 0, QColor() }, { 1, 0, QColor() }, { 0, 1, kBlue }, { 1, 1, QColor() } }));
}

void TestUIWPGigapanPhotos::photosAppearAsTheyAreRead()
{
    Gate leave;
    const ZoomedShoot shoot;
    FakePhoto photo;
    photo.size = kThumbnail;
    photo.colour = kRed;
    QStringList photos = shoot.folder.addPhotos(10, photo);
    photo.leave = &leave;
    photo.colour = kGreen;
    photos.append(shoot.folder.addPhoto(QStringLiteral("Z1.jpg"), photo));
    photos.append(shoot.folder.addPhoto(QStringLiteral("Z2.jpg"), photo));
    const auto picture = [](int red, int green) {
        QVector<DrawnCell> cells;
        for (int cell = 0; cell < 12; ++cell) {
            const QColor colour = cell < red ? kRed : cell < red + green ? kGreen : QColor();
            cells.append({ cell % 3, cell / 3, colour });
        }
        return painted(QSize(340, 196), kCell, cells);
    };

    shoot.driver.chooseFiles(kSelectPhotos, photos);
    QTRY_COMPARE(shoot.driver.picture(), picture(10, 0));
    QVERIFY(!shoot.page.isComplete());
    leave.open(2);
    shoot.driver.waitUntilRead();

    QCOMPARE(shoot.driver.picture(), picture(10, 2));
    QVERIFY(shoot.page.isComplete());
}

void TestUIWPGigapanPhotos::unreadablePhotoMovesTheOthersUp()
{
    const ZoomedShoot shoot;
    FakePhoto broken;
    broken.reading = FakePhoto::Reading::Fails;

    shoot.driver.load(kSelectPhotos,
                      { shoot.addPhoto(QStringLiteral("a.jpg"), kRed, 1),
                        shoot.folder.addPhoto(QStringLiteral("b.jpg"), broken),
                        shoot.addPhoto(QStringLiteral("c.jpg"), kBlue, 3),
                        shoot.addPhoto(QStringLiteral("d.jpg"), kYellow, 4) });

    QCOMPARE(shoot.driver.picture(),
             painted(QSize(172, 132), kCell,
                     { { 0, 0, kRed }, { 1, 0, kBlue }, { 0, 1, kYellow }, { 1, 1, QColor() } }));
}

void TestUIWPGigapanPhotos::otherPhotosOfTheSameNumberAreDrawn()
{
    const ZoomedShoot shoot;
    shoot.loadPhotos(2);

    shoot.driver.load(kSelectPhotos,
                      { shoot.addPhoto(QStringLiteral("x.jpg"), kRed, 2, QSize(40, 20)),
                        shoot.addPhoto(QStringLiteral("y.jpg"), kBlue, 1, QSize(40, 20)) });

    QCOMPARE(shoot.driver.picture(),
             painted(QSize(52, 18), QSize(20, 10),
                     { { 0, 0, kBlue, QSize(40, 20) }, { 0, 1, kRed, QSize(40, 20) } }));
}

void TestUIWPGigapanPhotos::resetDuringReadingShowsTheFreshGrid()
{
    Gate enter;
    Gate leave;
    ZoomedShoot shoot;
    FakePhoto photo;
    photo.size = kThumbnail;
    QStringList photos = shoot.folder.addPhotos(11, photo);
    photo.enter = &enter;
    photo.leave = &leave;
    photos.append(shoot.folder.addPhoto(QStringLiteral("Z.jpg"), photo));
    shoot.driver.chooseFiles(kSelectPhotos, photos);
    enter.pass();
    QTRY_COMPARE(shoot.driver.picture().size(), QSize(340, 196));

    // The page waits for the photo in hand, so somebody else has to let it go.
    std::thread release([&leave] { leave.open(); });
    shoot.driver.click("m_pbReset");
    release.join();

    QCOMPARE(shoot.driver.picture(), outlines(QSize(264, 212), QSize(48, 48), 4, 5));
}

TEST_CLASS(TestUIWPGigapanPhotos, FakeApplication)
#include "tst_uiwpgigapan_photos.moc"
