// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/gigapan/uiwpgigapan.h"

#include "tests/pages/gigapanpicture.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/plaingrid.h"
#include "ui/xui.h"

#include <QtTest>

#include <random>

namespace
{

/** Two rows of three cells: 3 x 84 + 4 by 2 x 64 + 4. */
constexpr QSize kTwoByThree(256, 132);

/** Row, column and photo of six cells, in drawing order. */
using Walk = QVector<QVector<int>>;

// How each mode goes through two rows of three cells.
const Walk kMode0{ { 0, 0, 0 }, { 1, 0, 1 }, { 0, 1, 2 }, { 1, 1, 3 }, { 0, 2, 4 }, { 1, 2, 5 } };
const Walk kMode1{ { 0, 0, 0 }, { 0, 1, 1 }, { 0, 2, 2 }, { 1, 0, 3 }, { 1, 1, 4 }, { 1, 2, 5 } };
const Walk kMode2{ { 1, 0, 0 }, { 1, 1, 1 }, { 1, 2, 2 }, { 0, 0, 3 }, { 0, 1, 4 }, { 0, 2, 5 } };
const Walk kMode3{ { 0, 2, 0 }, { 1, 2, 1 }, { 0, 1, 2 }, { 1, 1, 3 }, { 0, 0, 4 }, { 1, 0, 5 } };
// Drawn column by column, although the head goes to the right below and comes back above.
const Walk kMode4{ { 0, 0, 5 }, { 1, 0, 0 }, { 0, 1, 4 }, { 1, 1, 1 }, { 0, 2, 3 }, { 1, 2, 2 } };

/** The picture of \p walk whose cell i shows the photo \p first + i x \p step. */
QImage paintedWalk(const Walk &walk, int first = 0, int step = 1)
{
    QVector<DrawnCell> cells;
    for (const QVector<int> &cell : walk) {
        cells.append({ cell[0], cell[1], colourOf(first + cell[2] * step) });
    }
    return painted(kTwoByThree, kCell, cells);
}

} // namespace

/** Where the cells of the grid are drawn, and how large. */
class TestUIWPGigapanPreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void cellsStandWhereTheGridSays();
    void modeDecidesPlacesAndDrawingOrder_data();
    void modeDecidesPlacesAndDrawingOrder();
    void laterCellsCoverEarlierOnes();
    void cellShowsTheFirstPhotoOfItsStack_data();
    void cellShowsTheFirstPhotoOfItsStack();
    void modeFourDoesNotCountIgnoredPhotosWanted();
    void randomGridsAreDrawnAsTheHeadSweepsThem();
    void thumbnailsKeepTheirSize();
    void coloursAreThoseOfNoTheme();

    void cellsAre48PixelsWithoutThumbnails_data();
    void cellsAre48PixelsWithoutThumbnails();

    void pictureIsZoomed_data();
    void pictureIsZoomed();
    void zoomingRedraws();
    void wideGridsGetSmallerCells();
    void cellsShrinkAsFarAsTheyCan_data();
    void cellsShrinkAsFarAsTheyCan();
    void gridThatDoesNotFitIsStillDrawn_data();
    void gridThatDoesNotFitIsStillDrawn();
};

void TestUIWPGigapanPreview::init()
{
    fakeHost().forget();
    XUI::init(fakeHost().UIInstances());
}

// Thumbnails of 160 x 120 reach over the next cells, which are drawn over them in turn.
void TestUIWPGigapanPreview::cellsStandWhereTheGridSays()
{
    const ZoomedShoot shoot;
    shoot.loadPhotos(6);

    const QImage picture = shoot.driver.picture();

    QCOMPARE(picture.size(), QSize(256, 132));
    // Corners at x = 4, 88, 172 and y = 4, 68; columns from the left, downwards.
    QCOMPARE(picture.pixelColor(5, 5), colourOf(0));
    QCOMPARE(picture.pixelColor(5, 69), colourOf(1));
    QCOMPARE(picture.pixelColor(89, 5), colourOf(2));
    QCOMPARE(picture.pixelColor(89, 69), colourOf(3));
    QCOMPARE(picture.pixelColor(173, 5), colourOf(4));
    QCOMPARE(picture.pixelColor(173, 69), colourOf(5));
    // From the left edge through the upper left cell: margin, outline, photo, outline, photo again.
    QCOMPARE(picture.pixelColor(3, 30), kBackground);
    QCOMPARE(picture.pixelColor(4, 30), kOutline);
    QCOMPARE(picture.pixelColor(5, 30), colourOf(0));
    QCOMPARE(picture.pixelColor(83, 30), colourOf(0));
    QCOMPARE(picture.pixelColor(84, 30), kOutline);
    QCOMPARE(picture.pixelColor(87, 30), colourOf(0));
    QCOMPARE(picture.pixelColor(88, 30), kOutline);
    // The same downwards.
    QCOMPARE(picture.pixelColor(40, 3), kBackground);
    QCOMPARE(picture.pixelColor(40, 4), kOutline);
    QCOMPARE(picture.pixelColor(40, 64), kOutline);
    QCOMPARE(picture.pixelColor(40, 67), colourOf(0));
    QCOMPARE(picture.pixelColor(40, 68), kOutline);
    QCOMPARE(picture.pixelColor(40, 128), kOutline);
    // The last photos reach to the edge.
    QCOMPARE(picture.pixelColor(40, 131), colourOf(1));
    QCOMPARE(picture.pixelColor(255, 30), colourOf(4));
}

void TestUIWPGigapanPreview::modeDecidesPlacesAndDrawingOrder_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<Walk>("walk");
    QTest::newRow("columns from the left") << 0 << kMode0;
    QTest::newRow("rows downward") << 1 << kMode1;
    QTest::newRow("rows upward") << 2 << kMode2;
    QTest::newRow("columns from the right") << 3 << kMode3;
    QTest::newRow("serpentine") << 4 << kMode4;
}

void TestUIWPGigapanPreview::modeDecidesPlacesAndDrawingOrder()
{
    QFETCH(int, mode);
    QFETCH(Walk, walk);
    ZoomedShoot shoot;
    shoot.loadPhotos(6);

    shoot.choose(mode);

    QCOMPARE(shoot.driver.picture(), paintedWalk(walk));
}

void TestUIWPGigapanPreview::laterCellsCoverEarlierOnes()
{
    const ZoomedShoot shoot;
    shoot.loadPhotos(6);

    shoot.driver.click("m_rbMode3");

    // From the right: the left photo, drawn last, covers x = 4 to 163 of the middle cell, 88 to
    // 168, with its left outline, and leaves the right one.
    const QImage picture = shoot.driver.picture();
    QCOMPARE(picture.pixelColor(40, 30), colourOf(4));
    QCOMPARE(picture.pixelColor(88, 30), colourOf(4));
    QCOMPARE(picture.pixelColor(163, 30), colourOf(4));
    QCOMPARE(picture.pixelColor(164, 30), colourOf(2));
    QCOMPARE(picture.pixelColor(168, 30), kOutline);
    QCOMPARE(picture.pixelColor(40, 80), colourOf(5));
}

void TestUIWPGigapanPreview::cellShowsTheFirstPhotoOfItsStack_data()
{
    QTest::addColumn<int>("photos");
    QTest::addColumn<int>("bracket");
    QTest::addColumn<int>("ignored");
    QTest::newRow("pairs") << 12 << 2 << 0;
    QTest::newRow("the first ignored") << 7 << 1 << 1;
    QTest::newRow("pairs, the first ignored") << 13 << 2 << 1;
    QTest::newRow("pairs, three ignored, one over") << 16 << 2 << 3;
}

void TestUIWPGigapanPreview::cellShowsTheFirstPhotoOfItsStack()
{
    QFETCH(int, photos);
    QFETCH(int, bracket);
    QFETCH(int, ignored);
    const ZoomedShoot shoot;
    shoot.loadPhotos(photos);

    shoot.setNumbers(2, bracket, ignored);

    QCOMPARE(shoot.driver.picture(), paintedWalk(kMode0, ignored, bracket));
    shoot.driver.click("m_rbMode2");
    QCOMPARE(shoot.driver.picture(), paintedWalk(kMode2, ignored, bracket));
}

void TestUIWPGigapanPreview::modeFourDoesNotCountIgnoredPhotosWanted()
{
    ZoomedShoot shoot;
    shoot.loadPhotos(14);
    shoot.setNumbers(2, 2, 2); // (14 - 2) / 2 / 2 = 3 columns

    shoot.page.OnMode4Toggled(true);

    QCOMPARE(shoot.driver.picture(), paintedWalk(kMode4, 0, 2));
}

void TestUIWPGigapanPreview::randomGridsAreDrawnAsTheHeadSweepsThem()
{
    std::mt19937 random(7); // seeded: a failure can be repeated
    const auto upTo
        = [&random](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    for (int run = 0; run < 40; ++run) {
        const int photos = 1 + upTo(40);
        const int rows = 1 + upTo(4);
        const int bracket = 1 + upTo(2);
        const int ignored = upTo(4);
        const int mode = run % 5;
        ZoomedShoot shoot;
        shoot.loadPhotos(photos);
        shoot.setNumbers(rows, bracket, ignored);

        shoot.choose(mode);

        const int columns = shoot.page.m_sbColumn->value();
        QMap<PlainGrid::Cell, QColor> colours;
        int photo = mode == 4 ? 0 : ignored;
        for (const PlainGrid::Cell &cell : PlainGrid::walk(mode, rows, columns)) {
            colours.insert(cell, photo < photos ? colourOf(photo % 16) : QColor());
            photo += bracket;
        }
        QVector<DrawnCell> cells;
        for (const PlainGrid::Cell &cell : PlainGrid::walk(mode == 4 ? 0 : mode, rows, columns)) {
            cells.append({ cell.first, cell.second, colours.value(cell) });
        }
        QCOMPARE(shoot.driver.picture(),
                 painted(QSize(columns * 84 + 4, rows * 64 + 4), kCell, cells));
    }
}

void TestUIWPGigapanPreview::thumbnailsKeepTheirSize()
{
    const ZoomedShoot shoot;
    FakePhoto photo;
    photo.preview = FakePhoto::Preview::TwoHalves;
    photo.colour = kRed;
    photo.rightColour = kBlue;
    photo.size = kThumbnail;

    shoot.driver.load(kSelectPhotos, { shoot.folder.addPhoto(QStringLiteral("a.jpg"), photo) });

    // The halves meet at x = 4 + 80, where the cell ends.
    const QImage picture = shoot.driver.picture();
    QCOMPARE(picture.size(), QSize(88, 68));
    QCOMPARE(picture.pixelColor(5, 30), kRed);
    QCOMPARE(picture.pixelColor(83, 30), kRed);
    QCOMPARE(picture.pixelColor(85, 30), kBlue);
    QCOMPARE(picture.pixelColor(87, 67), kBlue);
}

void TestUIWPGigapanPreview::coloursAreThoseOfNoTheme()
{
    ZoomedShoot shoot;
    QPalette palette = shoot.page.palette();
    palette.setColor(QPalette::Window, kBlue);
    palette.setColor(QPalette::WindowText, kYellow);
    shoot.page.setPalette(palette);

    shoot.loadPhotos(6);
    QCOMPARE(shoot.driver.picture(), paintedWalk(kMode0));
    shoot.page.setPalette(QPalette(kGreen));
    QCOMPARE(shoot.driver.picture(), paintedWalk(kMode0));
}

void TestUIWPGigapanPreview::cellsAre48PixelsWithoutThumbnails_data()
{
    QTest::addColumn<int>("photos"); // without thumbnails
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::addColumn<QSize>("canvas");
    QTest::newRow("fresh page") << 0 << 4 << 5 << QSize(264, 212);
    QTest::newRow("host makes none") << 6 << 2 << 3 << QSize(160, 108);
}

void TestUIWPGigapanPreview::cellsAre48PixelsWithoutThumbnails()
{
    QFETCH(int, photos);
    QFETCH(int, rows);
    QFETCH(int, columns);
    QFETCH(QSize, canvas);
    const ZoomedShoot shoot;
    FakePhoto photo;
    photo.preview = FakePhoto::Preview::NullPixmap;

    if (photos > 0) {
        shoot.driver.load(kSelectPhotos, shoot.folder.addPhotos(photos, photo));
    }

    QCOMPARE(shoot.driver.picture(), outlines(canvas, QSize(48, 48), rows, columns));
}

void TestUIWPGigapanPreview::pictureIsZoomed_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QSize>("size"); // of a canvas of 256 x 132
    QTest::newRow("100") << 100 << QSize(256, 132);
    QTest::newRow("50, as on a fresh page") << 50 << QSize(128, 66);
    QTest::newRow("33: 84.48 and 43.56") << 33 << QSize(84, 43);
    QTest::newRow("99: 253.44 and 130.68") << 99 << QSize(253, 130);
    QTest::newRow("1: 2.56 and 1.32") << 1 << QSize(2, 1);
}

void TestUIWPGigapanPreview::pictureIsZoomed()
{
    QFETCH(int, zoom);
    QFETCH(QSize, size);
    const ZoomedShoot shoot;
    shoot.page.m_hSlider->setValue(zoom);

    shoot.loadPhotos(6);

    QCOMPARE(shoot.driver.picture(),
             paintedWalk(kMode0).scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation));
}

void TestUIWPGigapanPreview::zoomingRedraws()
{
    const ZoomedShoot shoot;
    shoot.loadPhotos(6);

    shoot.page.m_hSlider->setValue(50);
    // Nearest pixels: every other one of the canvas.
    QCOMPARE(shoot.driver.picture().size(), QSize(128, 66));
    QCOMPARE(shoot.driver.picture().pixelColor(20, 15), colourOf(0));
    QCOMPARE(shoot.driver.picture().pixelColor(60, 45), colourOf(3));
    shoot.page.m_hSlider->setValue(100);
    QCOMPARE(shoot.driver.picture(), paintedWalk(kMode0));
}

void TestUIWPGigapanPreview::wideGridsGetSmallerCells()
{
    const ZoomedShoot shoot;
    shoot.loadPhotos(200);

    shoot.page.m_sbRow->setValue(1);

    // 200 x 84 + 4 = 16804 is too wide, 200 x 44 + 4 = 8804 is not.
    QVector<DrawnCell> cells;
    for (int column = 0; column < 200; ++column) {
        cells.append({ 0, column, colourOf(column % 16) });
    }
    QCOMPARE(shoot.driver.picture(), painted(QSize(8804, 38), QSize(40, 30), cells));
}

void TestUIWPGigapanPreview::cellsShrinkAsFarAsTheyCan_data()
{
    QTest::addColumn<int>("rows"); // of one column; thumbnails of 160 x 120
    QTest::addColumn<QSize>("canvas"); // invalid: nothing is drawn, and the label stays as it is
    // Halved again and again: 80 x 60, 40 x 30, 20 x 15, 10 x 7, 5 x 3, 2 x 1, 1 x 0
    QTest::newRow("156 x 64 + 4 = 9988") << 156 << QSize(88, 9988);
    QTest::newRow("157 x 64 + 4 is too high, 157 x 34 + 4 = 5342") << 157 << QSize(48, 5342);
    QTest::newRow("1999 x 5 + 4 = 9999") << 1999 << QSize(10, 9999);
    QTest::newRow("2000 x 5 + 4 is too high, 2000 x 4 + 4 = 8004") << 2000 << QSize(9, 8004);
    QTest::newRow("2499 x 4 + 4 = 10000") << 2499 << QSize(9, 10000);
    QTest::newRow("2500 x 4 + 4 is too high") << 2500 << QSize();
    QTest::newRow("as many rows as there can be") << 100000 << QSize();
}

void TestUIWPGigapanPreview::cellsShrinkAsFarAsTheyCan()
{
    QFETCH(int, rows);
    QFETCH(QSize, canvas);
    const ZoomedShoot shoot;
    shoot.loadPhotos(6);
    const QImage before = shoot.driver.picture().copy();
    QVERIFY(!before.isNull());

    shoot.page.m_sbRow->setValue(rows);

    if (canvas.isValid()) {
        QCOMPARE(shoot.driver.picture().size(), canvas);
    } else {
        QCOMPARE(shoot.driver.picture(), before);
    }
    shoot.page.m_sbRow->setValue(2);
    QCOMPARE(shoot.driver.picture(), paintedWalk(kMode0));
}

void TestUIWPGigapanPreview::gridThatDoesNotFitIsStillDrawn_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("bracket");
    QTest::addColumn<int>("ignored");
    QTest::addColumn<QImage>("picture"); // of 7 photos
    QTest::newRow("rows that do not divide the photos") << 2 << 1 << 0 << paintedWalk(kMode0);
    QTest::newRow("more photos in a bracket than there are")
        << 1 << 99 << 0 << painted(QSize(88, 68), kCell, { { 0, 0, colourOf(0) } });
    QTest::newRow("more photos ignored than there are")
        << 1 << 1 << 99 << outlines(QSize(88, 68), kCell, 1, 1);
    // One column of eight cells for seven photos.
    QVector<DrawnCell> column;
    for (int row = 0; row < 8; ++row) {
        column.append({ row, 0, row < 7 ? colourOf(row) : QColor() });
    }
    QTest::newRow("more rows than photos") << 8 << 1 << 0 << painted(QSize(88, 516), kCell, column);
}

void TestUIWPGigapanPreview::gridThatDoesNotFitIsStillDrawn()
{
    QFETCH(int, rows);
    QFETCH(int, bracket);
    QFETCH(int, ignored);
    QFETCH(QImage, picture);
    const ZoomedShoot shoot;
    shoot.loadPhotos(7);

    shoot.setNumbers(rows, bracket, ignored);

    QCOMPARE(shoot.driver.picture(), picture);
}

TEST_CLASS(TestUIWPGigapanPreview, FakeApplication)
#include "tst_uiwpgigapan_preview.moc"
