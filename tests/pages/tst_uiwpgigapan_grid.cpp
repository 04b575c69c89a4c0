// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/gigapan/uiwpgigapan.h"

#include "tests/pages/gigapanshoot.h"
#include "tests/support/fakeapplication.h"
#include "tests/support/formcheck.h"
#include "tests/support/heldphotos.h"
#include "tests/support/plaingrid.h"
#include "ui/xui.h"

#include <QtTest>

#include <random>

namespace
{

/** A number that a user enters. */
struct Entry {
    const char *box;
    int value;
};

} // namespace

Q_DECLARE_METATYPE(QVector<Entry>)

/** The grid that the page guesses, takes from the user and hands over. */
class TestUIWPGigapanGrid : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void newPageShowsTheFreshGrid();
    void choosingPhotosGuessesTheGrid_data();
    void choosingPhotosGuessesTheGrid();
    void gridIsGuessedBeforeThePhotosAreRead();
    void newPhotosWhileOthersAreReadGiveANewGrid();
    void choosingPhotosForgetsBracketsAndIgnoredOnes();
    void columnsFollowTheNumbers_data();
    void columnsFollowTheNumbers();
    void numbersGoToTheGenerator();
    void nextHandsOverTheGrid();
    void fullTurnLinksTheEnds();
    void randomGridsAreHandedOverAsTheHeadSweepsThem();
    void moreCellsThanPhotosKeepTheirLinks();
    void pairWithoutACheckedButtonKeepsItsField();
    void gridThatDoesNotFitGivesWhatItCan_data();
    void gridThatDoesNotFitGivesWhatItCan();
    void secondNextAppends();
};

void TestUIWPGigapanGrid::init()
{
    fakeHost().forget();
    fakeHost().uiSettings.useSystemFileDialog = false;
    XUI::init(fakeHost().UIInstances());
}

void TestUIWPGigapanGrid::newPageShowsTheFreshGrid()
{
    const GigapanShoot shoot;

    QCOMPARE(shoot.grid(), QStringLiteral("4 x 5"));
    QCOMPARE(shoot.page.rows, 4);
    QCOMPARE(shoot.page.columns, 5);
    QCOMPARE(shoot.page.ignoredCount, 0);
    QCOMPARE(shoot.page.bracketCount, 1);
    QCOMPARE(shoot.page.mode, 0);
}

void TestUIWPGigapanGrid::choosingPhotosGuessesTheGrid_data()
{
    QTest::addColumn<int>("photos");
    QTest::addColumn<QString>("grid");
    QTest::newRow("12: 4, 3") << 12 << QStringLiteral("3 x 4");
    QTest::newRow("7: 3, 2, 1, a prime") << 7 << QStringLiteral("1 x 7");
    QTest::newRow("16: 5, 4, a square") << 16 << QStringLiteral("4 x 4");
    QTest::newRow("1") << 1 << QStringLiteral("1 x 1");
    QTest::newRow("2") << 2 << QStringLiteral("1 x 2");
    QTest::newRow("15: 4, 3") << 15 << QStringLiteral("3 x 5");
    QTest::newRow("22: 5, 4, 3, 2") << 22 << QStringLiteral("2 x 11");
    QTest::newRow("2000: 45, 44, 43, 42, 41, 40") << 2000 << QStringLiteral("40 x 50");
}

void TestUIWPGigapanGrid::choosingPhotosGuessesTheGrid()
{
    QFETCH(int, photos);
    QFETCH(QString, grid);
    const GigapanShoot shoot;

    shoot.loadPhotos(photos);

    QCOMPARE(shoot.grid(), grid);
    QCOMPARE(QStringLiteral("%1 x %2").arg(shoot.page.rows).arg(shoot.page.columns), grid);
}

void TestUIWPGigapanGrid::gridIsGuessedBeforeThePhotosAreRead()
{
    const GigapanShoot shoot;

    const HeldPhotos held(shoot.driver, shoot.folder, 15);

    QCOMPARE(shoot.grid(), QStringLiteral("3 x 5"));
}

void TestUIWPGigapanGrid::newPhotosWhileOthersAreReadGiveANewGrid()
{
    const GigapanShoot shoot;
    const QStringList photos{ shoot.folder.addPhoto(QStringLiteral("new_1.jpg")),
                              shoot.folder.addPhoto(QStringLiteral("new_2.jpg")) };
    const HeldPhotos held(shoot.driver, shoot.folder);

    shoot.driver.load(kSelectPhotos, photos);

    QCOMPARE(shoot.grid(), QStringLiteral("1 x 2"));
}

void TestUIWPGigapanGrid::choosingPhotosForgetsBracketsAndIgnoredOnes()
{
    const GigapanShoot shoot;
    shoot.loadPhotos(13);
    shoot.enter(kIgnored, 1);
    shoot.enter(kBracket, 2);
    shoot.enter(kRows, 2);
    shoot.driver.click("m_rbMode3");

    shoot.loadPhotos(16);

    QCOMPARE(shoot.grid(), QStringLiteral("4 x 4"));
    QCOMPARE(shoot.page.m_sbIgnore->value(), 0);
    QCOMPARE(shoot.page.m_sbBracket->value(), 1);
    QCOMPARE(shoot.page.ignoredCount, 0);
    QCOMPARE(shoot.page.bracketCount, 1);
    QCOMPARE(shoot.checkedModes(), QVector<int>{ 3 });
    QCOMPARE(shoot.page.mode, 3);
}

void TestUIWPGigapanGrid::columnsFollowTheNumbers_data()
{
    QTest::addColumn<int>("photos");
    QTest::addColumn<QVector<Entry>>("entries");
    QTest::addColumn<QString>("grid"); // as shown
    QTest::addColumn<int>("columns"); // as meant; the box shows at least 1
    const auto row = [](const char *name, int photos, const QVector<Entry> &entries,
                        const char *grid, int columns) {
        QTest::newRow(name) << photos << entries << QString::fromLatin1(grid) << columns;
    };
    // (12 - 0) / 3 / 3 = 1 in the three rows guessed, 12 / 3 / 2 = 2
    row("12 photos in threes", 12, { { kBracket, 3 } }, "3 x 1", 1);
    row("12 photos in threes, 2 rows", 12, { { kBracket, 3 }, { kRows, 2 } }, "2 x 2", 2);
    // (13 - 1) / 2 / 2 = 3
    row("13 photos, the first ignored, in pairs, 2 rows", 13,
        { { kIgnored, 1 }, { kBracket, 2 }, { kRows, 2 } }, "2 x 3", 3);
    row("the same, entered in another order", 13,
        { { kRows, 2 }, { kBracket, 2 }, { kIgnored, 1 } }, "2 x 3", 3);
    // 7 / 2 = 3, one photo is left over
    row("rows do not divide the photos", 7, { { kRows, 2 } }, "2 x 3", 3);
    row("more rows than photos", 7, { { kRows, 8 } }, "8 x 1", 0);
    row("as many rows as there can be", 7, { { kRows, 100000 } }, "100000 x 1", 0);
    row("more photos in a bracket than there are", 7, { { kBracket, 8 } }, "1 x 1", 0);
    // 7 - 9 = -2
    row("more photos ignored than there are", 7, { { kIgnored, 9 } }, "1 x 1", -2);
    // (7 - 8) / 1 / 2 = 0, truncated towards zero
    row("one photo more ignored than there are, 2 rows", 7, { { kIgnored, 8 }, { kRows, 2 } },
        "2 x 1", 0);
    row("all photos ignored", 7, { { kIgnored, 7 } }, "1 x 1", 0);
    row("no photos: the fresh columns go with the first entry", 0, { { kRows, 2 } }, "2 x 1", 0);
}

void TestUIWPGigapanGrid::columnsFollowTheNumbers()
{
    QFETCH(int, photos);
    QFETCH(QVector<Entry>, entries);
    QFETCH(QString, grid);
    QFETCH(int, columns);
    const GigapanShoot shoot;
    if (photos > 0) {
        shoot.loadPhotos(photos);
    }

    for (const Entry &entry : qAsConst(entries)) {
        shoot.enter(entry.box, entry.value);
    }

    QCOMPARE(shoot.grid(), grid);
    QCOMPARE(shoot.page.columns, columns);
}

void TestUIWPGigapanGrid::numbersGoToTheGenerator()
{
    const GigapanShoot shoot;
    shoot.loadPhotos(30);

    shoot.enter(kRows, 2);
    shoot.enter(kIgnored, 3);
    shoot.enter(kBracket, 4);

    QCOMPARE(shoot.page.rows, 2);
    QCOMPARE(shoot.page.ignoredCount, 3);
    QCOMPARE(shoot.page.bracketCount, 4);
    QCOMPARE(shoot.page.columns, 3); // (30 - 3) / 4 = 6, 6 / 2
}

void TestUIWPGigapanGrid::nextHandsOverTheGrid()
{
    GigapanShoot shoot;
    shoot.loadPhotos(14);
    shoot.enter(kIgnored, 2);
    shoot.enter(kBracket, 3);
    shoot.enter(kRows, 2);
    shoot.driver.click("m_rbMode2");
    shoot.page.m_dsbOverlapping->stepBy(-3);

    QVERIFY(shoot.page.validatePage());

    const StructuredPanoramaProperties &handed = fakeHost().descriptions.first();
    QCOMPARE(handed.gridMode, 2);
    QCOMPARE(handed.gridRows, 2);
    QCOMPARE(handed.gridBracketCount, 3);
    QCOMPARE(handed.overlap, 25.0);
    QVERIFY(handed.useRecordedLocation); // there is no box for it
    QCOMPARE(handed.imageGroups.size(), 4);
    QCOMPARE(namesOf(handed.imageGroups[0]),
             list({ "IMG_0003.jpg", "IMG_0004.jpg", "IMG_0005.jpg" }));
    QCOMPARE(namesOf(handed.imageGroups[3]),
             list({ "IMG_0012.jpg", "IMG_0013.jpg", "IMG_0014.jpg" }));
    QCOMPARE(handed.imageGroups[0][0], shoot.folder.path(QStringLiteral("IMG_0003.jpg")));
    // From the bottom upwards, left to right: the upper left cell is the third one.
    QCOMPARE(handed.authorizedLinks.first().linkType, 1);
    QCOMPARE(handed.authorizedLinks.first().indices, (QVector<qint32>{ 2, 0 }));
}

void TestUIWPGigapanGrid::fullTurnLinksTheEnds()
{
    GigapanShoot shoot;
    shoot.loadPhotos(4);
    QVERIFY(shoot.page.validatePage());
    shoot.page.authorizedLinks.clear();

    shoot.driver.click("m_cbIS360");
    QVERIFY(shoot.page.validatePage());

    // In 2 x 2 cells two links down, two across and two diagonally; a full turn adds one across and
    // one of each diagonal per row or pair of rows: 2 + 2.
    QCOMPARE(fakeHost().descriptions.first().authorizedLinks.size(), 6);
    QCOMPARE(fakeHost().descriptions.last().authorizedLinks.size(), 10);
}

void TestUIWPGigapanGrid::randomGridsAreHandedOverAsTheHeadSweepsThem()
{
    std::mt19937 random(42); // seeded: a failure can be repeated
    const auto upTo
        = [&random](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    for (int run = 0; run < 60; ++run) {
        const int photoCount = 1 + upTo(60);
        const int rows = 1 + upTo(5);
        const int bracket = 1 + upTo(3);
        const int ignored = upTo(5);
        const int mode = upTo(4);
        const bool is360 = upTo(1) == 1;
        GigapanShoot shoot;
        const QStringList photos = shoot.folder.addPhotos(photoCount);
        shoot.driver.load(kSelectPhotos, photos);
        shoot.page.m_sbRow->setValue(rows);
        shoot.page.m_sbBracket->setValue(bracket);
        shoot.page.m_sbIgnore->setValue(ignored);
        shoot.choose(mode);
        shoot.page.m_cbIS360->setChecked(is360);

        QVERIFY(shoot.page.validatePage());

        const StructuredPanoramaProperties &handed = fakeHost().descriptions.last();
        const int columns = qMax(photoCount - ignored, 0) / bracket / rows;
        QVector<QStringList> stacks;
        for (int cell = 0; cell < rows * columns; ++cell) {
            stacks.append(photos.mid(ignored + cell * bracket, bracket));
        }
        QCOMPARE(handed.imageGroups, stacks);
        QCOMPARE(PlainGrid::linksOf(handed), PlainGrid::neighbours(mode, rows, columns, is360));
        QCOMPARE(handed.gridMode, mode);
        QCOMPARE(handed.gridRows, rows);
        QCOMPARE(handed.gridBracketCount, bracket);
        QCOMPARE(handed.gridWrap360, is360);
    }
}

void TestUIWPGigapanGrid::moreCellsThanPhotosKeepTheirLinks()
{
    for (int mode = 0; mode <= 4; ++mode) {
        GigapanShoot shoot;
        shoot.loadPhotos(7);
        shoot.enter(kBracket, 2);
        shoot.enter(kRows, 3);
        shoot.choose(mode);
        shoot.page.columns = 4; // no entry leads to more cells than photos

        QVERIFY(shoot.page.validatePage());

        const StructuredPanoramaProperties &handed = fakeHost().descriptions.last();
        QCOMPARE(handed.imageGroups.size(), 4); // the last one of what is there
        QCOMPARE(namesOf(handed.imageGroups.last()), list({ "IMG_0007.jpg" }));
        QCOMPARE(PlainGrid::linksOf(handed), PlainGrid::neighbours(mode, 3, 4, false));
    }
}

void TestUIWPGigapanGrid::pairWithoutACheckedButtonKeepsItsField()
{
    GigapanShoot shoot;
    shoot.page.levelLinking = 7;
    shoot.page.stackLinking = 8;
    shoot.page.m_rbLevelLinking0->setAutoExclusive(false);
    shoot.page.m_rbLevelLinking0->setChecked(false);
    shoot.page.buttonGroup->setExclusive(false);
    shoot.page.m_rbStackLinking0->setChecked(false);

    QVERIFY(shoot.page.validatePage());

    QCOMPARE(fakeHost().descriptions.first().levelLinking, 7);
    QCOMPARE(fakeHost().descriptions.first().stackLinking, 8);
}

void TestUIWPGigapanGrid::gridThatDoesNotFitGivesWhatItCan_data()
{
    QTest::addColumn<QVector<Entry>>("entries");
    QTest::addColumn<int>("stacks"); // of 7 photos
    QTest::addColumn<int>("links");
    const auto row = [](const char *name, const QVector<Entry> &entries, int stacks, int links) {
        QTest::newRow(name) << entries << stacks << links;
    };
    // 2 x 3 cells: 3 links down, 4 across, 4 diagonally; the seventh photo is in none of them
    row("rows that do not divide the photos", { { kRows, 2 } }, 6, 11);
    row("more rows than photos", { { kRows, 8 } }, 0, 0);
    row("as many rows as there can be", { { kRows, 100000 } }, 0, 0);
    row("more photos ignored than there are", { { kIgnored, 99 } }, 0, 0);
    row("more photos in a bracket than there are", { { kBracket, 99 } }, 0, 0);
    row("all of it", { { kRows, 100000 }, { kIgnored, 99 }, { kBracket, 99 } }, 0, 0);
    // 7 / 4 = 1 column of one row
    row("last photos do not fill a bracket", { { kBracket, 4 } }, 1, 0);
}

void TestUIWPGigapanGrid::gridThatDoesNotFitGivesWhatItCan()
{
    QFETCH(QVector<Entry>, entries);
    QFETCH(int, stacks);
    QFETCH(int, links);
    GigapanShoot shoot;
    shoot.loadPhotos(7);
    for (const Entry &entry : qAsConst(entries)) {
        shoot.enter(entry.box, entry.value);
    }
    QVERIFY(shoot.page.isComplete()); // only the photos count

    QVERIFY(shoot.page.validatePage());

    QCOMPARE(fakeHost().descriptions.first().imageGroups.size(), stacks);
    QCOMPARE(fakeHost().descriptions.first().authorizedLinks.size(), links);
}

void TestUIWPGigapanGrid::secondNextAppends()
{
    GigapanShoot shoot;
    shoot.loadPhotos(4);
    QVERIFY(shoot.page.validatePage());
    shoot.enter(kRows, 1);
    shoot.driver.click("m_rbMode3");
    shoot.driver.click("m_cbIS360");

    QVERIFY(shoot.page.validatePage());

    QCOMPARE(fakeHost().descriptions.size(), 2);
    const StructuredPanoramaProperties &first = fakeHost().descriptions.first();
    const StructuredPanoramaProperties &second = fakeHost().descriptions.last();
    QCOMPARE(first.imageGroups.size(), 4);
    QCOMPARE(first.authorizedLinks.size(), 6);
    QCOMPARE(second.imageGroups, first.imageGroups + first.imageGroups);
    QCOMPARE(second.authorizedLinks.size(), 6 + 4); // a ring of four
    QCOMPARE(second.gridRows, 1);
    QCOMPARE(second.gridMode, 3);
    QVERIFY(second.gridWrap360);
}

TEST_CLASS(TestUIWPGigapanGrid, FakeApplication)
#include "tst_uiwpgigapan_grid.moc"
