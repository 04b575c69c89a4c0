// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/coverage.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <cmath>

using namespace PanoHost;

namespace
{

/** 1200 x 800 pixels at 800 pixels focal length: tan of half the field is 3/4 across, 1/2 down. */
constexpr double kHalfAcross = 36.86989764584402;
constexpr double kHalfDown = 26.565051177077994;

Frame frameAt(double yaw, double pitch, double roll = 0.0)
{
    return { QSize(1200, 800), 800.0, LensModel::Standard, yaw, pitch, roll };
}

bool near(double actual, double expected)
{
    return std::abs(actual - expected) < 1e-9;
}

} // namespace

#define COMPARE_NEAR(actual, expected)                                                             \
    QVERIFY2(near(actual, expected), qPrintable(QString::number(actual, 'g', 12)))

class CoverageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void singleFrameCoversItsField();
    void centreIsWrapped_data();
    void centreIsWrapped();
    void rollSwapsTheSides();
    void rollTurnsClockwise();
    void frameWithAPoleGoesAllAround_data();
    void frameWithAPoleGoesAllAround();
    void rowAcrossTheJoinIsOneRange();
    void largestHoleIsLeftOut();
    void fullRowLeavesNoHole();
    void fisheyeCoversItsField();
    void fisheyeOfMoreThanHalfTheSphereHoldsBothPoles();
    void manyTurnsOfYawAreOne();
};

void CoverageTest::singleFrameCoversItsField()
{
    const Coverage covered = coverageOf({ frameAt(0, 0) });
    COMPARE_NEAR(covered.yawCentreDegrees, 0.0);
    COMPARE_NEAR(covered.yawSpanDegrees, 2 * kHalfAcross);
    COMPARE_NEAR(covered.highestPitchDegrees, kHalfDown);
    COMPARE_NEAR(covered.lowestPitchDegrees, -kHalfDown);
}

void CoverageTest::centreIsWrapped_data()
{
    QTest::addColumn<double>("yaw");
    QTest::addColumn<double>("centre");
    QTest::newRow("right") << 30.0 << 30.0;
    QTest::newRow("left") << -30.0 << -30.0;
    QTest::newRow("350 is -10") << 350.0 << -10.0;
    QTest::newRow("180 is -180") << 180.0 << -180.0;
    QTest::newRow("190 is -170") << 190.0 << -170.0;
    QTest::newRow("-190 is 170") << -190.0 << 170.0;
}

void CoverageTest::centreIsWrapped()
{
    QFETCH(double, yaw);
    QFETCH(double, centre);
    const Coverage covered = coverageOf({ frameAt(yaw, 0) });
    COMPARE_NEAR(covered.yawCentreDegrees, centre);
    COMPARE_NEAR(covered.yawSpanDegrees, 2 * kHalfAcross);
}

void CoverageTest::rollSwapsTheSides()
{
    const Coverage covered = coverageOf({ frameAt(0, 0, 90) });
    COMPARE_NEAR(covered.yawSpanDegrees, 2 * kHalfDown);
    COMPARE_NEAR(covered.highestPitchDegrees, kHalfAcross);
}

void CoverageTest::rollTurnsClockwise()
{
    // A camera turned clockwise by 10 degrees and then raised by 20: its upper right corner is
    // 600 cos 10 + 400 sin 10 = 660.3 to the right and 400 cos 10 - 600 sin 10 = 289.7 up, its
    // upper left one 521.4 to the left and 498.1 up. Raising moves them towards the camera by
    // their height times sin 20, so they lie atan(660.3 / 652.7) and atan(521.4 / 581.4) aside.
    const Coverage covered = coverageOf({ frameAt(0, 20, 10) });
    const double right = covered.yawCentreDegrees + covered.yawSpanDegrees / 2.0;
    const double left = covered.yawCentreDegrees - covered.yawSpanDegrees / 2.0;
    QVERIFY2(std::abs(right - std::atan(660.3 / 652.7) * 180.0 / M_PI) < 0.01,
             qPrintable(QString::number(right)));
    QVERIFY2(std::abs(left + std::atan(521.4 / 581.4) * 180.0 / M_PI) < 0.01,
             qPrintable(QString::number(left)));
}

void CoverageTest::frameWithAPoleGoesAllAround_data()
{
    QTest::addColumn<double>("pitch");
    QTest::addColumn<double>("highest");
    QTest::addColumn<double>("lowest");
    // The corners of a frame that looks straight up are furthest from the zenith.
    const double corner = 90.0 - std::atan(std::hypot(600.0, 400.0) / 800.0) * 180.0 / M_PI;
    QTest::newRow("straight up") << 90.0 << 90.0 << corner;
    QTest::newRow("straight down") << -90.0 << -corner << -90.0;
}

void CoverageTest::frameWithAPoleGoesAllAround()
{
    QFETCH(double, pitch);
    QFETCH(double, highest);
    QFETCH(double, lowest);
    const Coverage covered = coverageOf({ frameAt(70, pitch) });
    COMPARE_NEAR(covered.yawSpanDegrees, 360.0);
    COMPARE_NEAR(covered.yawCentreDegrees, 0.0);
    COMPARE_NEAR(covered.highestPitchDegrees, highest);
    COMPARE_NEAR(covered.lowestPitchDegrees, lowest);
    // The zenith is just outside at 63.4 degrees: 90 - 26.6 is the limit.
    QVERIFY(coverageOf({ frameAt(0, 63.0) }).yawSpanDegrees < 360.0);
    QVERIFY(coverageOf({ frameAt(0, 64.0) }).yawSpanDegrees == 360.0);
}

void CoverageTest::rowAcrossTheJoinIsOneRange()
{
    const Coverage covered = coverageOf({ frameAt(340, 0), frameAt(0, 0), frameAt(20, 0) });
    COMPARE_NEAR(covered.yawCentreDegrees, 0.0);
    COMPARE_NEAR(covered.yawSpanDegrees, 40.0 + 2 * kHalfAcross);
}

void CoverageTest::largestHoleIsLeftOut()
{
    // Frames at 0, 90 and 180: holes of 90 - 73.7 = 16.3 degrees twice, and of 106.3 at the left.
    const Coverage covered = coverageOf({ frameAt(180, 0), frameAt(0, 0), frameAt(90, 0) });
    COMPARE_NEAR(covered.yawCentreDegrees, 90.0);
    COMPARE_NEAR(covered.yawSpanDegrees, 180.0 + 2 * kHalfAcross);
}

void CoverageTest::fullRowLeavesNoHole()
{
    QVector<Frame> frames;
    for (int yaw = 0; yaw < 360; yaw += 60) {
        frames.append(frameAt(yaw, 0));
    }
    const Coverage covered = coverageOf(frames);
    COMPARE_NEAR(covered.yawSpanDegrees, 360.0);
    COMPARE_NEAR(covered.yawCentreDegrees, 0.0);
    COMPARE_NEAR(covered.highestPitchDegrees, kHalfDown);
    frames.removeLast();
    // The frame at 300 is gone: from 240 + 36.87 to 360 - 36.87.
    const Coverage open = coverageOf(frames);
    COMPARE_NEAR(open.yawSpanDegrees, 240.0 + 2 * kHalfAcross);
    COMPARE_NEAR(open.yawCentreDegrees, 120.0);
}

void CoverageTest::fisheyeCoversItsField()
{
    // 400 pixels per radian: 1.5 rad to the sides, 1 rad up and down.
    Frame frame = frameAt(0, 0);
    frame.lens = LensModel::Fisheye;
    frame.focalPixels = 400.0;
    const Coverage covered = coverageOf({ frame });
    QVERIFY(covered.yawSpanDegrees >= 2 * 1.5 * 180.0 / M_PI - 1e-9);
    QVERIFY(covered.yawSpanDegrees < 360.0);
    QVERIFY(covered.highestPitchDegrees >= 180.0 / M_PI - 1e-9);
    COMPARE_NEAR(covered.yawCentreDegrees, 0.0);
}

void CoverageTest::fisheyeOfMoreThanHalfTheSphereHoldsBothPoles()
{
    // 1200 x 1200 pixels, 300 per radian: 2 rad (115 degrees) up, down and to the sides.
    Frame frame = frameAt(0, 0);
    frame.size = QSize(1200, 1200);
    frame.lens = LensModel::Fisheye;
    frame.focalPixels = 300.0;
    const Coverage covered = coverageOf({ frame });
    COMPARE_NEAR(covered.yawSpanDegrees, 360.0);
    COMPARE_NEAR(covered.highestPitchDegrees, 90.0);
    COMPARE_NEAR(covered.lowestPitchDegrees, -90.0);
}

void CoverageTest::manyTurnsOfYawAreOne()
{
    const Coverage covered = coverageOf({ frameAt(3600.0 + 340.0, 0), frameAt(-720.0, 0) });
    QVERIFY(std::abs(covered.yawCentreDegrees + 10.0) < 1e-6);
    QVERIFY(std::abs(covered.yawSpanDegrees - (20.0 + 2 * kHalfAcross)) < 1e-6);
}

TEST_CLASS(CoverageTest, QCoreApplication)
#include "tst_coverage.moc"
