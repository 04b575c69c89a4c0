// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/fakeapplication.h"
#include "tests/support/gate.h"
#include "tests/support/pictureshoot.h"
#include "ui/xui.h"

#include <QtTest>

namespace
{

const QVector<QColor> kAsRead{ kRed, kGreen, kBlue, kYellow };

/** A photo whose left half is red and whose right half is blue. */
FakePhoto redAndBlue(const QSize &size)
{
    FakePhoto photo;
    photo.preview = FakePhoto::Preview::TwoHalves;
    photo.colour = kRed;
    photo.rightColour = kBlue;
    photo.size = size;
    return photo;
}

/** What the page needs beside a record to draw it. */
QStringList neededPhotos(const PictureShoot &shoot)
{
    return shoot.head.drawsWithoutPhotos ? QStringList()
                                         : QStringList{ shoot.addPhoto("a.jpg", kRed) };
}

} // namespace

Q_DECLARE_METATYPE(FakePhoto::Preview)

/** The previews of the pages that know the angles of their shots. */
class TestShotPreviews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void cellsStandWhereTheAnglesSay_data() { addHeads(headsWithRecords()); }
    void cellsStandWhereTheAnglesSay();
    void pictureIsTheOneDescribed_data() { addHeads(headsWithRecords()); }
    void pictureIsTheOneDescribed();
    void recordAloneShowsOutlines_data() { addHeads(headsThatDrawWithoutPhotos()); }
    void recordAloneShowsOutlines();
    void captionsUseSixSignificantDigits_data() { addHeads(headsWithFractions()); }
    void captionsUseSixSignificantDigits();
    void threeShotsInARowGiveTheirCanvas_data() { addHeads(headsWithRecords()); }
    void threeShotsInARowGiveTheirCanvas();
    void canvasFollowsTheSmallestStep_data();
    void canvasFollowsTheSmallestStep();
    void pictureIsZoomed_data();
    void pictureIsZoomed();
    void zoomingShowsNearestPixels_data() { addHeads(headsWithRecords()); }
    void zoomingShowsNearestPixels();
    void backgroundIsTheWindowBrushOfTheCurrentGroup_data() { addHeads(headsWithRecords()); }
    void backgroundIsTheWindowBrushOfTheCurrentGroup();

    void photosStandInTheirOrder_data();
    void photosStandInTheirOrder();
    void thumbnailsFillTheirCells_data() { addHeads(headsWithRecords()); }
    void thumbnailsFillTheirCells();
    void thumbnailsTurnWithTheRoll_data();
    void thumbnailsTurnWithTheRoll();
    void invertingTurnsThePictureOver_data() { addHeads(headsWithRecords()); }
    void invertingTurnsThePictureOver();
    void cellWithoutPhotoIsAnOutline_data() { addHeads(headsWithRecords()); }
    void cellWithoutPhotoIsAnOutline();
    void cellWithoutThumbnailIsAnOutline_data();
    void cellWithoutThumbnailIsAnOutline();
    void photosBeyondTheShotsAreNotDrawn_data() { addHeads(headsWithRecords()); }
    void photosBeyondTheShotsAreNotDrawn();

    void nothingIsShownWithoutShots_data() { addHeads(headsWithRecords()); }
    void nothingIsShownWithoutShots();
    void pictureGoesWhenTheShotsGo_data() { addHeads(headsThatDrawWithoutPhotos()); }
    void pictureGoesWhenTheShotsGo();
    void anotherRecordOverTheSamePhotosIsDrawn_data() { addHeads(headsThatDrawWithoutPhotos()); }
    void anotherRecordOverTheSamePhotosIsDrawn();
    void pictureGrowsWithThePhotos_data();
    void pictureGrowsWithThePhotos();
    void farPositionShrinksThePicture_data() { addHeads(headsWithSmallestStep()); }
    void farPositionShrinksThePicture();

private:
    /** The others wait for the first photo: wanted. */
    static Heads headsThatDrawWithoutPhotos()
    {
        return headsThat([](const Head &head) { return head.drawsWithoutPhotos; });
    }
    /** Without those whose records know whole degrees only. */
    static Heads headsWithFractions()
    {
        return headsThat([](const Head &head) {
            return !head.facts->isGrid() && !head.facts->notesWholeDegrees;
        });
    }
    static Heads headsWithSmallestStep()
    {
        return headsThat([](const Head &head) { return head.layout.smallestStepDegrees == 8.0; });
    }
    static Heads headsWithoutSmallestStep()
    {
        return headsThat([](const Head &head) {
            return !head.facts->isGrid() && head.layout.smallestStepDegrees == 0.0;
        });
    }
};

void TestShotPreviews::init()
{
    fakeHost().forget();
    XUI::init(fakeHost().UIInstances());
}

void TestShotPreviews::cellsStandWhereTheAnglesSay()
{
    QFETCH(const Head *, head);
    const PictureShoot shoot(*head);
    shoot.load(twoByTwo(), shoot.fourPhotos());

    const QImage picture = shoot.driver.picture();

    QCOMPARE(picture.size(), QSize(220, 196));
    QCOMPARE(cellColours(picture), kAsRead);
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

void TestShotPreviews::pictureIsTheOneDescribed()
{
    QFETCH(const Head *, head);
    const PictureShoot shoot(*head);

    shoot.load(twoByTwo(), shoot.fourPhotos().mid(0, 3));

    QCOMPARE(shoot.driver.picture(),
             painted(QSize(220, 196),
                     { { { 2, 2 }, kRed, QStringLiteral("0 (0,0)") },
                       { { 122, 2 }, kGreen, QStringLiteral("1 (30,0)") },
                       { { 122, 98 }, kBlue, QStringLiteral("2 (30,-24)") },
                       { { 2, 98 }, QColor(), QStringLiteral("3 (0,-24)") } }));
}

void TestShotPreviews::recordAloneShowsOutlines()
{
    QFETCH(const Head *, head);
    const PictureShoot shoot(*head);

    shoot.load(twoByTwo());

    QCOMPARE(shoot.driver.picture(),
             painted(QSize(220, 196),
                     { { { 2, 2 }, QColor(), QStringLiteral("0 (0,0)") },
                       { { 122, 2 }, QColor(), QStringLiteral("1 (30,0)") },
                       { { 122, 98 }, QColor(), QStringLiteral("2 (30,-24)") },
                       { { 2, 98 }, QColor(), QStringLiteral("3 (0,-24)") } }));
}

void TestShotPreviews::captionsUseSixSignificantDigits()
{
    QFETCH(const Head *, head);
    const PictureShoot shoot(*head);
    const QStringList photos = neededPhotos(shoot);

    // One shot: span 0, a canvas of 100 x 100 with the cell at (2, 2).
    shoot.load({ { -123.456789, 7.5 } }, photos);

    QCOMPARE(shoot.driver.picture(),
             painted(QSize(100, 100),
                     { { { 2, 2 },
                         photos.isEmpty() ? QColor() : kRed,
                         QStringLiteral("0 (-123.457,7.5)") } }));
}

void TestShotPreviews::threeShotsInARowGiveTheirCanvas()
{
    QFETCH(const Head *, head);
    const PictureShoot shoot(*head);

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

void TestShotPreviews::canvasFollowsTheSmallestStep_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QVector<ShotAngles>>("shots");
    QTest::addColumn<QSize>("canvas");
    const auto row = [](const Heads &heads, const char *name, const QVector<ShotAngles> &shots,
                        int width, int height) {
        for (const Head *head : heads) {
            QTest::addRow("%s: %s", head->name, name) << head << shots << QSize(width, height);
        }
    };
    const Heads all = headsWithRecords();
    row(all, "one shot", { { 10, 10 } }, 100, 100);
    // step 30, scale 3.2: 60 x 3.2 + 100 = 292
    row(all, "one row", { { 0, 0 }, { 30, 0 }, { 60, 0 } }, 292, 100);
    // step 20 (of the pitch), scale 4.8: 30 x 4.8 = 144, 20 x 4.8 = 96
    row(all, "smaller pitch step", { { 0, 0 }, { 30, 20 } }, 244, 196);
    row(all, "8 degrees exactly", { { 0, 0 }, { 8, 0 } }, 196, 100);
    // only consecutive shots are compared: 0 to 40 and 40 to 10 give 30, scale 3.2, span 40
    row(all, "consecutive shots only", { { 0, 0 }, { 40, 0 }, { 10, 0 } }, 228, 100);
    row(all, "the same twice is no step", { { 0, 0 }, { 0, 0 }, { 30, 0 } }, 196, 100);
    // 720 does not lower 360: scale 96 / 360, span 720: 192 + 100
    row(all, "steps beyond a full turn", { { 0, 0 }, { 720, 0 } }, 292, 100);
    // scale 96 / 90: 90 and 180 degrees
    row(all, "negative angles", { { -180, -90 }, { -90, 90 } }, 196, 292);

    // step 5 counts as 8, scale 12: 5 x 12 = 60
    row(headsWithSmallestStep(), "steps below 8 degrees", { { 0, 0 }, { 5, 0 } }, 160, 100);
    // step 0.1 counts as 8: 0.1 x 12 = 1.2, cut off
    row(headsWithSmallestStep(), "fractions are cut off", { { 0, 0 }, { 0.1, 0 } }, 101, 100);
    // No smallest step: 96 pixels per degree and 19.2.
    row(headsWithoutSmallestStep(), "one degree", { { 0, 0 }, { 1, 0 }, { 3, 0 } }, 388, 100);
    row(headsWithoutSmallestStep(), "five degrees", { { 0, 0 }, { 5, 0 } }, 196, 100);
}

void TestShotPreviews::canvasFollowsTheSmallestStep()
{
    QFETCH(const Head *, head);
    QFETCH(QVector<ShotAngles>, shots);
    QFETCH(QSize, canvas);
    const PictureShoot shoot(*head);

    shoot.load(shots, neededPhotos(shoot));

    QCOMPARE(shoot.driver.picture().size(), canvas);
}

void TestShotPreviews::pictureIsZoomed_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QVector<ShotAngles>>("shots");
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QSize>("size");
    const auto row = [](const Heads &heads, const char *name, const QVector<ShotAngles> &shots,
                        int zoom, const QSize &size) {
        for (const Head *head : heads) {
            QTest::addRow("%s: %s", head->name, name) << head << shots << zoom << size;
        }
    };
    // A canvas of 220 x 196.
    row(headsWithRecords(), "100", twoByTwo(), 100, QSize(220, 196));
    row(headsWithRecords(), "50, as on a fresh page", twoByTwo(), 50, QSize(110, 98));
    row(headsWithRecords(), "33: 72.6 and 64.68", twoByTwo(), 33, QSize(72, 64));
    row(headsWithRecords(), "99: 217.8 and 194.04", twoByTwo(), 99, QSize(217, 194));
    row(headsWithRecords(), "1: 2.2 and 1.96", twoByTwo(), 1, QSize(2, 1));
    // 12 pixels per degree below 8 degrees: 4.17 x 12 + 100 = 150.04, 0.1 x 12 + 100 = 101.2
    const QVector<ShotAngles> wide{ { 0, 0 }, { 4.17, 0 } };
    const QVector<ShotAngles> narrow{ { 0, 0 }, { 0.1, 0 } };
    row(headsWithSmallestStep(), "1 on 150 pixels", wide, 1, QSize(1, 1));
    row(headsWithSmallestStep(), "33 on 150 pixels", wide, 33, QSize(49, 33));
    row(headsWithSmallestStep(), "99 on 150 pixels", wide, 99, QSize(148, 99));
    row(headsWithSmallestStep(), "100 on 150 pixels", wide, 100, QSize(150, 100));
    row(headsWithSmallestStep(), "50 on 101 pixels", narrow, 50, QSize(50, 50));
}

void TestShotPreviews::pictureIsZoomed()
{
    QFETCH(const Head *, head);
    QFETCH(QVector<ShotAngles>, shots);
    QFETCH(int, zoom);
    QFETCH(QSize, size);

    const PictureShoot zoomedBefore(*head);
    zoomedBefore.setZoom(zoom);
    zoomedBefore.load(shots, neededPhotos(zoomedBefore));
    QCOMPARE(zoomedBefore.driver.picture().size(), size);

    const PictureShoot zoomedAfter(*head);
    zoomedAfter.load(shots, neededPhotos(zoomedAfter));
    zoomedAfter.setZoom(zoom);
    QCOMPARE(zoomedAfter.driver.picture().size(), size);
}

void TestShotPreviews::zoomingShowsNearestPixels()
{
    QFETCH(const Head *, head);
    const PictureShoot shoot(*head);
    shoot.load(twoByTwo(), shoot.fourPhotos());

    shoot.setZoom(50);

    // Every other pixel of the canvas.
    const QImage picture = shoot.driver.picture();
    QCOMPARE(picture.size(), QSize(110, 98));
    QCOMPARE(picture.pixelColor(41, 41), kRed);
    QCOMPARE(picture.pixelColor(101, 41), kGreen);
    QCOMPARE(picture.pixelColor(101, 89), kBlue);
    QCOMPARE(picture.pixelColor(41, 89), kYellow);
    QCOMPARE(picture.pixelColor(55, 41), kBackground);
}

void TestShotPreviews::backgroundIsTheWindowBrushOfTheCurrentGroup()
{
    QFETCH(const Head *, head);
    const PictureShoot shoot(*head);
    QPalette palette = shoot.page->palette();
    palette.setColor(QPalette::Disabled, QPalette::Window, kYellow);
    shoot.page->setPalette(palette);
    shoot.load(twoByTwo(), neededPhotos(shoot));
    QCOMPARE(shoot.driver.picture().pixelColor(1, 1), kBackground);

    shoot.page->setEnabled(false);
    shoot.setZoom(99);

    QCOMPARE(shoot.driver.picture().pixelColor(1, 1), kYellow);
}

void TestShotPreviews::photosStandInTheirOrder_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QVector<long>>("times"); // of the red, green, blue and yellow photo, as read
    QTest::addColumn<QVector<QColor>>("order"); // of the cells
    const auto row = [](const Head &head, const char *name, const QVector<long> &times,
                        const QVector<QColor> &order) {
        QTest::addRow("%s: %s", head.name, name) << &head << times << order;
    };
    for (const Head *head : headsWithRecords()) {
        if (head->order == PhotoOrder::AsRead) { // times mean nothing
            row(*head, "backwards", { 4, 3, 2, 1 }, kAsRead);
            row(*head, "two equal times", { 4, 3, 3, 0 }, kAsRead);
            continue;
        }
        row(*head, "as read", { 1, 2, 3, 4 }, kAsRead);
        row(*head, "backwards", { 4, 3, 2, 1 }, { kYellow, kBlue, kGreen, kRed });
        row(*head, "mixed, negative, beyond 32 bits", { 7'000'000'000, -1, 7'000'000'001, 5 },
            { kGreen, kYellow, kRed, kBlue });
        row(*head, "all equal", { 0, 0, 0, 0 }, kAsRead);
        if (head->order == PhotoOrder::ByTime) {
            row(*head, "equal times keep the reading order", { 5, 5, 5, 1 },
                { kYellow, kRed, kGreen, kBlue });
        } else { // the whole list falls back to the order of reading
            row(*head, "two equal times", { 5, 4, 4, 1 }, kAsRead);
            row(*head, "two equal times apart", { 5, 4, 1, 5 }, kAsRead);
        }
    }
}

void TestShotPreviews::photosStandInTheirOrder()
{
    QFETCH(const Head *, head);
    QFETCH(QVector<long>, times);
    QFETCH(QVector<QColor>, order);
    const PictureShoot shoot(*head);

    shoot.load(twoByTwo(),
               { shoot.addPhoto("a.jpg", kRed, times[0]), shoot.addPhoto("b.jpg", kGreen, times[1]),
                 shoot.addPhoto("c.jpg", kBlue, times[2]),
                 shoot.addPhoto("d.jpg", kYellow, times[3]) });

    QCOMPARE(cellColours(shoot.driver.picture()), order);
}

void TestShotPreviews::thumbnailsFillTheirCells()
{
    QFETCH(const Head *, head);
    const PictureShoot shoot(*head);

    shoot.load({ { 0, 0 } },
               { shoot.folder.addPhoto(QStringLiteral("a.jpg"), redAndBlue(QSize(64, 16))) });

    // Stretched to 96 x 96 whatever its shape: the halves meet at x = 2 + 48.
    const QImage picture = shoot.driver.picture();
    QCOMPARE(picture.pixelColor(48, 40), kRed);
    QCOMPARE(picture.pixelColor(51, 40), kBlue);
    QCOMPARE(picture.pixelColor(10, 97), kRed);
    QCOMPARE(picture.pixelColor(97, 97), kBlue);
}

void TestShotPreviews::thumbnailsTurnWithTheRoll_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QVector<QByteArray>>("clicks");
    QTest::addColumn<QVector<QColor>>("probes"); // left, right, top, bottom of a red | blue photo
    const QByteArray right = "m_pbRot90";
    const QByteArray left = "m_pbRot270";
    for (const Head *head : headsThatTurn()) {
        const auto row = [head](const char *name, const QVector<QByteArray> &clicks,
                                const QVector<QColor> &probes) {
            QTest::addRow("%s: %s", head->name, name) << head << clicks << probes;
        };
        row("0", {}, { kRed, kBlue, kBlue, kBlue });
        row("90", { right }, { kBlue, kBlue, kRed, kBlue });
        row("-90", { left }, { kRed, kRed, kBlue, kRed });
        row("180", { right, right }, { kBlue, kRed, kRed, kRed });
        row("-180", { left, left }, { kBlue, kRed, kRed, kRed });
        row("90 - 90", { right, left }, { kRed, kBlue, kBlue, kBlue });
        row("90 - 180", { right, left, left }, { kRed, kRed, kBlue, kRed });
        row("360", { right, right, right, right }, { kRed, kBlue, kBlue, kBlue });
    }
}

void TestShotPreviews::thumbnailsTurnWithTheRoll()
{
    QFETCH(const Head *, head);
    QFETCH(QVector<QByteArray>, clicks);
    QFETCH(QVector<QColor>, probes);
    const PictureShoot shoot(*head);
    shoot.load({ { 0, 0 } },
               { shoot.folder.addPhoto(QStringLiteral("a.jpg"), redAndBlue(QSize(60, 20))) });

    for (const QByteArray &button : qAsConst(clicks)) {
        shoot.driver.click(button.constData());
    }

    // The cell is (2, 2) to (98, 98), its centre (50, 50). The outer probes lie below it, the upper
    // and lower ones right of it. A quarter turn clockwise brings the left half to the top.
    const QImage picture = shoot.driver.picture();
    QCOMPARE(picture.size(), QSize(100, 100));
    QCOMPARE((QVector<QColor>{ picture.pixelColor(10, 60), picture.pixelColor(90, 60),
                               picture.pixelColor(60, 30), picture.pixelColor(60, 90) }),
             probes);
}

void TestShotPreviews::invertingTurnsThePictureOver()
{
    QFETCH(const Head *, head);
    const PictureShoot shoot(*head);
    shoot.load(twoByTwo(), shoot.fourPhotos());

    shoot.driver.click("m_pInverseCoordinates");

    const QImage picture = shoot.driver.picture();
    QCOMPARE(picture.size(), QSize(220, 196));
    QCOMPARE(cellColour(picture, QPoint(2, 98)), kRed);
    QCOMPARE(cellColour(picture, QPoint(122, 98)), kGreen);
    QCOMPARE(cellColour(picture, QPoint(122, 2)), kBlue);
    QCOMPARE(cellColour(picture, QPoint(2, 2)), kYellow);
}

void TestShotPreviews::cellWithoutPhotoIsAnOutline()
{
    QFETCH(const Head *, head);
    const PictureShoot shoot(*head);

    shoot.load(twoByTwo(), { shoot.addPhoto("a.jpg", kRed) });

    const QImage picture = shoot.driver.picture();
    QCOMPARE(cellColour(picture, QPoint(2, 2)), kRed);
    QCOMPARE(cellColour(picture, QPoint(122, 98)), kBackground);
    QCOMPARE(picture.pixelColor(122, 150), kOutline);
    QCOMPARE(picture.pixelColor(218, 150), kOutline);
    QCOMPARE(picture.pixelColor(150, 194), kOutline);
}

void TestShotPreviews::cellWithoutThumbnailIsAnOutline_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<FakePhoto::Preview>("preview");
    for (const Head *head : headsWithRecords()) {
        QTest::addRow("%s: no pixmap", head->name) << head << FakePhoto::Preview::NullPointer;
        QTest::addRow("%s: pixmap without pixels", head->name)
            << head << FakePhoto::Preview::NullPixmap;
    }
}

void TestShotPreviews::cellWithoutThumbnailIsAnOutline()
{
    QFETCH(const Head *, head);
    QFETCH(FakePhoto::Preview, preview);
    const PictureShoot shoot(*head);
    FakePhoto photo;
    photo.preview = preview;

    shoot.load({ { 0, 0 } }, { shoot.folder.addPhoto(QStringLiteral("a.jpg"), photo) });
    if (head->facts->turnsCamera) { // nothing to turn
        shoot.driver.click("m_pbRot90");
    }

    QCOMPARE(shoot.driver.picture(),
             painted(QSize(100, 100), { { { 2, 2 }, QColor(), QStringLiteral("0 (0,0)") } }));
}

void TestShotPreviews::photosBeyondTheShotsAreNotDrawn()
{
    QFETCH(const Head *, head);
    const PictureShoot shoot(*head);

    shoot.load({ { 0, 0 } }, shoot.fourPhotos());

    QCOMPARE(shoot.driver.picture().size(), QSize(100, 100));
    QCOMPARE(cellColour(shoot.driver.picture(), QPoint(2, 2)), kRed);
}

void TestShotPreviews::nothingIsShownWithoutShots()
{
    QFETCH(const Head *, head);
    const PictureShoot shoot(*head);

    shoot.driver.load(kSelectPhotos, shoot.fourPhotos());
    QVERIFY(shoot.driver.picture().isNull());
    shoot.load({});
    QVERIFY(shoot.driver.picture().isNull());
    shoot.setZoom(20);
    QVERIFY(shoot.driver.picture().isNull());
}

void TestShotPreviews::pictureGoesWhenTheShotsGo()
{
    QFETCH(const Head *, head);
    const PictureShoot shoot(*head);
    shoot.load(twoByTwo(), shoot.fourPhotos());
    QVERIFY(!shoot.driver.picture().isNull());

    shoot.load({});

    QVERIFY(shoot.driver.picture().isNull());
}

void TestShotPreviews::anotherRecordOverTheSamePhotosIsDrawn()
{
    QFETCH(const Head *, head);
    const PictureShoot shoot(*head);
    shoot.load(twoByTwo(), shoot.fourPhotos());

    shoot.loadRecord(4);

    QCOMPARE(shoot.driver.picture().size(), QSize(388, 100)); // 90 x 3.2 + 100
    QCOMPARE(cellColour(shoot.driver.picture(), QPoint(2 + 3 * 96, 2)), kYellow);
}

void TestShotPreviews::pictureGrowsWithThePhotos_data()
{
    QTest::addColumn<const Head *>("head");
    QTest::addColumn<QVector<QColor>>("order");
    for (const Head *head : headsWithRecords()) {
        // The one read later was taken earlier.
        QTest::newRow(head->name) << head
                                  << (head->facts->ordersByTime ? QVector<QColor>{ kGreen, kRed }
                                                                : QVector<QColor>{ kRed, kGreen });
    }
}

void TestShotPreviews::pictureGrowsWithThePhotos()
{
    QFETCH(const Head *, head);
    QFETCH(QVector<QColor>, order);
    const PictureShoot shoot(*head);
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
    QCOMPARE(cellColours(shoot.driver.picture()),
             (QVector<QColor>{ order[0], order[1], kBackground, kBackground }));

    // Fewer photos leave nothing of those before.
    shoot.driver.load(kSelectPhotos, { shoot.addPhoto("c.jpg", kBlue) });
    QCOMPARE(cellColours(shoot.driver.picture()),
             (QVector<QColor>{ kBlue, kBackground, kBackground, kBackground }));
}

void TestShotPreviews::farPositionShrinksThePicture()
{
    QFETCH(const Head *, head);
    const PictureShoot shoot(*head);

    // As described the canvas would be 12 x 5000 + 100 = 60,100 pixels wide, twice what can be
    // painted: the whole picture shrinks, and the last cell is on it.
    shoot.load({ { 0, 0 }, { 8, 0 }, { 5000, 0 } }, shoot.fourPhotos().mid(0, 3));

    const QImage picture = shoot.driver.picture();
    QVERIFY2(picture.width() <= 32'767 && picture.width() > 32'000,
             qPrintable(QString::number(picture.width())));
    QCOMPARE(picture.height(), 100);
    QCOMPARE(picture.pixelColor(picture.width() - 45, 60), kBlue);
}

TEST_CLASS(TestShotPreviews, FakeApplication)
#include "tst_shotpreviews.moc"
