// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/ptoproject.h"
#include "host/view/shootscene.h"
#include "host/view/viewcamera.h"
#include "tests/host/testpanoramas.h"
#include "tests/host/view/viewshoots.h"
#include "tests/support/testprogram.h"

#include <QElapsedTimer>

#include <cmath>
#include <limits>

using namespace PanoHost;
using ViewShoots::shootOf;

namespace
{

/** tan of half the field is 3/4 across, 1/2 down: 1200 x 800 pixels at 800 pixels focal length. */
constexpr double kHalfAcross = 36.86989764584402;
constexpr double kHalfDown = 26.565051177077994;
/** Whose 35 mm equivalent this is: 43.27 mm x 800 / 1442. */
const double kFocal = focal35mmOf(QSize(1200, 800), 800.0);

} // namespace

class ShootSceneTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void frameReachesAsFarAsItsField();
    void portraitPhotosStand();
    void rollTurnsClockwise();
    void stacksShowTheirReferencePhoto();
    void linksOfEmptyCellsAreLeftOut();
    void laterPhotosLieInFront();
    void frameHoldsThePole();
    void fisheyeSeesBehind();
    void missingFocalIsAssumed();
    void oddNumbersAreBorne_data();
    void oddNumbersAreBorne();
    void gapsAreWhereNoPhotoIs();
    void fullRowHasNoGaps();
    void projectShowsTheSame();
    void projectTellsResiduals();
    void manyPhotosTakeTheirTimeEach();
};

void ShootSceneTest::frameReachesAsFarAsItsField()
{
    const ShootScene scene = sceneOf(shootOf({ { 170, 0, 0 } }, kFocal));
    const ShootFrame &frame = scene.frames.at(0);
    QVERIFY(frame.shows(directionAt(170 + kHalfAcross - 0.01, 0)));
    QVERIFY(!frame.shows(directionAt(170 + kHalfAcross + 0.01, 0)));
    QVERIFY(frame.shows(directionAt(170, -kHalfDown + 0.01)));
    QVERIFY(!frame.shows(directionAt(170, -kHalfDown - 0.01)));
    QVERIFY(!frame.shows(directionAt(-10, 0)));
    QVERIFY(std::abs(scene.coverage.yawSpanDegrees - 2 * kHalfAcross) < 1e-6);
}

void ShootSceneTest::portraitPhotosStand()
{
    Panorama panorama = shootOf({ { 0, 0, 0 } }, kFocal);
    panorama.positions[0].photos[0].orientation = 6;
    const ShootFrame frame = sceneOf(panorama).frames.at(0);
    QVERIFY(frame.shows(directionAt(0, kHalfAcross - 0.01)));
    QVERIFY(!frame.shows(directionAt(kHalfDown + 0.01, 0)));
    // Orientation 6: the stored left edge is the upper one.
    const auto pixel
        = frame.lens.pixelOf(frame.toWorld.transpose() * directionAt(0, kHalfAcross - 0.01));
    QVERIFY(pixel->x() < 1.0);
}

void ShootSceneTest::rollTurnsClockwise()
{
    // The camera's right side sinks: what lies to its right and below is in the long side's middle.
    const ShootFrame frame = sceneOf(shootOf({ { 0, 0, 30 } }, kFocal)).frames.at(0);
    const Eigen::Vector3d rightBelow(std::cos(M_PI / 6) * 0.74, -std::sin(M_PI / 6) * 0.74, 1.0);
    const Eigen::Vector3d rightAbove(std::cos(M_PI / 6) * 0.74, std::sin(M_PI / 6) * 0.74, 1.0);
    QVERIFY(frame.shows(rightBelow.normalized()));
    QVERIFY(!frame.shows(rightAbove.normalized()));
}

void ShootSceneTest::stacksShowTheirReferencePhoto()
{
    const ShootScene scene = sceneOf(TestPanoramas::row(4, 3));
    QCOMPARE(scene.frames.size(), 4);
    QCOMPARE(scene.photoCount, 12);
    QCOMPARE(scene.frames.at(2).path, QStringLiteral("/photos/7.jpg"));
    QCOMPARE(scene.frames.at(2).photo, 6);
    QCOMPARE(scene.frames.at(2).photoCount, 3);
}

void ShootSceneTest::linksOfEmptyCellsAreLeftOut()
{
    Panorama panorama = TestPanoramas::row(3);
    ViewShoots::link(&panorama, 0, 1);
    ViewShoots::link(&panorama, 1, 7);
    ViewShoots::link(&panorama, -1, 2);
    const ShootScene scene = sceneOf(panorama);
    QCOMPARE(scene.links.size(), 1);
    QVERIFY(scene.frames.at(0).isLinked && scene.frames.at(1).isLinked);
    QVERIFY(!scene.frames.at(2).isLinked);
}

void ShootSceneTest::laterPhotosLieInFront()
{
    const ShootScene scene = sceneOf(shootOf({ { 0, 0 }, { 30, 0 }, { 200, 0 } }, kFocal));
    QCOMPARE(scene.frameAt(directionAt(15, 0)), 1);
    QCOMPARE(scene.frameAt(directionAt(15, 0), 0), 0);
    QCOMPARE(scene.frameAt(directionAt(-20, 0), 1), 0);
    QCOMPARE(scene.frameAt(directionAt(100, 0)), -1);
}

void ShootSceneTest::frameHoldsThePole()
{
    const ShootScene scene = sceneOf(shootOf({ { 40, 80 } }, kFocal));
    QCOMPARE(scene.frameAt(directionAt(0, 90)), 0);
    // 16 beyond the pole: 26 from the axis, still within half the height.
    QCOMPARE(scene.frameAt(directionAt(220, 74)), 0);
    QCOMPARE(scene.frameAt(directionAt(220, 73)), -1);
}

void ShootSceneTest::fisheyeSeesBehind()
{
    // 1200 pixels are 240 degrees.
    const double focal = 600.0 / (120.0 * M_PI / 180.0);
    const ShootScene scene
        = sceneOf(shootOf({ { 0, 0 } }, focal35mmOf(QSize(1200, 800), focal), LensModel::Fisheye));
    QCOMPARE(scene.frameAt(directionAt(119, 0)), 0);
    QCOMPARE(scene.frameAt(directionAt(121, 0)), -1);
    QCOMPARE(scene.frameAt(directionAt(0, 79)), 0);
}

void ShootSceneTest::missingFocalIsAssumed()
{
    const ShootScene scene = sceneOf(shootOf({ { 0, 0 }, { 10, 0 } }, 0.0));
    QVERIFY(scene.assumesFocal);
    QCOMPARE(scene.frameAt(directionAt(0, 0)), 0 + 1);
    QVERIFY(!sceneOf(TestPanoramas::row(2)).assumesFocal);
}

void ShootSceneTest::oddNumbersAreBorne_data()
{
    QTest::addColumn<double>("yaw");
    QTest::addColumn<double>("focal");
    QTest::addColumn<QSize>("size");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const QSize usual(1200, 800);
    QTest::newRow("angle is no number") << nan << 24.0 << usual;
    QTest::newRow("angle is endless") << HUGE_VAL << 24.0 << usual;
    QTest::newRow("many turns") << 1e15 << 24.0 << usual;
    QTest::newRow("focal length is no number") << 0.0 << nan << usual;
    QTest::newRow("focal length below nothing") << 0.0 << -3.0 << usual;
    QTest::newRow("focal length of nothing") << 0.0 << 1e-30 << usual;
    QTest::newRow("endless focal length") << 0.0 << 1e30 << usual;
    QTest::newRow("size unknown") << 0.0 << 24.0 << QSize();
    QTest::newRow("a line") << 0.0 << 24.0 << QSize(100000, 1);
}

void ShootSceneTest::oddNumbersAreBorne()
{
    QFETCH(double, yaw);
    QFETCH(double, focal);
    QFETCH(QSize, size);
    for (const LensModel lens : { LensModel::Standard, LensModel::Fisheye }) {
        Panorama panorama = shootOf({ { yaw, 20 }, { 90, 0 } }, focal, lens);
        panorama.positions[0].photos[0].storedSize = size;
        const ShootScene scene = sceneOf(panorama);
        QCOMPARE(scene.frames.size(), 2);
        (void)gapsOf(scene);
        (void)scene.frameAt(directionAt(10, 10));
        for (const ViewMode mode : { ViewMode::Flat, ViewMode::Sphere }) {
            ViewCamera camera;
            camera.mode = mode;
            camera.size = { 100, 50 };
            camera = camera.fitted(scene.coverage);
            const DrawList list = drawListOf(scene, camera, 1.0, 1);
            const QImage picture = SoftDrawer().draw(list, QSize(100, 50), mapRect(camera, 1.0),
                                                     ViewShoots::plainFill);
            QCOMPARE(picture.size(), QSize(100, 50));
        }
    }
    const Panorama none;
    QVERIFY(sceneOf(none).frames.isEmpty());
    QCOMPARE(gapsOf(sceneOf(none)).corners.size(), 180 * 90);
}

void ShootSceneTest::gapsAreWhereNoPhotoIs()
{
    // Two fields of 73.74 degrees a hundred apart leave 26.26 between them.
    const ShootScene scene = sceneOf(shootOf({ { 0, 0 }, { 100, 0 } }, kFocal));
    const Gaps gaps = gapsOf(scene);
    QVERIFY(!gaps.isEmpty());
    double west = 1e9;
    double east = -1e9;
    for (const auto &corner : gaps.corners) {
        const double yaw = corner.first + gaps.stepDegrees / 2.0;
        const double pitch = corner.second + gaps.stepDegrees / 2.0;
        QCOMPARE(scene.frameAt(directionAt(yaw, pitch)), -1);
        if (std::abs(pitch) < 1.0) {
            west = std::min(west, corner.first);
            east = std::max(east, corner.first + gaps.stepDegrees);
        }
    }
    QVERIFY(std::abs(west - kHalfAcross) <= gaps.stepDegrees);
    QVERIFY(std::abs(east - (100.0 - kHalfAcross)) <= gaps.stepDegrees);
}

void ShootSceneTest::fullRowHasNoGaps()
{
    // What lies beyond the row's curved edges is a gap of its band; along its middle there is none.
    Panorama panorama = TestPanoramas::row(12);
    const Gaps whole = gapsOf(sceneOf(panorama));
    panorama.positions.remove(3, 4);
    const Gaps holed = gapsOf(sceneOf(panorama));
    const auto inTheMiddle = [](const Gaps &gaps) {
        return std::count_if(gaps.corners.cbegin(), gaps.corners.cend(),
                             [](const auto &c) { return std::abs(c.second) < 10.0; });
    };
    QCOMPARE(inTheMiddle(whole), 0);
    // The hole is the widest and lies outside of the band, so that nothing is missing from it.
    QCOMPARE(inTheMiddle(holed), 0);
    QVERIFY(sceneOf(panorama).coverage.yawSpanDegrees < 320.0);
}

void ShootSceneTest::projectShowsTheSame()
{
    Panorama panorama = shootOf({ { 10, 5, 2 }, { 50, -5, 90 }, { 300, 60, 0 } }, kFocal);
    panorama.positions[1].photos[0].orientation = 6;
    const ShootScene recorded = sceneOf(panorama);
    const auto project = projectOf(panorama);
    QVERIFY(project.ok());
    const ShootScene aligned = sceneOf(project.value());
    QVERIFY(aligned.isAligned);
    QCOMPARE(aligned.frames.size(), 3);
    for (int i = 0; i < 3; ++i) {
        QVERIFY((aligned.frames.at(i).toWorld - recorded.frames.at(i).toWorld).norm() < 1e-6);
        QVERIFY(std::abs(aligned.frames.at(i).lens.focalPixels - 800.0) < 1e-3);
    }
    QCOMPARE(aligned.frames.at(0).residualPixels, -1.0);
}

void ShootSceneTest::projectTellsResiduals()
{
    // Both look the same way, so a point's residual is how far its two places are apart, but for
    // the tangent: near the middle a pixel is a pixel.
    auto project = projectOf(shootOf({ { 0, 0 }, { 0, 0 }, { 90, 0 } }, kFocal)).value();
    const auto point = [](double dx, bool isWrong) {
        return PtoPoint{ 0, 1, 599.5, 399.5, 599.5 + dx, 399.5, isWrong };
    };
    project.setPoints({ point(1, false), point(3, false), point(2, false), point(500, true) });
    const ShootScene scene = sceneOf(project);
    QVERIFY(std::abs(scene.frames.at(0).residualPixels - 2.0) < 1e-3);
    QVERIFY(std::abs(scene.frames.at(1).residualPixels - 2.0) < 1e-3);
    QCOMPARE(scene.frames.at(2).residualPixels, -1.0);
    QVERIFY(std::abs(scene.worstResidualPixels - 2.0) < 1e-3);
    QCOMPARE(scene.links, (QVector<QPair<int, int>>{ { 0, 1 } }));
    QVERIFY(!scene.frames.at(2).isLinked);
}

void ShootSceneTest::manyPhotosTakeTheirTimeEach()
{
    // Ten times as many photos may take as much longer and their share of a second; not its square.
    const auto nsFor = [](int count) {
        const Panorama panorama = ViewShoots::sphereOf(count);
        qint64 least = std::numeric_limits<qint64>::max();
        for (int run = 0; run < 3; ++run) {
            QElapsedTimer timer;
            timer.start();
            const ShootScene scene = sceneOf(panorama);
            (void)gapsOf(scene);
            least = std::min(least, timer.nsecsElapsed());
        }
        return static_cast<double>(least);
    };
    const double growth = nsFor(10000) / nsFor(1000);
    QVERIFY2(growth < 40.0, qPrintable(QString::number(growth)));
}

TEST_CLASS(ShootSceneTest, TestProgram::NoApplication)

#include "tst_shootscene.moc"
