// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/uiwpmerlin.h"

#include "tests/support/fakeapplication.h"
#include "tests/support/gate.h"
#include "tests/support/pictureshoot.h"
#include "ui/xui.h"

#include <QtTest>

namespace
{

using Shoot = PictureShoot<UIWPMerlin>;

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

class TestUIWPMerlinPreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void cellsStandWhereTheAnglesSay();
    void pictureIsTheOneDescribed();
    void captionsUseSixSignificantDigits();
    void canvasFollowsTheSmallestStep_data();
    void canvasFollowsTheSmallestStep();
    void pictureIsZoomed_data();
    void pictureIsZoomed();
    void zoomingRedraws();
    void backgroundIsTheWindowBrushOfTheCurrentGroup();

    void photosAreOrderedByShotTime_data();
    void photosAreOrderedByShotTime();
    void thumbnailsFillTheirCells();
    void thumbnailsTurnWithTheRoll_data();
    void thumbnailsTurnWithTheRoll();
    void invertingTurnsThePictureOver();
    void cellWithoutPhotoIsAnOutline();
    void cellWithoutThumbnailIsAnOutline_data();
    void cellWithoutThumbnailIsAnOutline();
    void photosBeyondTheShotsAreNotDrawn();

    void nothingIsShownWithoutShots();
    void nothingIsDrawnBeforeTheFirstPhoto();
    void sameNumberOfImagesKeepsThePicture();
    void restoringTheStateKeepsThePicture();
    void enteringThePageAllowsARedraw();
    void pictureGrowsWithThePhotos();
    void farPositionShrinksThePicture();
};

void TestUIWPMerlinPreview::init()
{
    fakeHost().forget();
    XUI::init(fakeHost().UIInstances());
}

void TestUIWPMerlinPreview::cellsStandWhereTheAnglesSay()
{
    const Shoot shoot;
    shoot.load(twoByTwo(), shoot.fourPhotos());

    const QImage picture = shoot.driver.picture();

    QCOMPARE(picture.size(), QSize(220, 196));
    QCOMPARE(cellColour(picture, QPoint(2, 2)), kRed);
    QCOMPARE(cellColour(picture, QPoint(122, 2)), kGreen);
    QCOMPARE(cellColour(picture, QPoint(122, 98)), kBlue);
    QCOMPARE(cellColour(picture, QPoint(2, 98)), kYellow);
    // Around the first cell: margin, outline, photo, outline, gap.
    QCOMPARE(picture.pixelColor(1, 60), kBackground);
    QCOMPARE(picture.pixelColor(2, 60), kOutline);
    QCOMPARE(picture.pixelColor(3, 60), kRed);
    QCOMPARE(picture.pixelColor(97, 60), kRed);
    QCOMPARE(picture.pixelColor(98, 60), kOutline);
    QCOMPARE(picture.pixelColor(99, 60), kBackground);
    QCOMPARE(picture.pixelColor(121, 60), kBackground);
    QCOMPARE(picture.pixelColor(122, 60), kOutline);
    QCOMPARE(picture.pixelColor(60, 1), kBackground);
    QCOMPARE(picture.pixelColor(60, 97), kRed);
    QCOMPARE(picture.pixelColor(60, 98), kOutline);
    QCOMPARE(picture.pixelColor(219, 195), kBackground);
}

void TestUIWPMerlinPreview::pictureIsTheOneDescribed()
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

void TestUIWPMerlinPreview::captionsUseSixSignificantDigits()
{
    const Shoot shoot;
    // One shot: span 0, a canvas of 100 x 100 with the cell at (2, 2).
    shoot.load({ shot("-123.456789", "7.5") }, { shoot.addPhoto("a.jpg", kRed) });

    QCOMPARE(shoot.driver.picture(),
             painted(QSize(100, 100), { { { 2, 2 }, kRed, QStringLiteral("0 (-123.457,7.5)") } }));
}

void TestUIWPMerlinPreview::canvasFollowsTheSmallestStep_data()
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
    // step 0.1 counts as 8: 0.1 x 12 = 1.2, cut off
    row("fractions are cut off", { shot("0.0", "0.0"), shot("0.1", "0.0") }, 101, 100);
    // only consecutive shots are compared: 0 to 40 and 40 to 10 give 30, scale 3.2, span 40
    row("consecutive shots only", { shot("0.0", "0.0"), shot("40.0", "0.0"), shot("10.0", "0.0") },
        228, 100);
    // equal angles are no step; 720 does not lower 360: scale 96 / 360, span 720: 192 + 100
    row("steps beyond a full turn", { shot("0.0", "0.0"), shot("720.0", "0.0") }, 292, 100);
    // scale 96 / 90: 90 and 180 degrees
    row("negative angles", { shot("-180.0", "-90.0"), shot("-90.0", "90.0") }, 196, 292);
}

void TestUIWPMerlinPreview::canvasFollowsTheSmallestStep()
{
    QFETCH(QVector<RecordXml::Shot>, shots);
    QFETCH(QSize, canvas);
    const Shoot shoot;

    shoot.load(shots, { shoot.addPhoto("a.jpg", kRed) });

    QCOMPARE(shoot.driver.picture().size(), canvas);
}

void TestUIWPMerlinPreview::pictureIsZoomed_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QSize>("size"); // of a canvas of 220 x 196
    QTest::newRow("100") << 100 << QSize(220, 196);
    QTest::newRow("50, as on a fresh page") << 50 << QSize(110, 98);
    QTest::newRow("33: 72.6 and 64.68") << 33 << QSize(72, 64);
    QTest::newRow("99: 217.8 and 194.04") << 99 << QSize(217, 194);
    QTest::newRow("1: 2.2 and 1.96") << 1 << QSize(2, 1);
}

void TestUIWPMerlinPreview::pictureIsZoomed()
{
    QFETCH(int, zoom);
    QFETCH(QSize, size);
    const Shoot shoot;
    shoot.page.m_hSlider->setValue(zoom);

    shoot.load(twoByTwo(), shoot.fourPhotos());

    QCOMPARE(shoot.driver.picture().size(), size);
}

void TestUIWPMerlinPreview::zoomingRedraws()
{
    const Shoot shoot;
    shoot.load(twoByTwo(), shoot.fourPhotos());

    shoot.page.m_hSlider->setValue(50);

    // Nearest pixels: every other one of the canvas.
    const QImage picture = shoot.driver.picture();
    QCOMPARE(picture.size(), QSize(110, 98));
    QCOMPARE(picture.pixelColor(41, 41), kRed);
    QCOMPARE(picture.pixelColor(101, 41), kGreen);
    QCOMPARE(picture.pixelColor(101, 89), kBlue);
    QCOMPARE(picture.pixelColor(41, 89), kYellow);
    QCOMPARE(picture.pixelColor(55, 41), kBackground);
}

void TestUIWPMerlinPreview::backgroundIsTheWindowBrushOfTheCurrentGroup()
{
    const Shoot shoot;
    UIWPMerlin &page = const_cast<UIWPMerlin &>(shoot.page);
    QPalette palette = page.palette();
    palette.setColor(QPalette::Disabled, QPalette::Window, kYellow);
    page.setPalette(palette);
    shoot.load(twoByTwo(), shoot.fourPhotos());
    QCOMPARE(shoot.driver.picture().pixelColor(1, 1), kBackground);

    page.setEnabled(false);
    page.m_hSlider->setValue(99);

    QCOMPARE(shoot.driver.picture().pixelColor(1, 1), kYellow);
}

void TestUIWPMerlinPreview::photosAreOrderedByShotTime_data()
{
    QTest::addColumn<QVector<long>>("times"); // of the red, green, blue and yellow photo, as read
    QTest::addColumn<QVector<QColor>>("order"); // of the cells
    QTest::newRow("as read") << QVector<long>{ 1, 2, 3, 4 }
                             << QVector<QColor>{ kRed, kGreen, kBlue, kYellow };
    QTest::newRow("backwards") << QVector<long>{ 4, 3, 2, 1 }
                               << QVector<QColor>{ kYellow, kBlue, kGreen, kRed };
    QTest::newRow("mixed, negative, beyond 32 bits")
        << QVector<long>{ 7'000'000'000, -1, 7'000'000'001, 5 }
        << QVector<QColor>{ kGreen, kYellow, kRed, kBlue };
    QTest::newRow("equal times keep the reading order")
        << QVector<long>{ 5, 5, 5, 1 } << QVector<QColor>{ kYellow, kRed, kGreen, kBlue };
    QTest::newRow("all equal") << QVector<long>{ 0, 0, 0, 0 }
                               << QVector<QColor>{ kRed, kGreen, kBlue, kYellow };
}

void TestUIWPMerlinPreview::photosAreOrderedByShotTime()
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

void TestUIWPMerlinPreview::thumbnailsFillTheirCells()
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

void TestUIWPMerlinPreview::thumbnailsTurnWithTheRoll_data()
{
    QTest::addColumn<QStringList>("clicks");
    QTest::addColumn<QColor>("left");
    QTest::addColumn<QColor>("right");
    QTest::addColumn<QColor>("top");
    QTest::addColumn<QColor>("bottom"); // of a photo that is red | blue
    const QString right = QStringLiteral("m_pbRot90");
    const QString left = QStringLiteral("m_pbRot270");
    QTest::newRow("0") << QStringList() << kRed << kBlue << kBlue << kBlue;
    QTest::newRow("90") << QStringList{ right } << kBlue << kBlue << kRed << kBlue;
    QTest::newRow("-90") << QStringList{ left } << kRed << kRed << kBlue << kRed;
    QTest::newRow("180") << QStringList{ right, right } << kBlue << kRed << kRed << kRed;
    QTest::newRow("90 - 90") << QStringList{ right, left } << kRed << kBlue << kBlue << kBlue;
    QTest::newRow("360") << QStringList{ right, right, right, right } << kRed << kBlue << kBlue
                         << kBlue;
}

void TestUIWPMerlinPreview::thumbnailsTurnWithTheRoll()
{
    QFETCH(QStringList, clicks);
    QFETCH(QColor, left);
    QFETCH(QColor, right);
    QFETCH(QColor, top);
    QFETCH(QColor, bottom);
    const Shoot shoot;
    FakePhoto photo;
    photo.preview = FakePhoto::Preview::TwoHalves;
    photo.colour = kRed;
    photo.rightColour = kBlue;
    photo.size = QSize(60, 20);
    shoot.load({ shot("0.0", "0.0") }, { shoot.folder.addPhoto(QStringLiteral("a.jpg"), photo) });

    for (const QString &button : qAsConst(clicks)) {
        shoot.driver.click(button.toLatin1().constData());
    }

    // The cell is (2, 2) to (98, 98), its centre (50, 50). The outer probes lie below it, the upper
    // and lower ones right of it. A quarter turn clockwise brings the left half to the top.
    const QImage picture = shoot.driver.picture();
    QCOMPARE(picture.size(), QSize(100, 100));
    QCOMPARE(picture.pixelColor(10, 60), left);
    QCOMPARE(picture.pixelColor(90, 60), right);
    QCOMPARE(picture.pixelColor(60, 30), top);
    QCOMPARE(picture.pixelColor(60, 90), bottom);
}

void TestUIWPMerlinPreview::invertingTurnsThePictureOver()
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

void TestUIWPMerlinPreview::cellWithoutPhotoIsAnOutline()
{
    const Shoot shoot;

    shoot.load(twoByTwo(), { shoot.addPhoto("a.jpg", kRed) });

    const QImage picture = shoot.driver.picture();
    QCOMPARE(cellColour(picture, QPoint(2, 2)), kRed);
    QCOMPARE(cellColour(picture, QPoint(122, 98)), kBackground);
    QCOMPARE(picture.pixelColor(122, 150), kOutline);
    QCOMPARE(picture.pixelColor(218, 150), kOutline);
    QCOMPARE(picture.pixelColor(150, 194), kOutline);
}

void TestUIWPMerlinPreview::cellWithoutThumbnailIsAnOutline_data()
{
    QTest::addColumn<int>("preview");
    QTest::newRow("no pixmap") << static_cast<int>(FakePhoto::Preview::NullPointer);
    QTest::newRow("pixmap without pixels") << static_cast<int>(FakePhoto::Preview::NullPixmap);
}

void TestUIWPMerlinPreview::cellWithoutThumbnailIsAnOutline()
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

void TestUIWPMerlinPreview::photosBeyondTheShotsAreNotDrawn()
{
    const Shoot shoot;

    shoot.load({ shot("0.0", "0.0") }, shoot.fourPhotos());

    const QImage picture = shoot.driver.picture();
    QCOMPARE(picture.size(), QSize(100, 100));
    QCOMPARE(cellColour(picture, QPoint(2, 2)), kRed);
}

void TestUIWPMerlinPreview::nothingIsShownWithoutShots()
{
    const Shoot shoot;

    shoot.driver.load(kSelectPhotos, shoot.fourPhotos());
    QVERIFY(shoot.driver.picture().isNull());

    shoot.page.m_hSlider->setValue(20);
    QVERIFY(shoot.driver.picture().isNull());
}

void TestUIWPMerlinPreview::nothingIsDrawnBeforeTheFirstPhoto()
{
    const Shoot shoot;

    shoot.load(twoByTwo());

    // No photos before and none now: the same number.
    QVERIFY(shoot.driver.picture().isNull());
}

void TestUIWPMerlinPreview::sameNumberOfImagesKeepsThePicture()
{
    const Shoot shoot;
    shoot.load(twoByTwo(), shoot.fourPhotos());
    const QImage before = shoot.driver.picture();
    const QString wide = shoot.folder.write(QStringLiteral("wide.xml"), RecordXml::row(4).bytes());

    // Another record over the same photos: their number has not changed, so the picture stays.
    shoot.driver.load(kSelectRecord, { wide });
    QCOMPARE(shoot.driver.text("m_lbThetaMinMax"), QStringLiteral("0,90"));
    QCOMPARE(shoot.driver.picture(), before);

    // What empties the list first redraws: 90 x 3.2 + 100 = 388.
    shoot.driver.click("m_pbRot90");
    QCOMPARE(shoot.driver.picture().size(), QSize(388, 100));
}

void TestUIWPMerlinPreview::restoringTheStateKeepsThePicture()
{
    Shoot shoot;
    shoot.load(twoByTwo(), shoot.fourPhotos());
    const QImage before = shoot.driver.picture();

    shoot.page.RestoreState(QByteArray("anything"));

    QCOMPARE(shoot.driver.picture(), before);
}

void TestUIWPMerlinPreview::enteringThePageAllowsARedraw()
{
    Shoot shoot;
    shoot.load(twoByTwo(), shoot.fourPhotos());
    const QImage before = shoot.driver.picture();

    shoot.page.initializePage();
    QCOMPARE(shoot.driver.picture(), before);
    shoot.page.shots.resize(1);
    shoot.page.UpdatePreview();
    QVERIFY(shoot.driver.picture() != before);
}

void TestUIWPMerlinPreview::pictureGrowsWithThePhotos()
{
    const Shoot shoot;
    RecordXml record = RecordXml::row(12);
    shoot.load(record.shots);
    Gate leave;
    FakePhoto held;
    held.colour = kGreen;
    held.shotTime = 100;
    held.leave = &leave;
    FakePhoto plain;
    plain.colour = kRed;
    QStringList photos = shoot.folder.addPhotos(10, plain);
    photos.append(shoot.folder.addPhoto(QStringLiteral("Z1.jpg"), held));
    photos.append(shoot.folder.addPhoto(QStringLiteral("Z2.jpg"), held));

    shoot.driver.chooseFiles(kSelectPhotos, photos);
    // Ten are there, two are held back: their cells are outlines.
    QTRY_VERIFY(!shoot.driver.picture().isNull());
    const QImage ten = shoot.driver.picture();
    QCOMPARE(cellColour(ten, QPoint(2 + 9 * 96, 2)), kRed);
    QCOMPARE(cellColour(ten, QPoint(2 + 10 * 96, 2)), kBackground);
    leave.open(2);
    shoot.driver.waitUntilRead();

    const QImage twelve = shoot.driver.picture();
    QCOMPARE(cellColour(twelve, QPoint(2 + 10 * 96, 2)), kGreen);
    QCOMPARE(cellColour(twelve, QPoint(2 + 11 * 96, 2)), kGreen);
}

void TestUIWPMerlinPreview::farPositionShrinksThePicture()
{
    const Shoot shoot;

    // As described the canvas would be 12 x 5000 + 100 = 60,100 pixels wide, twice what can be
    // painted: the whole picture shrinks, and the last cell is on it.
    shoot.load({ shot("0.0", "0.0"), shot("8.0", "0.0"), shot("5000.0", "0.0") },
               { shoot.addPhoto("a.jpg", kRed, 1), shoot.addPhoto("b.jpg", kGreen, 2),
                 shoot.addPhoto("c.jpg", kBlue, 3) });

    const QImage picture = shoot.driver.picture();
    QVERIFY2(picture.width() <= 32'767 && picture.width() > 32'000,
             qPrintable(QString::number(picture.width())));
    QCOMPARE(picture.height(), 100);
    QCOMPARE(picture.pixelColor(picture.width() - 45, 60), kBlue);
}

FAKE_HOST_MAIN(FakeApplication, TestUIWPMerlinPreview)
#include "tst_uiwpmerlin_preview.moc"
