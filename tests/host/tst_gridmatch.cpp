// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/geometry.h"
#include "host/check/gridmatch.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <cmath>
#include <optional>

using namespace PanoHost;

namespace
{

constexpr int kRows = 3;
constexpr int kColumns = 4;
constexpr int kBracket = 3;
constexpr double kAcross = 12.0; ///< degrees from column to column
constexpr double kDown = 8.0;
const QSizeF kFields(20.0, 14.0);
/** The cell, row and column, of each shot of a sweep by rows from the bottom, to and fro. */
constexpr int kToAndFro[kRows * kColumns][2]
    = { { 2, 0 }, { 2, 1 }, { 2, 2 }, { 2, 3 }, { 1, 3 }, { 1, 2 },
        { 1, 1 }, { 1, 0 }, { 0, 0 }, { 0, 1 }, { 0, 2 }, { 0, 3 } };

/** Photos of cells "rc rc ..."; "rc*" shows nothing but sky. */
struct Shoot {
    QVector<Angles> angles;
    QVector<bool> isSky;

    void add(int row, int column, bool sky = false)
    {
        angles += Angles{ kAcross * column, 30.0 - kDown * row, 0.0 };
        isSky += sky;
    }
    static Shoot of(const QString &words)
    {
        Shoot shoot;
        for (const QString &word : words.split(QLatin1Char(' '))) {
            shoot.add(word.at(0).digitValue(), word.at(1).digitValue(),
                      word.endsWith(QLatin1Char('*')));
        }
        return shoot;
    }
    [[nodiscard]] QVector<PhotoInfo> photos() const { return QVector<PhotoInfo>(angles.size()); }
    [[nodiscard]] MeasureRotation pictures() const
    {
        return [*this](int one, int other) -> std::optional<Eigen::Matrix3d> {
            const bool overlap
                = std::abs(angles[one].yaw - angles[other].yaw) < 0.8 * kFields.width()
                && std::abs(angles[one].pitch - angles[other].pitch) < 0.8 * kFields.height();
            if (!overlap || isSky[one] || isSky[other]) {
                return {};
            }
            return Eigen::Matrix3d(rotationOf(angles[other]).transpose() * rotationOf(angles[one]));
        };
    }
};

QVector<int> shotsOf(const GridMatch &found)
{
    QVector<int> shots;
    for (const PhotoPlace &place : found.match.places) {
        shots += place.shot;
    }
    return shots;
}

} // namespace

/** Grids laid out by what pictures show, here made up from true angles. */
class TestGridMatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void photosFindTheirCells_data();
    void photosFindTheirCells();
    void whatPicturesDoNotTellIsNotGuessed_data();
    void whatPicturesDoNotTellIsNotGuessed();
    void stacksGoByTheirExposures();
    void largeGridsWithManyHolesAreLaidOut();
};

void TestGridMatch::photosFindTheirCells_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("cells");
    QTest::addColumn<QVector<int>>("shots");
    QTest::addColumn<int>("columns");
    QTest::newRow("complete") << 0 << "00 10 20 01 11 21 02 12 22 03 13 23"
                              << QVector<int>{ 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11 } << 4;
    QTest::newRow("first missing") << 0 << "10 20 01 11 21 02 12 22 03 13 23"
                                   << QVector<int>{ 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11 } << 4;
    QTest::newRow("last missing") << 0 << "00 10 20 01 11 21 02 12 22 03 13"
                                  << QVector<int>{ 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10 } << 4;
    QTest::newRow("two of a column missing") << 0 << "00 10 20 21 02 12 22 03 13 23"
                                             << QVector<int>{ 0, 1, 2, 5, 6, 7, 8, 9, 10, 11 } << 4;
    QTest::newRow("stopped in the last column")
        << 0 << "00 10 20 01 11 21 02 12 22 03" << QVector<int>{ 0, 1, 2, 3, 4, 5, 6, 7, 8, 9 }
        << 4;
    QTest::newRow("sky between") << 0 << "00 10 20 01* 11 21 02* 12 22 03 13"
                                 << QVector<int>{ 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10 } << 4;
    QTest::newRow("doubled, and one missing")
        << 0 << "00 10 20 01 11 11 21 02 22 03 13 23"
        << QVector<int>{ 0, 1, 2, 3, 4, 4, 5, 6, 8, 9, 10, 11 } << 4;
    QTest::newRow("columns from the right")
        << 3 << "03 23 02 12 22 01 11 21 00 10 20"
        << QVector<int>{ 0, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11 } << 4;
    QTest::newRow("rows from the top") << 1 << "00 01 02 03 10 12 13 20 21 22 23"
                                       << QVector<int>{ 0, 1, 2, 3, 4, 6, 7, 8, 9, 10, 11 } << 4;
    QTest::newRow("rows from the bottom") << 2 << "20 21 22 23 10 12 13 00 01 02 03"
                                          << QVector<int>{ 0, 1, 2, 3, 4, 6, 7, 8, 9, 10, 11 } << 4;
    QTest::newRow("to and fro") << 4 << "20 21 22 23 12 11 10 00 01 02 03"
                                << QVector<int>{ 0, 1, 2, 3, 5, 6, 7, 8, 9, 10, 11 } << 4;
    QTest::newRow("one column less than thought")
        << 0 << "00 10 20 01 11 21 21" << QVector<int>{ 0, 1, 2, 3, 4, 5, 5 } << 2;
}

void TestGridMatch::photosFindTheirCells()
{
    QFETCH(int, mode);
    QFETCH(QString, cells);
    const Shoot shoot = Shoot::of(cells);
    const auto found = matchGrid({ kRows, mode, 1, kFields }, shoot.photos(), shoot.pictures());
    QVERIFY(found);
    QTEST(shotsOf(*found), "shots");
    QTEST(found->columns, "columns");
    QVERIFY(found->match.isSure());
}

void TestGridMatch::whatPicturesDoNotTellIsNotGuessed_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("cells");
    QTest::newRow("all sky") << 0 << "00* 10* 20* 01* 11*";
    QTest::newRow("nothing but one cell") << 0 << "00 00 00 00";
    QTest::newRow("a whole row missing") << 0 << "00 10 01 11 02 12 03 13";
    QTest::newRow("sky beside a hole") << 0 << "00 10 20 01 21* 02* 12 22";
    QTest::newRow("swept in another order") << 1 << "00 10 20 01 11 21 02 12 22 03 13";
    QTest::newRow("against the order") << 0 << "03 13 23 02 12 22 01 21 00 10 20";
    QTest::newRow("two photos swapped") << 0 << "00 10 20 01 21 11 02 12 22 03 13";
    QTest::newRow("one photo") << 0 << "00";
}

void TestGridMatch::whatPicturesDoNotTellIsNotGuessed()
{
    QFETCH(int, mode);
    QFETCH(QString, cells);
    const Shoot shoot = Shoot::of(cells);
    QVERIFY(!matchGrid({ kRows, mode, 1, kFields }, shoot.photos(), shoot.pictures()));
}

void TestGridMatch::stacksGoByTheirExposures()
{
    Shoot shoot;
    QVector<std::optional<double>> exposures;
    QVector<int> expected;
    int shot = 0;
    for (const auto &cell : kToAndFro) {
        for (int level = 0; level < kBracket; ++level, ++shot) {
            if (shot == 7 || shot == 20) {
                continue;
            }
            shoot.add(cell[0], cell[1]);
            exposures += 10.0 + 2.0 * level;
            expected += shot;
        }
    }
    QVector<PhotoInfo> photos = shoot.photos();
    for (int i = 0; i < photos.size(); ++i) {
        photos[i].exposureValue = exposures[i];
    }
    const SweptGrid grid{ kRows, 4, kBracket, kFields };
    const auto found = matchGrid(grid, photos, shoot.pictures());
    QVERIFY(found);
    QCOMPARE(shotsOf(*found), expected);
    QCOMPARE(found->match.photoOfShot.count(-1), 2);

    // Which of three it is nobody can say without them.
    for (PhotoInfo &photo : photos) {
        photo.exposureValue.reset();
    }
    QVERIFY(!matchGrid(grid, photos, shoot.pictures()));
}

void TestGridMatch::largeGridsWithManyHolesAreLaidOut()
{
    constexpr int kLarge = 9; // rows and columns
    Shoot shoot;
    QVector<int> expected;
    for (int shot = 0; shot < kLarge * kLarge; ++shot) {
        if (shot % 10 != 3) {
            shoot.add(shot % kLarge, shot / kLarge);
            expected += shot;
        }
    }
    const auto found = matchGrid({ kLarge, 0, 1, kFields }, shoot.photos(), shoot.pictures());
    QVERIFY(found);
    QCOMPARE(shotsOf(*found), expected);
    QCOMPARE(found->columns, kLarge);
}

TEST_CLASS(TestGridMatch, QCoreApplication)
#include "tst_gridmatch.moc"
