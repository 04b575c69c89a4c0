// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/geometry.h"
#include "host/align/headmodel.h"
#include "tests/support/testprogram.h"

#include <QtMath>
#include <QtTest>

using namespace PanoHost;

namespace
{

AlignLens wideLens(LensModel model = LensModel::Standard)
{
    AlignLens lens;
    lens.size = QSize(600, 400);
    lens.model = model;
    lens.focalPixels = 400.0;
    return lens;
}

} // namespace

class TestGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anglesTurnTheCameraAsTheirNamesSay();
    void anglesComeBackFromTheirRotation_data();
    void anglesComeBackFromTheirRotation();
    void straightUpOnlyTheSumOfYawAndRollCounts();
    void rotationsAreComparedByTheirAngle();
    void pixelsSeeWhereTheLensFormulaSays();
    void pixelsComeBackFromTheirRays_data();
    void pixelsComeBackFromTheirRays();
    void rectilinearLensesDoNotSeeBackwards();
    void crookedCamerasTurnWithTheirHead();
};

void TestGeometry::anglesTurnTheCameraAsTheirNamesSay()
{
    const Eigen::Vector3d ahead(0, 0, 1);
    const Eigen::Vector3d right(1, 0, 0);
    const double half = std::sqrt(0.5);
    QVERIFY((rotationOf({ 90, 0, 0 }) * ahead).isApprox(right, 1e-12));
    QVERIFY((rotationOf({ 0, 45, 0 }) * ahead).isApprox(Eigen::Vector3d(0, half, half), 1e-12));
    // Clockwise from behind: the camera's right side goes down.
    QVERIFY((rotationOf({ 0, 0, 90 }) * right).isApprox(Eigen::Vector3d(0, -1, 0), 1e-12));
    // Pitch before yaw: a camera that looks up, then is turned, still looks up.
    QVERIFY((rotationOf({ 90, 45, 0 }) * ahead).isApprox(Eigen::Vector3d(half, half, 0), 1e-12));
}

void TestGeometry::anglesComeBackFromTheirRotation_data()
{
    QTest::addColumn<double>("yaw");
    QTest::addColumn<double>("pitch");
    QTest::addColumn<double>("roll");
    QTest::newRow("level") << 0.0 << 0.0 << 0.0;
    QTest::newRow("all three") << 30.0 << 20.0 << 25.0;
    QTest::newRow("behind, down, on its head") << -170.0 << -60.0 << 175.0;
    QTest::newRow("nearly straight up") << 12.0 << 89.9 << -33.0;
}

void TestGeometry::anglesComeBackFromTheirRotation()
{
    QFETCH(double, yaw);
    QFETCH(double, pitch);
    QFETCH(double, roll);
    const Angles angles = anglesOf(rotationOf({ yaw, pitch, roll }));
    QVERIFY(std::abs(angles.yaw - yaw) < 1e-9);
    QVERIFY(std::abs(angles.pitch - pitch) < 1e-9);
    QVERIFY(std::abs(angles.roll - roll) < 1e-9);
}

void TestGeometry::straightUpOnlyTheSumOfYawAndRollCounts()
{
    const Eigen::Matrix3d up = rotationOf({ 20.0, 90.0, 15.0 });
    const Angles angles = anglesOf(up);
    QCOMPARE(angles.pitch, 90.0);
    QVERIFY(degreesBetween(rotationOf(angles), up) < 1e-6);
}

void TestGeometry::rotationsAreComparedByTheirAngle()
{
    const Eigen::Matrix3d start = rotationOf({ 77.0, -40.0, 12.0 });
    QVERIFY(std::abs(degreesBetween(start, start * rotationOf({ 0.0, 1e-5, 0.0 })) - 1e-5) < 1e-9);
    QVERIFY(std::abs(degreesBetween(start, start * rotationOf({ 0.0, 0.0, 179.0 })) - 179.0)
            < 1e-6);
}

void TestGeometry::pixelsSeeWhereTheLensFormulaSays()
{
    // The middle of 600 x 400 pixels is 299.5, 199.5; 400 pixels to its right is 45 degrees.
    const double half = std::sqrt(0.5);
    QVERIFY(wideLens().rayOf({ 699.5, 199.5 }).isApprox(Eigen::Vector3d(half, 0, half), 1e-12));
    // Upwards, 400 pixels of an equidistant fisheye are one radian.
    QVERIFY(wideLens(LensModel::Fisheye)
                .rayOf({ 299.5, -200.5 })
                .isApprox(Eigen::Vector3d(0, std::sin(1.0), std::cos(1.0)), 1e-12));
    // b = -0.02 at twice the half of the shorter side: 2 * (-0.02 * 4 + 1.02) = 1.88 halves of 200.
    AlignLens barrel = wideLens();
    barrel.b = -0.02;
    const auto pixel = barrel.pixelOf({ 1.0, 0.0, 1.0 });
    QVERIFY(pixel.has_value());
    QVERIFY((*pixel - Eigen::Vector2d(299.5 + 376.0, 199.5)).norm() < 1e-9);
}

void TestGeometry::pixelsComeBackFromTheirRays_data()
{
    QTest::addColumn<int>("model");
    QTest::addColumn<double>("a");
    QTest::addColumn<double>("b");
    QTest::addColumn<double>("c");
    const int standard = static_cast<int>(LensModel::Standard);
    const int fisheye = static_cast<int>(LensModel::Fisheye);
    QTest::newRow("rectilinear") << standard << 0.0 << 0.0 << 0.0;
    QTest::newRow("fisheye") << fisheye << 0.0 << 0.0 << 0.0;
    QTest::newRow("barrel") << standard << 0.0 << -0.05 << 0.0;
    QTest::newRow("all of it") << fisheye << 0.01 << -0.03 << 0.005;
}

void TestGeometry::pixelsComeBackFromTheirRays()
{
    QFETCH(int, model);
    AlignLens lens = wideLens(static_cast<LensModel>(model));
    QFETCH(double, a);
    QFETCH(double, b);
    QFETCH(double, c);
    lens.a = a;
    lens.b = b;
    lens.c = c;
    for (const Eigen::Vector2d &pixel :
         { Eigen::Vector2d(0, 0), Eigen::Vector2d(299.5, 199.5), Eigen::Vector2d(599, 120.25) }) {
        const auto back = lens.pixelOf(3.0 * lens.rayOf(pixel));
        QVERIFY(back.has_value());
        QVERIFY((*back - pixel).norm() < 1e-8);
    }
}

void TestGeometry::rectilinearLensesDoNotSeeBackwards()
{
    QVERIFY(!wideLens().pixelOf({ 0, 0, -1 }).has_value());
    QVERIFY(!wideLens().pixelOf({ 1, 0, 0 }).has_value());
    QVERIFY(wideLens(LensModel::Fisheye).pixelOf({ 1, 0, -0.1 }).has_value());
}

void TestGeometry::crookedCamerasTurnWithTheirHead()
{
    HeadModel model;
    model.views.push_back({ { 40.0, 10.0, 0.0 }, 90.0, 0, -1 });
    model.corrections.push_back({ 0.5, -0.25, 0.0 });
    model.mountPitchDegrees = 0.8;
    model.yawScale = 1.1;
    // The head goes to 44.5 and 9.75; the tilt of the camera on it adds to the pitch, turned or
    // not.
    QVERIFY(degreesBetween(model.rotation(0), rotationOf({ 44.5, 10.55, 90.0 })) < 1e-9);
}

TEST_CLASS(TestGeometry, QCoreApplication)
#include "tst_geometry.moc"
