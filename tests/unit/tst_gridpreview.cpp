// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/gigapan/gridlayout.h"
#include "tests/support/testprogram.h"

#include <QtTest>

using PanoHead::GridLayout;
using PanoHead::GridView;
using PanoHead::layOutGrid;
using PanoHead::PreviewCell;
using PanoHead::PreviewLayout;

namespace
{

constexpr QSize kThumbnail(160, 120);

GridView grid(int rows, int columns, int mode = 0, int bracket = 1, int ignored = 0)
{
    GridView view;
    view.rows = rows;
    view.columns = columns;
    view.mode = mode;
    view.bracketCount = bracket;
    view.ignoredCount = ignored;
    return view;
}

/** The photos of the cells, row by row from the top, whatever the drawing order is. */
QVector<int> photosByPlace(const PreviewLayout &layout, int rows, int columns)
{
    QVector<int> photos(rows * columns, -1);
    for (const PreviewCell &cell : layout.cells) {
        const int column = qRound((cell.box.left() - 4) / (cell.box.width() + 4));
        const int row = qRound((cell.box.top() - 4) / (cell.box.height() + 4));
        photos[row * columns + column] = cell.image;
    }
    return photos;
}

QVector<int> inDrawingOrder(const PreviewLayout &layout)
{
    QVector<int> photos;
    for (const PreviewCell &cell : layout.cells) {
        photos.append(cell.image);
    }
    return photos;
}

} // namespace

class TestGridPreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cellsAreHalfAThumbnailAndStandFourPixelsApart();
    void cellsAreHalvedUntilTheCanvasFits();
    void nothingIsLaidOutWhenNoCellIsSmallEnough_data();
    void nothingIsLaidOutWhenNoCellIsSmallEnough();
    void photosFollowTheShootingOrder_data();
    void photosFollowTheShootingOrder();
    void cellsAreDrawnInShootingOrder_data();
    void cellsAreDrawnInShootingOrder();
    void eachCellShowsTheFirstOfItsStackBehindTheIgnoredPhotos();
    void serpentineDoesNotCountIgnoredPhotosWanted();
    void sameGridKeepsItsCells();
};

void TestGridPreview::cellsAreHalfAThumbnailAndStandFourPixelsApart()
{
    const PreviewLayout layout = layOutGrid(grid(2, 3), kThumbnail);

    // 3 (80 + 4) + 4 by 2 (60 + 4) + 4
    QCOMPARE(layout.canvas, QSize(256, 132));
    QCOMPARE(layout.cells.size(), 6);
    QCOMPARE(layout.cells[0].box, QRectF(4, 4, 80, 60));
    QCOMPARE(layout.cells[1].box, QRectF(4, 68, 80, 60));
    QCOMPARE(layout.cells[5].box, QRectF(172, 68, 80, 60));
}

void TestGridPreview::cellsAreHalvedUntilTheCanvasFits()
{
    // 200 (80 + 4) + 4 = 16,804 is too wide; 200 (40 + 4) + 4 = 8,804 fits.
    const PreviewLayout layout = layOutGrid(grid(2, 200), kThumbnail);

    QCOMPARE(layout.canvas, QSize(8804, 2 * (30 + 4) + 4));
    QCOMPARE(layout.cells.last().box.size(), QSizeF(40, 30));
}

void TestGridPreview::nothingIsLaidOutWhenNoCellIsSmallEnough_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<QSize>("thumbnail");
    QTest::addColumn<bool>("empty");
    // 160 x 120 is halved to 80 x 60, 40 x 30, 20 x 15, 10 x 7, 5 x 3, 2 x 1; then the height
    // reaches 0, and one halving later it stays there.
    QTest::newRow("1,999 columns of one pixel") << 1999 << kThumbnail << false;
    QTest::newRow("7,919 columns") << 7919 << kThumbnail << true;
    QTest::newRow("thumbnail of one pixel becomes nothing") << 3 << QSize(1, 1) << false;
    QTest::newRow("thumbnail without pixels") << 3 << QSize(0, 0) << true;
    QTest::newRow("100,000 columns of a huge thumbnail") << 100000 << QSize(60000, 60000) << true;
}

void TestGridPreview::nothingIsLaidOutWhenNoCellIsSmallEnough()
{
    QFETCH(int, columns);
    QFETCH(QSize, thumbnail);
    const PreviewLayout layout = layOutGrid(grid(1, columns), thumbnail);
    QTEST(layout.isEmpty(), "empty");
    QVERIFY(layout.canvas.width() <= 10000 && layout.canvas.height() <= 10000);
}

void TestGridPreview::photosFollowTheShootingOrder_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QVector<int>>("photos"); // 3 rows of 2, row by row
    QTest::newRow("columns from the left") << 0 << QVector<int>{ 0, 3, 1, 4, 2, 5 };
    QTest::newRow("rows downward") << 1 << QVector<int>{ 0, 1, 2, 3, 4, 5 };
    QTest::newRow("rows upward") << 2 << QVector<int>{ 4, 5, 2, 3, 0, 1 };
    QTest::newRow("columns to left") << 3 << QVector<int>{ 3, 0, 4, 1, 5, 2 };
    QTest::newRow("serpentine") << 4 << QVector<int>{ 4, 5, 3, 2, 0, 1 };
}

void TestGridPreview::photosFollowTheShootingOrder()
{
    QFETCH(int, mode);
    QTEST(photosByPlace(layOutGrid(grid(3, 2, mode), kThumbnail), 3, 2), "photos");
}

void TestGridPreview::cellsAreDrawnInShootingOrder_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QVector<int>>("photos");
    const QVector<int> inOrder{ 0, 1, 2, 3, 4, 5 };
    QTest::newRow("columns from the left") << 0 << inOrder;
    QTest::newRow("rows downward") << 1 << inOrder;
    QTest::newRow("rows upward") << 2 << inOrder;
    QTest::newRow("columns to left") << 3 << inOrder;
    // Column by column, top to bottom, unlike the sweep itself.
    QTest::newRow("serpentine") << 4 << QVector<int>{ 4, 3, 0, 5, 2, 1 };
}

void TestGridPreview::cellsAreDrawnInShootingOrder()
{
    QFETCH(int, mode);
    QTEST(inDrawingOrder(layOutGrid(grid(3, 2, mode), kThumbnail)), "photos");
}

void TestGridPreview::eachCellShowsTheFirstOfItsStackBehindTheIgnoredPhotos()
{
    for (const int mode : { 0, 1, 2, 3 }) {
        QCOMPARE(inDrawingOrder(layOutGrid(grid(2, 2, mode, 3, 5), kThumbnail)),
                 (QVector<int>{ 5, 8, 11, 14 }));
    }
}

void TestGridPreview::serpentineDoesNotCountIgnoredPhotosWanted()
{
    // Bottom row 0, 1; top row 3, 2 in the shooting order, three photos each.
    QCOMPARE(photosByPlace(layOutGrid(grid(2, 2, 4, 3, 2), kThumbnail), 2, 2),
             (QVector<int>{ 9, 6, 0, 3 }));
}

void TestGridPreview::sameGridKeepsItsCells()
{
    GridLayout layout;
    const PreviewCell *cells = layout.of(grid(2, 3), kThumbnail).cells.constData();

    QCOMPARE(layout.of(grid(2, 3), kThumbnail).cells.constData(), cells);
    QCOMPARE(layout.of(grid(3, 2), kThumbnail).canvas, QSize(2 * 84 + 4, 3 * 64 + 4));
    QCOMPARE(layout.of(grid(3, 2), QSize(100, 100)).canvas, QSize(2 * 54 + 4, 3 * 54 + 4));
    QCOMPARE(layout.of(grid(3, 2, 1), QSize(100, 100)).cells[1].box, QRectF(58, 4, 50, 50));
}

TEST_CLASS(TestGridPreview, QCoreApplication)
#include "tst_gridpreview.moc"
