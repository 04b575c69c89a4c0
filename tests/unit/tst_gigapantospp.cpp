// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/gigapan/gigapantospp.h"
#include "importers/gigapan/gridguess.h"
#include "tests/support/plaingrid.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <random>

using namespace PlainGrid;

namespace
{

QStringList files(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names.append(QStringLiteral("/shoot/%1.jpg").arg(i));
    }
    return names;
}

} // namespace

class TestGigapanToSPP : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void freshDescriptionHasTheGridDefaults();
    void smallGridIsTheOneWorkedOutByHand();
    void smallGridWrapsAround();
    void serpentineStartsAtTheBottomLeft();
    void stacksTakeBracketsBehindTheIgnoredFiles();
    void cellsWithoutFilesGetNoStackButTheirLinks();
    void lastStackTakesWhatThereIs();
    void oneColumnThatWrapsLinksToItself();
    void gridIsWrittenIntoTheDescription();
    void secondCallAppends();
    void emptyGridsGiveNothing_data();
    void emptyGridsGiveNothing();
    void unknownModeHasStacksAndNoLinks();
    void bracketCountBelowOneIsNoBracketing();
    void randomGridsHaveTheNeighboursOfTheTable();
    void guessIsTheMostSquareGrid_data();
    void guessIsTheMostSquareGrid();
    void columnsFollowFilesBracketAndRows_data();
    void columnsFollowFilesBracketAndRows();
};

void TestGigapanToSPP::freshDescriptionHasTheGridDefaults()
{
    const GigapanToSPP generator(0, 0, 0, 1, 0);

    QVERIFY(!generator.positionsKnown);
    QVERIFY(!generator.rollKnown);
    QVERIFY(generator.autoDetection);
    QVERIFY(generator.useRecordedLocation);
    QCOMPARE(generator.overlap, 25.0);
    QVERIFY(generator.lensModel == LensModel::NotChosen);
    QCOMPARE(generator.renderMode, -1);
    QVERIFY(generator.yaw.isEmpty());
}

void TestGigapanToSPP::smallGridIsTheOneWorkedOutByHand()
{
    GigapanToSPP generator(2, 3, 0, 1, 0);

    generator.generateSPP(files(6), false);

    QCOMPARE(generator.imageGroups.size(), 6);
    for (int i = 0; i < 6; ++i) {
        QCOMPARE(generator.imageGroups[i], QStringList{ files(6)[i] });
    }
    // Columns from the left: (0,0) 0, (1,0) 1, (0,1) 2, (1,1) 3, (0,2) 4, (1,2) 5.
    const Links expected{ { 1, 0, 1 }, { 2, 0, 2 }, { 4, 1, 2 }, { 3, 0, 3 },
                          { 1, 2, 3 }, { 2, 2, 4 }, { 4, 3, 4 }, { 3, 2, 5 },
                          { 1, 4, 5 }, { 2, 1, 3 }, { 2, 3, 5 } };
    QCOMPARE(linksOf(generator), expected);
}

void TestGigapanToSPP::smallGridWrapsAround()
{
    GigapanToSPP generator(2, 3, 0, 1, 0);

    generator.generateSPP(files(6), true);

    const Links expected{ { 1, 0, 1 }, { 2, 0, 2 }, { 4, 1, 2 }, { 3, 0, 3 }, { 1, 2, 3 },
                          { 2, 2, 4 }, { 4, 3, 4 }, { 3, 2, 5 }, { 1, 4, 5 }, { 2, 4, 0 },
                          { 4, 5, 0 }, { 3, 4, 1 }, { 2, 1, 3 }, { 2, 3, 5 }, { 2, 5, 1 } };
    QCOMPARE(linksOf(generator), expected);
}

void TestGigapanToSPP::serpentineStartsAtTheBottomLeft()
{
    GigapanToSPP generator(3, 3, 4, 1, 0);

    generator.generateSPP(files(9), false);

    // Bottom row 0 1 2, middle row 5 4 3, top row 6 7 8: the vertical links from the top row are
    // 6-5, 7-4, 8-3, those from the middle row 5-0, 4-1, 3-2.
    Links vertical;
    for (const QVector<int> &link : linksOf(generator)) {
        if (link[0] == 1) {
            vertical.append(link);
        }
    }
    QCOMPARE(
        vertical,
        (Links{ { 1, 6, 5 }, { 1, 7, 4 }, { 1, 8, 3 }, { 1, 5, 0 }, { 1, 4, 1 }, { 1, 3, 2 } }));
}

void TestGigapanToSPP::stacksTakeBracketsBehindTheIgnoredFiles()
{
    GigapanToSPP generator(2, 2, 0, 3, 2);
    const QStringList names = files(14);

    generator.generateSPP(names, false);

    QCOMPARE(generator.imageGroups,
             (QVector<QStringList>{ names.mid(2, 3), names.mid(5, 3), names.mid(8, 3),
                                    names.mid(11, 3) }));
}

void TestGigapanToSPP::cellsWithoutFilesGetNoStackButTheirLinks()
{
    GigapanToSPP generator(2, 3, 0, 1, 0);

    generator.generateSPP(files(4), false);

    QCOMPARE(generator.imageGroups.size(), 4);
    QCOMPARE(generator.authorizedLinks.size(), 11);
}

void TestGigapanToSPP::lastStackTakesWhatThereIs()
{
    GigapanToSPP generator(1, 2, 0, 3, 0);

    generator.generateSPP(files(4), false);

    QCOMPARE(generator.imageGroups, (QVector<QStringList>{ files(4).mid(0, 3), files(4).mid(3) }));
}

void TestGigapanToSPP::oneColumnThatWrapsLinksToItself()
{
    GigapanToSPP generator(2, 1, 0, 1, 0);

    generator.generateSPP(files(2), true);

    QCOMPARE(linksOf(generator),
             (Links{ { 1, 0, 1 }, { 2, 0, 0 }, { 4, 1, 0 }, { 3, 0, 1 }, { 2, 1, 1 } }));
}

void TestGigapanToSPP::gridIsWrittenIntoTheDescription()
{
    GigapanToSPP generator(2, 3, 2, 4, 1);

    generator.generateSPP(files(25), true);

    QCOMPARE(generator.gridMode, 2);
    QCOMPARE(generator.gridRows, 2);
    QCOMPARE(generator.gridBracketCount, 4);
    QVERIFY(generator.gridWrap360);
    QVERIFY(generator.yaw.isEmpty());
    QCOMPARE(generator.focalLength, 0.0F);
}

void TestGigapanToSPP::secondCallAppends()
{
    GigapanToSPP generator(2, 3, 0, 1, 0);
    generator.generateSPP(files(6), false);
    generator.rows = 3;
    generator.columns = 2;

    generator.generateSPP(files(6), false);

    QCOMPARE(generator.imageGroups.size(), 12);
    QCOMPARE(linksOf(generator), neighbours(0, 2, 3, false) + neighbours(0, 3, 2, false));
}

void TestGigapanToSPP::emptyGridsGiveNothing_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("ignored");
    QTest::newRow("no rows") << 0 << 3 << 0;
    QTest::newRow("no columns") << 3 << 0 << 0;
    QTest::newRow("columns below zero, more ignored than there are") << 2 << -4 << 9;
    QTest::newRow("both below zero: no grid of their product") << -2 << -3 << 0;
}

void TestGigapanToSPP::emptyGridsGiveNothing()
{
    QFETCH(int, rows);
    QFETCH(int, columns);
    QFETCH(int, ignored);
    GigapanToSPP generator(rows, columns, 0, 1, ignored);

    generator.generateSPP(files(4), true);

    QVERIFY(generator.imageGroups.isEmpty());
    QVERIFY(generator.authorizedLinks.isEmpty());
}

void TestGigapanToSPP::unknownModeHasStacksAndNoLinks()
{
    for (const int mode : { -1, 5, 1000 }) {
        GigapanToSPP generator(2, 2, mode, 1, 0);
        generator.generateSPP(files(4), true);
        QCOMPARE(generator.imageGroups.size(), 4);
        QVERIFY(generator.authorizedLinks.isEmpty());
    }
}

void TestGigapanToSPP::bracketCountBelowOneIsNoBracketing()
{
    GigapanToSPP generator(1, 2, 0, 0, 0);

    generator.generateSPP(files(2), false);

    QCOMPARE(generator.imageGroups, (QVector<QStringList>{ { files(2)[0] }, { files(2)[1] } }));
}

void TestGigapanToSPP::randomGridsHaveTheNeighboursOfTheTable()
{
    std::mt19937 random(20); // seeded: a failure can be repeated
    const auto upTo
        = [&random](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    for (int run = 0; run < 400; ++run) {
        const int rows = 1 + upTo(9);
        const int columns = 1 + upTo(9);
        const int mode = upTo(4);
        const int bracket = 1 + upTo(4);
        const int ignored = upTo(5);
        const bool is360 = upTo(1) == 1;
        // From no file at all to more than the grid takes, in whole stacks.
        const int stacks = upTo(rows * columns + 3);
        const QStringList names = files(ignored + stacks * bracket);
        GigapanToSPP generator(rows, columns, mode, bracket, ignored);

        generator.generateSPP(names, is360);

        QCOMPARE(linksOf(generator), neighbours(mode, rows, columns, is360));
        QVector<QStringList> expected;
        for (int stack = 0; stack < qMin(stacks, rows * columns); ++stack) {
            expected.append(names.mid(ignored + stack * bracket, bracket));
        }
        QCOMPARE(generator.imageGroups, expected);
    }
}

void TestGigapanToSPP::guessIsTheMostSquareGrid_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::newRow("1") << 1 << 1 << 1;
    QTest::newRow("2") << 2 << 1 << 2;
    QTest::newRow("7, a prime") << 7 << 1 << 7;
    QTest::newRow("12") << 12 << 3 << 4;
    QTest::newRow("16") << 16 << 4 << 4;
    QTest::newRow("70,000 = 2^4 5^4 7") << 70000 << 250 << 280;
    QTest::newRow("none") << 0 << 1 << 0;
}

void TestGigapanToSPP::guessIsTheMostSquareGrid()
{
    QFETCH(int, count);
    const PanoHead::GridSize guess = PanoHead::guessGrid(count);
    QTEST(guess.rows, "rows");
    QTEST(guess.columns, "columns");
}

void TestGigapanToSPP::columnsFollowFilesBracketAndRows_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("ignored");
    QTest::addColumn<int>("bracket");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::newRow("12 in brackets of 3, 3 rows") << 12 << 0 << 3 << 3 << 1;
    QTest::newRow("12 in brackets of 3, 2 rows") << 12 << 0 << 3 << 2 << 2;
    QTest::newRow("13, 1 ignored, brackets of 2, 2 rows") << 13 << 1 << 2 << 2 << 3;
    QTest::newRow("truncated") << 11 << 0 << 2 << 2 << 2;
    QTest::newRow("more rows than photos") << 3 << 0 << 1 << 4 << 0;
    // (2 - 9) / 1 / 2 = -7 / 2, truncated toward zero
    QTest::newRow("more ignored than there are") << 2 << 9 << 1 << 2 << -3;
}

void TestGigapanToSPP::columnsFollowFilesBracketAndRows()
{
    QFETCH(int, count);
    QFETCH(int, ignored);
    QFETCH(int, bracket);
    QFETCH(int, rows);
    QTEST(PanoHead::columnsFor(count, ignored, bracket, rows), "columns");
}

TEST_CLASS(TestGigapanToSPP, QCoreApplication)
#include "tst_gigapantospp.moc"
