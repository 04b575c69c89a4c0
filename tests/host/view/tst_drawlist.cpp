// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/view/drawlist.h"
#include "tests/host/testpanoramas.h"
#include "tests/host/testphotos.h"
#include "tests/host/view/viewshoots.h"
#include "tests/support/testprogram.h"

#include <QGuiApplication>

#include <cmath>

Q_DECLARE_METATYPE(PanoHost::Panorama)
Q_DECLARE_METATYPE(PanoHost::ViewCamera)

using namespace PanoHost;
using ViewShoots::shootOf;

namespace
{

const QSize kScreen(360, 200);

ViewCamera cameraAt(ViewMode mode, double yaw, double pitch, double pixelsPerDegree)
{
    ViewCamera camera;
    camera.mode = mode;
    camera.yawDegrees = yaw;
    camera.pitchDegrees = pitch;
    camera.pixelsPerDegree = pixelsPerDegree;
    camera.size = kScreen;
    return camera;
}

QImage drawn(const ShootScene &scene, const ViewCamera &camera, int front = -1,
             const PictureDrawer::FillOf &fill = ViewShoots::plainFill)
{
    return SoftDrawer().draw(drawListOf(scene, camera, 1.0, front), kScreen, mapRect(camera, 1.0),
                             fill);
}

} // namespace

class DrawListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pixelsShowTheirPhoto_data();
    void pixelsShowTheirPhoto();
    void frontFrameCoversTheOthers();
    void photoStandsUpright_data();
    void photoStandsUpright();
    void tintIsLaidOver();
    void scaleMakesMorePixels();
    void framesOutOfSightAreLeftOut();
};

void DrawListTest::pixelsShowTheirPhoto_data()
{
    QTest::addColumn<Panorama>("panorama");
    QTest::addColumn<ViewCamera>("camera");
    const ViewCamera map = cameraAt(ViewMode::Flat, 0, 0, 1.0);
    const ViewCamera rolled = cameraAt(ViewMode::Flat, 170, 20, 2.5);
    const ViewCamera round = cameraAt(ViewMode::Sphere, 30, 10, 3.0);
    const ViewCamera zenith = cameraAt(ViewMode::Sphere, 0, 88, 2.0);
    const QVector<QPair<const char *, Panorama>> shoots{
        { "one row", shootOf({ { 0, 0 }, { 60, 0 }, { 120, 0 }, { 180, 0 }, { 240, 0 } }, 24) },
        { "turned and tilted",
          shootOf({ { -170, 30, 20 }, { 10, -30, 90 }, { 35, 15, -120 }, { 100, 50, 45 } }, 35) },
        { "poles", shootOf({ { 0, 90, 0 }, { 77, -90, 30 }, { 130, 70, 10 } }, 20) },
        { "many turns", shootOf({ { 720, 0 }, { -1110, 10 } }, 50) },
        { "fisheye",
          shootOf({ { 0, 0, 0 }, { 120, 0, 90 }, { 240, 10, 90 } }, 12, LensModel::Fisheye) },
        { "fisheye upwards", shootOf({ { 50, 80, 0 } }, 9, LensModel::Fisheye) },
    };
    for (const auto &shoot : shoots) {
        QTest::addRow("%s, map", shoot.first) << shoot.second << map;
        QTest::addRow("%s, rolled map", shoot.first) << shoot.second << rolled;
        QTest::addRow("%s, sphere", shoot.first) << shoot.second << round;
        QTest::addRow("%s, zenith", shoot.first) << shoot.second << zenith;
    }
}

void DrawListTest::pixelsShowTheirPhoto()
{
    QFETCH(Panorama, panorama);
    QFETCH(ViewCamera, camera);
    const QImage picture = drawn(sceneOf(panorama), camera);
    const double wrong = ViewShoots::wrongShare(picture, panorama, camera);
    QVERIFY2(wrong < 1e-4, qPrintable(QString::number(wrong)));
}

void DrawListTest::frontFrameCoversTheOthers()
{
    const ShootScene scene = sceneOf(shootOf({ { 0, 0 }, { 20, 0 } }, 24));
    const ViewCamera camera = cameraAt(ViewMode::Flat, 0, 0, 1.0);
    QCOMPARE(drawn(scene, camera).pixel(190, 100), ViewShoots::colourOf(1));
    QCOMPARE(drawn(scene, camera, 0).pixel(190, 100), ViewShoots::colourOf(0));
}

void DrawListTest::photoStandsUpright_data()
{
    QTest::addColumn<double>("roll");
    QTest::addColumn<QString>("seen"); // upper left, upper right, lower left, lower right
    QTest::newRow("as it is") << 0.0 << QStringLiteral("RGBY");
    // Clockwise: what was on the left comes to the top.
    QTest::newRow("a quarter") << 90.0 << QStringLiteral("BRYG");
    QTest::newRow("half") << 180.0 << QStringLiteral("YBGR");
}

void DrawListTest::photoStandsUpright()
{
    QFETCH(double, roll);
    QFETCH(QString, seen);
    const QImage quarters
        = TestPhotos::quarters(QSize(60, 40)).convertToFormat(QImage::Format_RGB32);
    const ShootScene scene = sceneOf(shootOf({ { 0, 0, roll } }, 35));
    for (const ViewMode mode : { ViewMode::Flat, ViewMode::Sphere }) {
        const QImage picture = drawn(scene, cameraAt(mode, 0, 0, 3.0), -1, [&](const Patch &) {
            return FrameFill{ quarters, 0, 0 };
        });
        const QImage middle = picture.copy(180 - 40, 100 - 40, 80, 80);
        QCOMPARE(TestPhotos::seenQuarters(middle), seen);
    }
}

void DrawListTest::tintIsLaidOver()
{
    const ShootScene scene = sceneOf(shootOf({ { 0, 0 } }, 24));
    const ViewCamera camera = cameraAt(ViewMode::Flat, 0, 0, 1.0);
    const QImage picture = drawn(scene, camera, -1, [](const Patch &) {
        return FrameFill{ {}, qRgb(200, 100, 0), qRgba(0, 100, 200, 128) };
    });
    const QRgb colour = picture.pixel(180, 100);
    QVERIFY(std::abs(qRed(colour) - 100) <= 2);
    QCOMPARE(qGreen(colour), 100);
    QVERIFY(std::abs(qBlue(colour) - 100) <= 2);
}

void DrawListTest::scaleMakesMorePixels()
{
    const ShootScene scene = sceneOf(shootOf({ { 0, 0 }, { 40, 10, 15 } }, 24));
    const ViewCamera camera = cameraAt(ViewMode::Sphere, 20, 5, 3.0);
    const QImage once = drawn(scene, camera);
    const QImage twice = SoftDrawer().draw(drawListOf(scene, camera, 2.0), kScreen * 2,
                                           mapRect(camera, 2.0), ViewShoots::plainFill);
    int same = 0;
    for (int y = 0; y < kScreen.height(); ++y) {
        for (int x = 0; x < kScreen.width(); ++x) {
            same += once.pixel(x, y) == twice.pixel(2 * x, 2 * y) ? 1 : 0;
        }
    }
    QVERIFY(same > 0.97 * kScreen.width() * kScreen.height());
}

void DrawListTest::framesOutOfSightAreLeftOut()
{
    const ShootScene scene = sceneOf(TestPanoramas::row(36));
    const DrawList map = drawListOf(scene, cameraAt(ViewMode::Flat, 0, 0, 1.0), 1.0);
    QVERIFY(map.patches.size() > 36); // those at the edges have two places
    // 36 degrees are shown; fields are 74 wide: 55 to either side of the middle.
    const DrawList close = drawListOf(scene, cameraAt(ViewMode::Flat, 0, 0, 10.0), 1.0);
    QCOMPARE(close.patches.size(), size_t(11));
    const DrawList above = drawListOf(scene, cameraAt(ViewMode::Sphere, 0, 90, 8.0), 1.0);
    QVERIFY(above.patches.empty());
}

TEST_CLASS(DrawListTest, QGuiApplication)

#include "tst_drawlist.moc"
