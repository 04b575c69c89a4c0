// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/geometry.h"
#include "host/view/viewcamera.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <cmath>

using namespace PanoHost;

namespace
{

ViewCamera flat()
{
    // Two pixels a degree: the map is 720 x 360, 40 pixels are left on each side.
    ViewCamera camera;
    camera.mode = ViewMode::Flat;
    camera.pixelsPerDegree = 2.0;
    camera.size = { 800, 400 };
    return camera;
}

ViewCamera sphere()
{
    // 90 degrees across: the focal length is half the width.
    ViewCamera camera;
    camera.mode = ViewMode::Sphere;
    camera.size = { 800, 400 };
    camera.pixelsPerDegree = 400.0 * M_PI / 180.0;
    return camera;
}

bool near(const std::optional<QPointF> &point, double x, double y)
{
    return point && std::hypot(point->x() - x, point->y() - y) < 1e-6;
}

} // namespace

class ViewCameraTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void directionsFollowYawAndPitch();
    void mapIsOfDegrees();
    void mapRollsAcrossTheJoin();
    void nothingIsBesideTheMap();
    void sphereIsOfTangents();
    void nothingIsSeenBehind();
    void waysBackAgree_data();
    void waysBackAgree();
    void dragTakesThePictureAlong_data();
    void dragTakesThePictureAlong();
    void zoomKeepsWhatIsUnderTheCursor_data();
    void zoomKeepsWhatIsUnderTheCursor();
    void zoomAndPitchHaveBounds();
    void fitShowsAllAndNoMore();
};

void ViewCameraTest::directionsFollowYawAndPitch()
{
    QVERIFY((directionAt(0, 0) - Eigen::Vector3d(0, 0, 1)).norm() < 1e-12);
    QVERIFY((directionAt(90, 0) - Eigen::Vector3d(1, 0, 0)).norm() < 1e-12);
    QVERIFY((directionAt(0, 90) - Eigen::Vector3d(0, 1, 0)).norm() < 1e-12);
    QVERIFY((directionAt(30, 20) - rotationOf({ 30, 20, 77 }).col(2)).norm() < 1e-12);
}

void ViewCameraTest::mapIsOfDegrees()
{
    QVERIFY(near(flat().pointOf(directionAt(0, 0)), 400, 200));
    QVERIFY(near(flat().pointOf(directionAt(30, 0)), 460, 200));
    QVERIFY(near(flat().pointOf(directionAt(-30, 45)), 340, 110));
}

void ViewCameraTest::mapRollsAcrossTheJoin()
{
    ViewCamera camera = flat();
    camera.yawDegrees = 170.0;
    // -175 is 15 to the right of 170.
    QVERIFY(near(camera.pointOf(directionAt(-175, 0)), 430, 200));
}

void ViewCameraTest::nothingIsBesideTheMap()
{
    QVERIFY(!flat().directionOf({ 39, 200 }));
    QVERIFY(flat().directionOf({ 41, 200 }));
    QVERIFY(!flat().directionOf({ 400, 19 }));
    QVERIFY(flat().directionOf({ 400, 21 }));
}

void ViewCameraTest::sphereIsOfTangents()
{
    QVERIFY(near(sphere().pointOf(directionAt(0, 0)), 400, 200));
    QVERIFY(near(sphere().pointOf(directionAt(45, 0)), 800, 200));
    // tan 45 / cos 0 up: beyond the screen, but a place.
    QVERIFY(near(sphere().pointOf(directionAt(0, 45)), 400, -200));
    ViewCamera up = sphere();
    up.pitchDegrees = 90.0;
    QVERIFY(near(up.pointOf(directionAt(123, 90)), 400, 200));
}

void ViewCameraTest::nothingIsSeenBehind()
{
    QVERIFY(!sphere().pointOf(directionAt(180, 0)));
    QVERIFY(!sphere().pointOf(directionAt(0, -95)));
}

void ViewCameraTest::waysBackAgree_data()
{
    QTest::addColumn<bool>("isSphere");
    QTest::newRow("flat") << false;
    QTest::newRow("sphere") << true;
}

void ViewCameraTest::waysBackAgree()
{
    QFETCH(bool, isSphere);
    ViewCamera camera = isSphere ? sphere() : flat();
    camera.yawDegrees = -160.0;
    camera.pitchDegrees = 25.0;
    for (int x = 50; x < 750; x += 25) {
        for (int y = 100; y < 400; y += 25) {
            const auto direction = camera.directionOf(QPointF(x, y));
            QVERIFY(direction);
            QVERIFY(near(camera.pointOf(*direction), x, y));
        }
    }
}

void ViewCameraTest::dragTakesThePictureAlong_data()
{
    waysBackAgree_data();
}

void ViewCameraTest::dragTakesThePictureAlong()
{
    QFETCH(bool, isSphere);
    const ViewCamera camera = isSphere ? sphere() : flat();
    const Eigen::Vector3d middle = *camera.directionOf({ 400, 200 });
    const QPointF moved = *camera.dragged({ 8, 6 }).pointOf(middle);
    // On the sphere the two differ as an angle and its tangent do.
    QVERIFY(std::hypot(moved.x() - 408, moved.y() - 206) < 0.01);
}

void ViewCameraTest::zoomKeepsWhatIsUnderTheCursor_data()
{
    waysBackAgree_data();
}

void ViewCameraTest::zoomKeepsWhatIsUnderTheCursor()
{
    QFETCH(bool, isSphere);
    ViewCamera camera = isSphere ? sphere() : flat();
    camera.yawDegrees = 175.0;
    const QPointF cursor(480, 170);
    const Eigen::Vector3d under = *camera.directionOf(cursor);
    const ViewCamera closer = camera.zoomed(1.5, cursor);
    QCOMPARE(closer.pixelsPerDegree, camera.pixelsPerDegree * 1.5);
    const QPointF point = *closer.pointOf(under);
    QVERIFY2(std::hypot(point.x() - cursor.x(), point.y() - cursor.y()) < (isSphere ? 3.0 : 1e-6),
             qPrintable(QStringLiteral("%1 %2").arg(point.x()).arg(point.y())));
}

void ViewCameraTest::zoomAndPitchHaveBounds()
{
    QCOMPARE(flat().dragged({ 0, 1e6 }).pitchDegrees, 90.0);
    QVERIFY(flat().zoomed(1e-9, { 400, 200 }).pixelsPerDegree > 0.1);
    QVERIFY(flat().zoomed(1e9, { 400, 200 }).pixelsPerDegree < 1e4);
    // 120 degrees across: half the width over tan 60.
    QCOMPARE(sphere().zoomed(1e-9, { 400, 200 }).focalPixels(), 400.0 / std::sqrt(3.0));
}

void ViewCameraTest::fitShowsAllAndNoMore()
{
    // 60 x 20 degrees around yaw 100, pitch 10; 6 % of the width is margin.
    const Coverage coverage{ 100.0, 60.0, 0.0, 20.0 };
    const ViewCamera map = flat().fitted(coverage);
    QCOMPARE(map.pixelsPerDegree, 800 * 0.94 / 60.0);
    QCOMPARE(map.yawDegrees, 100.0);
    QCOMPARE(map.pitchDegrees, 10.0);
    const ViewCamera round = sphere().fitted(coverage);
    QCOMPARE(round.focalPixels(), 400 * 0.94 * std::sqrt(3.0));
}

TEST_CLASS(ViewCameraTest, TestProgram::NoApplication)

#include "tst_viewcamera.moc"
