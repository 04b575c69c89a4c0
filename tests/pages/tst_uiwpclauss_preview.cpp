// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/clauss/uiwpclauss.h"

#include "tests/support/fakeapplication.h"
#include "tests/support/gate.h"
#include "tests/support/pictureshoot.h"
#include "ui/xui.h"

#include <QtTest>

namespace
{

struct Angles {
    int yaw; ///< degrees
    int pitch; ///< degrees
};

QByteArray scriptOf(const QVector<Angles> &shots)
{
    QByteArray script;
    for (const Angles &shot : shots) {
        script += "op_h-angle=" + QByteArray::number(shot.yaw)
            + "\nop_v-angle=" + QByteArray::number(shot.pitch) + "\nop_shoot\n";
    }
    return script;
}

/** A page at full zoom with scripts for it. */
struct Shoot : PictureShoot<UIWPClauss> {
    void load(const QVector<Angles> &shots, const QStringList &photos = {}) const
    {
        driver.load(kSelectRecord,
                    QStringList(photos)
                        << folder.write(QStringLiteral("script.txt"), scriptOf(shots)));
    }
};

// Two columns 30 degrees apart, two rows 24 degrees apart. The smallest step is 24, so the scale is
// 96 / 24 = 4 pixels per degree, the canvas (4 x 30 + 100) x (4 x 24 + 100), and the cells' corners
// are at x = 2 and 122, y = 2 and 98; the highest pitch is at the top.
QVector<Angles> twoByTwo()
{
    return { { 0, 0 }, { 30, 0 }, { 30, -24 }, { 0, -24 } };
}

} // namespace

Q_DECLARE_METATYPE(QVector<Angles>)

class TestUIWPClaussPreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void scriptAloneShowsOutlines();
    void pictureIsTheOneDescribed();
    void threeShotsInARowGiveTheirCanvas();
    void canvasFollowsTheSmallestStep_data();
    void canvasFollowsTheSmallestStep();
    void pictureIsZoomed_data();
    void pictureIsZoomed();
    void backgroundIsTheWindowBrushOfTheCurrentGroup();

    void photosAreOrderedByShotTime_data();
    void photosAreOrderedByShotTime();
    void thumbnailsFillTheirCells();
    void invertingTurnsThePictureOver();
    void cellWithoutThumbnailIsAnOutline_data();
    void cellWithoutThumbnailIsAnOutline();
    void photosBeyondTheShotsAreNotDrawn();

    void nothingIsShownWithoutShots();
    void failedScriptShowsNothingThoughPositionsAreLeft();
    void pictureGrowsWithThePhotos();
    void restoringTheStateKeepsThePicture();
    void farPositionShrinksThePicture_data();
    void farPositionShrinksThePicture();
};

void TestUIWPClaussPreview::init()
{
    fakeHost().forget();
    XUI::init(fakeHost().UIInstances());
}

void TestUIWPClaussPreview::scriptAloneShowsOutlines()
{
    const Shoot shoot;

    shoot.load(twoByTwo());

    QCOMPARE(shoot.driver.picture(),
             painted(QSize(220, 196),
                     { { { 2, 2 }, QColor(), QStringLiteral("0 (0,0)") },
                       { { 122, 2 }, QColor(), QStringLiteral("1 (30,0)") },
                       { { 122, 98 }, QColor(), QStringLiteral("2 (30,-24)") },
                       { { 2, 98 }, QColor(), QStringLiteral("3 (0,-24)") } }));
}

void TestUIWPClaussPreview::pictureIsTheOneDescribed()
{
    const Shoot shoot;
    QStringList photos = shoot.fourPhotos();
    photos.removeLast();

    shoot.load(twoByTwo(), photos);

    QCOMPARE(shoot.driver.picture(),
             painted(QSize(220, 196),
                     { { { 2, 2 }, kRed, QStringLiteral("0 (0,0)") },
                       { { 122, 2 }, kGreen, QStringLiteral("1 (30,0)") },
                       { { 122, 98 }, kBlue, QStringLiteral("2 (30,-24)") },
                       { { 2, 98 }, QColor(), QStringLiteral("3 (0,-24)") } }));
}

void TestUIWPClaussPreview::threeShotsInARowGiveTheirCanvas()
{
    const Shoot shoot;

    shoot.load({ { 0, 0 }, { 30, 0 }, { 60, 0 } }, shoot.fourPhotos().mid(0, 3));

    // 96 / 30 = 3.2 pixels per degree: 60 x 3.2 + 100
    const QImage picture = shoot.driver.picture();
    QCOMPARE(picture.size(), QSize(292, 100));
    QCOMPARE(cellColour(picture, QPoint(2, 2)), kRed);
    QCOMPARE(cellColour(picture, QPoint(98, 2)), kGreen);
    QCOMPARE(cellColour(picture, QPoint(194, 2)), kBlue);
    QCOMPARE(picture.pixelColor(1, 60), kBackground);
    QCOMPARE(picture.pixelColor(2, 60), kOutline);
    QCOMPARE(picture.pixelColor(290, 60), kOutline);
    QCOMPARE(picture.pixelColor(291, 60), kBackground);
}

void TestUIWPClaussPreview::canvasFollowsTheSmallestStep_data()
{
    QTest::addColumn<QVector<Angles>>("shots");
    QTest::addColumn<QSize>("canvas");
    const auto add = [](const char *name, const QVector<Angles> &shots, int width, int height) {
        QTest::newRow(name) << shots << QSize(width, height);
    };
    add("one shot", { { 10, 10 } }, 100, 100);
    add("smaller pitch step", { { 0, 0 }, { 30, 20 } }, 244, 196); // 4.8: 144 and 96
    // Unlike on the other pages no smallest step: 96 pixels per degree.
    add("one degree", { { 0, 0 }, { 1, 0 }, { 3, 0 } }, 388, 100);
    add("five degrees", { { 0, 0 }, { 5, 0 } }, 196, 100);
    add("the same twice is no step", { { 0, 0 }, { 0, 0 }, { 30, 0 } }, 196, 100);
    add("consecutive shots only", { { 0, 0 }, { 40, 0 }, { 10, 0 } }, 228, 100);
    add("steps beyond a full turn", { { 0, 0 }, { 720, 0 } }, 292, 100); // 96 / 360 x 720
    add("negative angles", { { -180, -90 }, { -90, 90 } }, 196, 292);
}

void TestUIWPClaussPreview::canvasFollowsTheSmallestStep()
{
    QFETCH(QVector<Angles>, shots);
    QFETCH(QSize, canvas);
    const Shoot shoot;
    shoot.load(shots);
    QCOMPARE(shoot.driver.picture().size(), canvas);
}

void TestUIWPClaussPreview::pictureIsZoomed_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QSize>("size"); // of a canvas of 220 x 196
    QTest::newRow("100") << 100 << QSize(220, 196);
    QTest::newRow("50, as on a fresh page") << 50 << QSize(110, 98);
    QTest::newRow("33: 72.6 and 64.68") << 33 << QSize(72, 64);
    QTest::newRow("1: 2.2 and 1.96") << 1 << QSize(2, 1);
}

void TestUIWPClaussPreview::pictureIsZoomed()
{
    QFETCH(int, zoom);
    QFETCH(QSize, size);
    const Shoot shoot;
    shoot.load(twoByTwo(), shoot.fourPhotos());

    shoot.page.m_hSlider->setValue(zoom);

    const QImage picture = shoot.driver.picture();
    QCOMPARE(picture.size(), size);
    if (zoom == 50) { // nearest pixels
        QCOMPARE(picture.pixelColor(41, 41), kRed);
        QCOMPARE(picture.pixelColor(41, 89), kYellow);
        QCOMPARE(picture.pixelColor(55, 41), kBackground);
    }
}

void TestUIWPClaussPreview::backgroundIsTheWindowBrushOfTheCurrentGroup()
{
    Shoot shoot;
    QPalette palette = shoot.page.palette();
    palette.setColor(QPalette::Disabled, QPalette::Window, kYellow);
    shoot.page.setPalette(palette);
    shoot.load(twoByTwo());
    QCOMPARE(shoot.driver.picture().pixelColor(1, 1), kBackground);

    shoot.page.setEnabled(false);
    shoot.page.m_hSlider->setValue(99);

    QCOMPARE(shoot.driver.picture().pixelColor(1, 1), kYellow);
}

void TestUIWPClaussPreview::photosAreOrderedByShotTime_data()
{
    QTest::addColumn<QVector<long>>("times"); // of the red, green, blue and yellow photo, as read
    QTest::addColumn<QVector<QColor>>("order"); // of the cells
    const QVector<QColor> asRead{ kRed, kGreen, kBlue, kYellow };
    QTest::newRow("as read") << QVector<long>{ 1, 2, 3, 4 } << asRead;
    QTest::newRow("backwards") << QVector<long>{ 4, 3, 2, 1 }
                               << QVector<QColor>{ kYellow, kBlue, kGreen, kRed };
    QTest::newRow("mixed, negative, beyond 32 bits")
        << QVector<long>{ 7'000'000'000, -1, 7'000'000'001, 5 }
        << QVector<QColor>{ kGreen, kYellow, kRed, kBlue };
    // Two equal times, and the whole list falls back to the order of reading.
    QTest::newRow("two equal times") << QVector<long>{ 5, 4, 4, 1 } << asRead;
    QTest::newRow("two equal times apart") << QVector<long>{ 5, 4, 1, 5 } << asRead;
    QTest::newRow("all equal") << QVector<long>{ 0, 0, 0, 0 } << asRead;
}

void TestUIWPClaussPreview::photosAreOrderedByShotTime()
{
    QFETCH(QVector<long>, times);
    QFETCH(QVector<QColor>, order);
    const Shoot shoot;

    shoot.load(twoByTwo(),
               { shoot.addPhoto("a.jpg", kRed, times[0]), shoot.addPhoto("b.jpg", kGreen, times[1]),
                 shoot.addPhoto("c.jpg", kBlue, times[2]),
                 shoot.addPhoto("d.jpg", kYellow, times[3]) });

    const QImage picture = shoot.driver.picture();
    QCOMPARE(cellColour(picture, QPoint(2, 2)), order[0]);
    QCOMPARE(cellColour(picture, QPoint(122, 2)), order[1]);
    QCOMPARE(cellColour(picture, QPoint(122, 98)), order[2]);
    QCOMPARE(cellColour(picture, QPoint(2, 98)), order[3]);
}

void TestUIWPClaussPreview::thumbnailsFillTheirCells()
{
    const Shoot shoot;
    FakePhoto photo;
    photo.preview = FakePhoto::Preview::TwoHalves;
    photo.colour = kRed;
    photo.rightColour = kBlue;
    photo.size = QSize(64, 16);

    shoot.load({ { 0, 0 } }, { shoot.folder.addPhoto(QStringLiteral("a.jpg"), photo) });

    // Stretched to 96 x 96 whatever its shape: the halves meet at x = 2 + 48.
    const QImage picture = shoot.driver.picture();
    QCOMPARE(picture.pixelColor(48, 40), kRed);
    QCOMPARE(picture.pixelColor(51, 40), kBlue);
    QCOMPARE(picture.pixelColor(10, 97), kRed);
    QCOMPARE(picture.pixelColor(97, 97), kBlue);
}

void TestUIWPClaussPreview::invertingTurnsThePictureOver()
{
    const Shoot shoot;
    shoot.load(twoByTwo(), shoot.fourPhotos());

    shoot.driver.click("m_pInverseCoordinates");

    const QImage picture = shoot.driver.picture();
    QCOMPARE(picture.size(), QSize(220, 196));
    QCOMPARE(cellColour(picture, QPoint(2, 98)), kRed);
    QCOMPARE(cellColour(picture, QPoint(122, 98)), kGreen);
    QCOMPARE(cellColour(picture, QPoint(122, 2)), kBlue);
    QCOMPARE(cellColour(picture, QPoint(2, 2)), kYellow);
}

void TestUIWPClaussPreview::cellWithoutThumbnailIsAnOutline_data()
{
    QTest::addColumn<int>("preview");
    QTest::newRow("no pixmap") << static_cast<int>(FakePhoto::Preview::NullPointer);
    QTest::newRow("pixmap without pixels") << static_cast<int>(FakePhoto::Preview::NullPixmap);
}

void TestUIWPClaussPreview::cellWithoutThumbnailIsAnOutline()
{
    QFETCH(int, preview);
    const Shoot shoot;
    FakePhoto photo;
    photo.preview = static_cast<FakePhoto::Preview>(preview);

    shoot.load({ { 0, 0 } }, { shoot.folder.addPhoto(QStringLiteral("a.jpg"), photo) });

    QCOMPARE(shoot.driver.picture(),
             painted(QSize(100, 100), { { { 2, 2 }, QColor(), QStringLiteral("0 (0,0)") } }));
}

void TestUIWPClaussPreview::photosBeyondTheShotsAreNotDrawn()
{
    const Shoot shoot;
    shoot.load({ { 0, 0 } }, shoot.fourPhotos());
    QCOMPARE(shoot.driver.picture().size(), QSize(100, 100));
    QCOMPARE(cellColour(shoot.driver.picture(), QPoint(2, 2)), kRed);
}

void TestUIWPClaussPreview::nothingIsShownWithoutShots()
{
    const Shoot shoot;

    shoot.driver.load(kSelectPhotos, shoot.fourPhotos());
    QVERIFY(shoot.driver.picture().isNull());
    shoot.load({});
    QVERIFY(shoot.driver.picture().isNull());
    shoot.page.m_hSlider->setValue(20);
    QVERIFY(shoot.driver.picture().isNull());

    // A picture goes when the shots go.
    shoot.load(twoByTwo());
    QVERIFY(!shoot.driver.picture().isNull());
    shoot.load({});
    QVERIFY(shoot.driver.picture().isNull());
}

void TestUIWPClaussPreview::failedScriptShowsNothingThoughPositionsAreLeft()
{
    const Shoot shoot;
    shoot.load(twoByTwo(), shoot.fourPhotos());
    QVERIFY(!shoot.driver.picture().isNull());
    DialogClicker clicker;
    clicker.chooseFiles(
        { shoot.folder.write(QStringLiteral("bad.txt"), "op_shoot\nop_h-angle=nan\nop_shoot\n") });
    clicker.pressButton(QMessageBox::Ok);

    shoot.driver.click(kSelectRecord);

    QVERIFY(clicker.isSettled());
    QCOMPARE(shoot.page.shots.size(), 2);
    QVERIFY(shoot.driver.picture().isNull());
    shoot.page.m_hSlider->setValue(20);
    QVERIFY(shoot.driver.picture().isNull());
}

void TestUIWPClaussPreview::pictureGrowsWithThePhotos()
{
    const Shoot shoot;
    shoot.load(twoByTwo());
    Gate leave;
    FakePhoto held;
    held.colour = kGreen;
    held.shotTime = 1;
    held.leave = &leave;

    shoot.driver.chooseFiles(
        kSelectPhotos,
        { shoot.addPhoto("a.jpg", kRed, 2), shoot.folder.addPhoto(QStringLiteral("b.jpg"), held) });
    leave.open();
    shoot.driver.waitUntilRead();

    // The one that came later was taken earlier.
    const QImage picture = shoot.driver.picture();
    QCOMPARE(cellColour(picture, QPoint(2, 2)), kGreen);
    QCOMPARE(cellColour(picture, QPoint(122, 2)), kRed);
    QCOMPARE(cellColour(picture, QPoint(122, 98)), kBackground);

    // Fewer photos leave nothing of those before.
    shoot.driver.load(kSelectPhotos, { shoot.addPhoto("c.jpg", kBlue) });
    QCOMPARE(cellColour(shoot.driver.picture(), QPoint(2, 2)), kBlue);
    QCOMPARE(cellColour(shoot.driver.picture(), QPoint(122, 2)), kBackground);
}

void TestUIWPClaussPreview::restoringTheStateKeepsThePicture()
{
    Shoot shoot;
    shoot.load(twoByTwo(), shoot.fourPhotos());
    const QImage before = shoot.driver.picture();
    shoot.page.RestoreState(QByteArray("anything"));
    QCOMPARE(shoot.driver.picture(), before);
}

void TestUIWPClaussPreview::farPositionShrinksThePicture_data()
{
    QTest::addColumn<QVector<Angles>>("shots");
    // As described 96 pixels per degree: 96 x 5000 wide; 34,560 x 17,280, which is 2.4 GB.
    QTest::newRow("one degree and far away") << QVector<Angles>{ { 0, 0 }, { 1, 0 }, { 5000, 0 } };
    QTest::newRow("the whole sphere in whole degrees")
        << QVector<Angles>{ { 0, -90 }, { 1, -90 }, { 360, 90 } };
    QTest::newRow("as far as numbers go")
        << QVector<Angles>{ { 0, 0 }, { 1, 0 }, { 2147483647, -2147483647 } };
}

void TestUIWPClaussPreview::farPositionShrinksThePicture()
{
    QFETCH(QVector<Angles>, shots);
    const Shoot shoot;
    shoot.page.m_hSlider->setValue(1); // the label needs no copy of the same size

    shoot.load(shots);

    const QSize hundredth = shoot.driver.picture().size();
    QVERIFY(!hundredth.isEmpty());
    QVERIFY(hundredth.width() <= 327 && hundredth.height() <= 327);
    QVERIFY(qint64{ 4 } * hundredth.width() * hundredth.height() * 10'000 <= 268'435'456);
}

FAKE_HOST_MAIN(FakeApplication, TestUIWPClaussPreview)
#include "tst_uiwpclauss_preview.moc"
