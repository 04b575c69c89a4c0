// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/assumedgrid.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <cmath>

using namespace PanoHost;

namespace
{

/** 1200 x 800 at 24 mm: 73.7398 degrees across, 53.1301 down. */
const QSize kFrame(1200, 800);
constexpr double kAcross = 73.73979529168804;
constexpr double kDown = 53.13010235415599;

StructuredPanoramaProperties grid(int positions, int rows, int mode)
{
    StructuredPanoramaProperties d;
    for (int i = 0; i < positions; ++i) {
        d.imageGroups.append({ QString::number(i) });
    }
    d.gridRows = rows;
    d.gridMode = mode;
    d.overlap = 25.0;
    return d;
}

/** Row and column of each shot of a grid, read off its layout: "rc rc ...". */
QString cells(const AssumedGrid &layout, int rows)
{
    QStringList names;
    for (const GridDirection &d : layout.directions) {
        const double row = (rows - 1) / 2.0 - d.pitchDegrees / (kDown * 0.75);
        const double column = (layout.columns - 1) / 2.0 + d.yawDegrees / (kAcross * 0.75);
        names.append(QString::number(std::lround(row)) + QString::number(std::lround(column)));
    }
    return names.join(QLatin1Char(' '));
}

bool near(double actual, double expected)
{
    return std::abs(actual - expected) < 1e-9;
}

} // namespace

class AssumedGridTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shotsFollowTheOrder_data();
    void shotsFollowTheOrder();
    void stepsAreTheFieldLessTheOverlap();
    void fullTurnIsDividedByTheColumns();
    void incompleteLastColumnCounts();
    void missingCellsLeaveHoles();
    void steepRowsAreClampedAndSaid();
    void emptyGridsGiveNothing();
    void fisheyeRowsFollowTheAngle();
};

void AssumedGridTest::shotsFollowTheOrder_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("expected");
    // 2 rows of 3 columns; row 0 is the upper one
    QTest::newRow("columns from the left") << 0 << "00 10 01 11 02 12";
    QTest::newRow("rows downward") << 1 << "00 01 02 10 11 12";
    QTest::newRow("rows upward") << 2 << "10 11 12 00 01 02";
    QTest::newRow("columns to the left") << 3 << "02 12 01 11 00 10";
    QTest::newRow("serpentine upward") << 4 << "10 11 12 02 01 00";
}

void AssumedGridTest::shotsFollowTheOrder()
{
    QFETCH(int, mode);
    QFETCH(QString, expected);
    const AssumedGrid layout = assumedGrid(grid(6, 2, mode), kFrame, 24.0, LensModel::Standard);
    QCOMPARE(layout.columns, 3);
    QCOMPARE(cells(layout, 2), expected);
    QVERIFY(layout.warnings.isEmpty());
}

void AssumedGridTest::stepsAreTheFieldLessTheOverlap()
{
    const AssumedGrid layout = assumedGrid(grid(4, 2, 1), kFrame, 24.0, LensModel::Standard);
    // Two columns lie half a step to either side of yaw 0, two rows about pitch 0.
    QVERIFY(near(layout.directions[0].yawDegrees, -0.5 * 0.75 * kAcross));
    QVERIFY(near(layout.directions[1].yawDegrees, 0.5 * 0.75 * kAcross));
    QVERIFY(near(layout.directions[0].pitchDegrees, 0.5 * 0.75 * kDown));
    QVERIFY(near(layout.directions[2].pitchDegrees, -0.5 * 0.75 * kDown));
}

void AssumedGridTest::fullTurnIsDividedByTheColumns()
{
    StructuredPanoramaProperties d = grid(12, 1, 1);
    d.gridWrap360 = true;
    const AssumedGrid layout = assumedGrid(d, kFrame, 24.0, LensModel::Standard);
    for (int i = 0; i < 12; ++i) {
        QVERIFY(near(layout.directions[i].yawDegrees, (i - 5.5) * 30.0));
    }
}

void AssumedGridTest::incompleteLastColumnCounts()
{
    const AssumedGrid layout = assumedGrid(grid(5, 2, 0), kFrame, 24.0, LensModel::Standard);
    QCOMPARE(layout.columns, 3);
    QCOMPARE(layout.directions.size(), 5);
}

void AssumedGridTest::steepRowsAreClampedAndSaid()
{
    const AssumedGrid layout = assumedGrid(grid(9, 9, 0), kFrame, 24.0, LensModel::Standard);
    QCOMPARE(layout.directions.first().pitchDegrees, 85.0);
    QCOMPARE(layout.directions.last().pitchDegrees, -85.0);
    QCOMPARE(layout.warnings.size(), 1);
}

void AssumedGridTest::emptyGridsGiveNothing()
{
    QVERIFY(assumedGrid(grid(0, 2, 0), kFrame, 24.0, LensModel::Standard).directions.isEmpty());
    QVERIFY(assumedGrid(grid(4, 2, 0), QSize(), 24.0, LensModel::Standard).directions.isEmpty());
    // No rows said, or more than photos: still a place for each.
    QCOMPARE(assumedGrid(grid(4, 0, 0), kFrame, 24.0, LensModel::Standard).directions.size(), 4);
    QCOMPARE(assumedGrid(grid(4, 99, 0), kFrame, 24.0, LensModel::Standard).directions.size(), 4);
}

void AssumedGridTest::fisheyeRowsFollowTheAngle()
{
    // 36 / 12 rad = 171.887 degrees across, two thirds of that down.
    const AssumedGrid layout = assumedGrid(grid(2, 2, 0), kFrame, 12.0, LensModel::Fisheye);
    QVERIFY(near(layout.directions[0].pitchDegrees, 0.5 * 0.75 * 2.0 * 180.0 / M_PI));
}

void AssumedGridTest::missingCellsLeaveHoles()
{
    // Two rows, columns from the left: cells 1 (row 1, column 0) and 4 (row 0, column 2) of 6.
    const AssumedGrid layout
        = assumedGrid(grid(4, 2, 0), kFrame, 24.0, LensModel::Standard, { 1, 4 });
    QCOMPARE(layout.columns, 3);
    QCOMPARE(cells(layout, 2), QStringLiteral("00 01 11 12"));
    // What is no cell says nothing but how many there are.
    QCOMPARE(
        assumedGrid(grid(4, 2, 0), kFrame, 24.0, LensModel::Standard, { -7, 99 }).directions.size(),
        4);
}

TEST_CLASS(AssumedGridTest, QCoreApplication)
#include "tst_assumedgrid.moc"
