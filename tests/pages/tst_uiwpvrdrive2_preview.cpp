// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/vrdrive2/uiwpvrdrive2.h"

#include "tests/support/fakeapplication.h"
#include "tests/support/gate.h"
#include "tests/support/pictureshoot.h"
#include "ui/xui.h"

#include <QtTest>

namespace
{

using Shoot = PictureShoot<UIWPVRDrive2>;

RecordXml::Shot shot(const char *yaw, const char *pitch)
{
    return { QString::fromLatin1(yaw), QString::fromLatin1(pitch) };
}

// Two columns 30 degrees apart, two rows 24 degrees apart, as a head sweeps them. The smallest step
// is 24, so the scale is 96 / 24 = 4 pixels per degree and the canvas (4 x 30 + 100) x (4 x 24 +
// 100). The cells' corners are at x = 50 + 4 yaw - 48 = 2 and 122, y = 50 + 4 (24 - pitch - 24) -
// 48 = 2 and 98.
QVector<RecordXml::Shot> twoByTwo()
{
    return { shot("0.0", "0.0"), shot("30.0", "0.0"), shot("30.0", "-24.0"), shot("0.0", "-24.0") };
}

} // namespace

class TestUIWPVRDrive2Preview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void recordAloneShowsOutlines();
    void pictureIsTheOneDescribed();
    void captionsUseSixSignificantDigits();
    void canvasFollowsTheSmallestStep_data();
    void canvasFollowsTheSmallestStep();
    void pictureIsZoomed_data();
    void pictureIsZoomed();
    void zoomingShowsNearestPixels();
    void backgroundIsTheWindowBrushOfTheCurrentGroup();

    void photosStandInReadingOrder();
    void thumbnailsFillTheirCells();
    void thumbnailsTurnWithTheRoll();
    void invertingTurnsThePictureOver();
    void cellWithoutThumbnailIsAnOutline_data();
    void cellWithoutThumbnailIsAnOutline();
    void photosBeyondTheShotsAreNotDrawn();

    void nothingIsShownWithoutShots();
    void anotherRecordOverTheSamePhotosIsDrawn();
    void pictureGrowsWithThePhotos();
    void restoringTheStateKeepsThePicture();
    void farPositionShrinksThePicture();
};

void TestUIWPVRDrive2Preview::init()
{
    fakeHost().forget();
    XUI::init(fakeHost().UIInstances());
}

void TestUIWPVRDrive2Preview::recordAloneShowsOutlines()
{
    const Shoot shoot;

    shoot.load(twoByTwo());

    // Unlike on the Papywizard page, which waits for the first photo.
    QCOMPARE(shoot.driver.picture(),
             painted(QSize(220, 196),
                     { { { 2, 2 }, QColor(), QStringLiteral("0 (0,0)") },
                       { { 122, 2 }, QColor(), QStringLiteral("1 (30,0)") },
                       { { 122, 98 }, QColor(), QStringLiteral("2 (30,-24)") },
                       { { 2, 98 }, QColor(), QStringLiteral("3 (0,-24)") } }));
}

void TestUIWPVRDrive2Preview::pictureIsTheOneDescribed()
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

void TestUIWPVRDrive2Preview::captionsUseSixSignificantDigits()
{
    const Shoot shoot;
    // One shot: span 0, a canvas of 100 x 100 with the cell at (2, 2).
    shoot.load({ shot("-123.456789", "7.5") });
    QCOMPARE(
        shoot.driver.picture(),
        painted(QSize(100, 100), { { { 2, 2 }, QColor(), QStringLiteral("0 (-123.457,7.5)") } }));
}

void TestUIWPVRDrive2Preview::canvasFollowsTheSmallestStep_data()
{
    QTest::addColumn<QVector<RecordXml::Shot>>("shots");
    QTest::addColumn<QSize>("canvas");
    const auto row = [](const char *name, const QVector<RecordXml::Shot> &shots, int width,
                        int height) { QTest::newRow(name) << shots << QSize(width, height); };
    row("one shot", { shot("10.0", "10.0") }, 100, 100);
    // step 30, scale 3.2: 60 x 3.2 + 100 = 292
    row("one row", { shot("0.0", "0.0"), shot("30.0", "0.0"), shot("60.0", "0.0") }, 292, 100);
    // step 20 (of the pitch), scale 4.8: 30 x 4.8 = 144, 20 x 4.8 = 96
    row("smaller pitch step", { shot("0.0", "0.0"), shot("30.0", "20.0") }, 244, 196);
    // step 5 counts as 8, scale 12: 5 x 12 = 60
    row("steps below 8 degrees", { shot("0.0", "0.0"), shot("5.0", "0.0") }, 160, 100);
    row("8 degrees exactly", { shot("0.0", "0.0"), shot("8.0", "0.0") }, 196, 100);
    row("fractions are cut off", { shot("0.0", "0.0"), shot("0.1", "0.0") }, 101, 100);
    // 0 to 40 and 40 to 10: step 30, span 40
    row("consecutive shots only", { shot("0.0", "0.0"), shot("40.0", "0.0"), shot("10.0", "0.0") },
        228, 100);
    // scale 96 / 360, span 720
    row("steps beyond a full turn", { shot("0.0", "0.0"), shot("720.0", "0.0") }, 292, 100);
    // scale 96 / 90: 90 and 180 degrees
    row("negative angles", { shot("-180.0", "-90.0"), shot("-90.0", "90.0") }, 196, 292);
}

void TestUIWPVRDrive2Preview::canvasFollowsTheSmallestStep()
{
    QFETCH(QVector<RecordXml::Shot>, shots);
    QFETCH(QSize, canvas);
    const Shoot shoot;
    shoot.load(shots);
    QCOMPARE(shoot.driver.picture().size(), canvas);
}

void TestUIWPVRDrive2Preview::pictureIsZoomed_data()
{
    QTest::addColumn<QString>("step"); // between two shots of one row
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QSize>("size");
    // 12 pixels per degree below 8 degrees: 4.17 x 12 + 100 = 150.04
    QTest::newRow("zoom 1 on 150 pixels") << QStringLiteral("4.17") << 1 << QSize(1, 1);
    QTest::newRow("zoom 33 on 150 pixels") << QStringLiteral("4.17") << 33 << QSize(49, 33);
    QTest::newRow("zoom 99 on 150 pixels") << QStringLiteral("4.17") << 99 << QSize(148, 99);
    QTest::newRow("zoom 100 on 150 pixels") << QStringLiteral("4.17") << 100 << QSize(150, 100);
    QTest::newRow("zoom 50 on 101 pixels") << QStringLiteral("0.1") << 50 << QSize(50, 50);
}

void TestUIWPVRDrive2Preview::pictureIsZoomed()
{
    QFETCH(QString, step);
    QFETCH(int, zoom);
    QFETCH(QSize, size);
    const Shoot shoot;
    shoot.load({ shot("0.0", "0.0"), { step, QStringLiteral("0.0") } });

    shoot.page.m_hSlider->setValue(zoom);

    QCOMPARE(shoot.driver.picture().size(), size);
}

void TestUIWPVRDrive2Preview::zoomingShowsNearestPixels()
{
    const Shoot shoot;
    shoot.load(twoByTwo(), shoot.fourPhotos());

    shoot.page.m_hSlider->setValue(50);

    const QImage picture = shoot.driver.picture();
    QCOMPARE(picture.size(), QSize(110, 98));
    QCOMPARE(picture.pixelColor(41, 41), kRed);
    QCOMPARE(picture.pixelColor(101, 41), kGreen);
    QCOMPARE(picture.pixelColor(101, 89), kBlue);
    QCOMPARE(picture.pixelColor(41, 89), kYellow);
    QCOMPARE(picture.pixelColor(55, 41), kBackground);
}

void TestUIWPVRDrive2Preview::backgroundIsTheWindowBrushOfTheCurrentGroup()
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

void TestUIWPVRDrive2Preview::photosStandInReadingOrder()
{
    const Shoot shoot;

    // Shot times, which order the other pages' previews, mean nothing here.
    shoot.load(twoByTwo(),
               { shoot.addPhoto("a.jpg", kRed, 4), shoot.addPhoto("b.jpg", kGreen, 3),
                 shoot.addPhoto("c.jpg", kBlue, 3), shoot.addPhoto("d.jpg", kYellow) });

    const QImage picture = shoot.driver.picture();
    QCOMPARE(cellColour(picture, QPoint(2, 2)), kRed);
    QCOMPARE(cellColour(picture, QPoint(122, 2)), kGreen);
    QCOMPARE(cellColour(picture, QPoint(122, 98)), kBlue);
    QCOMPARE(cellColour(picture, QPoint(2, 98)), kYellow);
}

void TestUIWPVRDrive2Preview::thumbnailsFillTheirCells()
{
    const Shoot shoot;
    FakePhoto photo;
    photo.preview = FakePhoto::Preview::TwoHalves;
    photo.colour = kRed;
    photo.rightColour = kBlue;
    photo.size = QSize(64, 16);

    shoot.load({ shot("0.0", "0.0") }, { shoot.folder.addPhoto(QStringLiteral("a.jpg"), photo) });

    // Stretched to 96 x 96 whatever its shape: the halves meet at x = 2 + 48.
    const QImage picture = shoot.driver.picture();
    QCOMPARE(picture.pixelColor(48, 40), kRed);
    QCOMPARE(picture.pixelColor(51, 40), kBlue);
    QCOMPARE(picture.pixelColor(10, 97), kRed);
    QCOMPARE(picture.pixelColor(97, 97), kBlue);
}

void TestUIWPVRDrive2Preview::thumbnailsTurnWithTheRoll()
{
    const Shoot shoot;
    FakePhoto photo;
    photo.preview = FakePhoto::Preview::TwoHalves;
    photo.colour = kRed;
    photo.rightColour = kBlue;
    photo.size = QSize(60, 20);
    shoot.load({ shot("0.0", "0.0") }, { shoot.folder.addPhoto(QStringLiteral("a.jpg"), photo) });

    // A quarter turn clockwise brings the left half to the top. Probes right of the cell's centre.
    shoot.driver.click("m_pbRot90");
    QCOMPARE(shoot.driver.picture().pixelColor(60, 30), kRed);
    QCOMPARE(shoot.driver.picture().pixelColor(60, 90), kBlue);
    shoot.driver.click("m_pbRot270");
    shoot.driver.click("m_pbRot270");
    QCOMPARE(shoot.driver.picture().pixelColor(60, 30), kBlue);
    QCOMPARE(shoot.driver.picture().pixelColor(60, 90), kRed);
    shoot.driver.click("m_pbRot270");
    QCOMPARE(shoot.driver.picture().pixelColor(10, 60), kBlue);
    QCOMPARE(shoot.driver.picture().pixelColor(90, 60), kRed);
}

void TestUIWPVRDrive2Preview::invertingTurnsThePictureOver()
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

void TestUIWPVRDrive2Preview::cellWithoutThumbnailIsAnOutline_data()
{
    QTest::addColumn<int>("preview");
    QTest::newRow("no pixmap") << static_cast<int>(FakePhoto::Preview::NullPointer);
    QTest::newRow("pixmap without pixels") << static_cast<int>(FakePhoto::Preview::NullPixmap);
}

void TestUIWPVRDrive2Preview::cellWithoutThumbnailIsAnOutline()
{
    QFETCH(int, preview);
    const Shoot shoot;
    FakePhoto photo;
    photo.preview = static_cast<FakePhoto::Preview>(preview);

    shoot.load({ shot("0.0", "0.0") }, { shoot.folder.addPhoto(QStringLiteral("a.jpg"), photo) });
    shoot.driver.click("m_pbRot90");

    QCOMPARE(shoot.driver.picture(),
             painted(QSize(100, 100), { { { 2, 2 }, QColor(), QStringLiteral("0 (0,0)") } }));
}

void TestUIWPVRDrive2Preview::photosBeyondTheShotsAreNotDrawn()
{
    const Shoot shoot;
    shoot.load({ shot("0.0", "0.0") }, shoot.fourPhotos());
    QCOMPARE(shoot.driver.picture().size(), QSize(100, 100));
    QCOMPARE(cellColour(shoot.driver.picture(), QPoint(2, 2)), kRed);
}

void TestUIWPVRDrive2Preview::nothingIsShownWithoutShots()
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

void TestUIWPVRDrive2Preview::anotherRecordOverTheSamePhotosIsDrawn()
{
    const Shoot shoot;
    shoot.load(twoByTwo(), shoot.fourPhotos());

    shoot.loadRecord(RecordXml::row(4));

    QCOMPARE(shoot.driver.picture().size(), QSize(388, 100)); // 90 x 3.2 + 100
    QCOMPARE(cellColour(shoot.driver.picture(), QPoint(2 + 3 * 96, 2)), kYellow);
}

void TestUIWPVRDrive2Preview::pictureGrowsWithThePhotos()
{
    const Shoot shoot;
    shoot.load(twoByTwo());
    Gate leave;
    FakePhoto held;
    held.colour = kGreen;
    held.leave = &leave;

    shoot.driver.chooseFiles(
        kSelectPhotos,
        { shoot.addPhoto("a.jpg", kRed), shoot.folder.addPhoto(QStringLiteral("b.jpg"), held) });
    leave.open();
    shoot.driver.waitUntilRead();

    const QImage picture = shoot.driver.picture();
    QCOMPARE(cellColour(picture, QPoint(2, 2)), kRed);
    QCOMPARE(cellColour(picture, QPoint(122, 2)), kGreen);
    QCOMPARE(cellColour(picture, QPoint(122, 98)), kBackground);

    // Fewer photos leave nothing of those before.
    shoot.driver.load(kSelectPhotos, { shoot.addPhoto("c.jpg", kBlue) });
    QCOMPARE(cellColour(shoot.driver.picture(), QPoint(2, 2)), kBlue);
    QCOMPARE(cellColour(shoot.driver.picture(), QPoint(122, 2)), kBackground);
}

void TestUIWPVRDrive2Preview::restoringTheStateKeepsThePicture()
{
    Shoot shoot;
    shoot.load(twoByTwo(), shoot.fourPhotos());
    const QImage before = shoot.driver.picture();
    shoot.page.RestoreState(QByteArray("anything"));
    QCOMPARE(shoot.driver.picture(), before);
}

void TestUIWPVRDrive2Preview::farPositionShrinksThePicture()
{
    const Shoot shoot;

    // As described the canvas would be 12 x 5000 + 100 = 60,100 pixels wide, twice what can be
    // painted: the whole picture shrinks, and the last cell is on it.
    shoot.load({ shot("0.0", "0.0"), shot("8.0", "0.0"), shot("5000.0", "0.0") },
               shoot.fourPhotos().mid(0, 3));

    const QImage picture = shoot.driver.picture();
    QVERIFY2(picture.width() <= 32'767 && picture.width() > 32'000,
             qPrintable(QString::number(picture.width())));
    QCOMPARE(picture.height(), 100);
    QCOMPARE(picture.pixelColor(picture.width() - 45, 60), kBlue);
}

FAKE_HOST_MAIN(FakeApplication, TestUIWPVRDrive2Preview)
#include "tst_uiwpvrdrive2_preview.moc"
