// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/camera.h"
#include "tests/support/testprogram.h"

#include <QtTest>

using namespace PanoHost;

namespace
{

// 24 * hypot(900, 600) / hypot(36, 24) = 24 * 25 = 600 pixels per radian at the centre
const QSize kSize(900, 600);
constexpr double kStandardFocal = 24.0;
constexpr double kFisheyeFocal = 12.0; // 300 pixels per radian

/** A soft white spot on black, \p widthDegrees wide. */
RayLight spotAt(double yawDegrees, double pitchDegrees, double widthDegrees)
{
    const Vec3 spot = directionTo(yawDegrees, pitchDegrees);
    return [spot, widthDegrees](const Vec3 &direction) {
        const double away = degrees(std::acos(std::min(1.0, dot(direction, spot)))) / widthDegrees;
        const auto light = static_cast<float>(std::exp(-away * away));
        return Rgb{ light, light, light };
    };
}

/** The middle of the light, in continuous pixel coordinates; the light of one pixel is 0.5 away. */
QPointF centroid(const LightField &field)
{
    double sum = 0.0;
    QPointF weighted;
    for (int y = 0; y < field.size.height(); ++y) {
        for (int x = 0; x < field.size.width(); ++x) {
            const double light = field.pixels[static_cast<size_t>(y) * field.size.width() + x].red;
            sum += light;
            weighted += light * QPointF(x + 0.5, y + 0.5);
        }
    }
    return weighted / sum;
}

double tangent(double degreesOfAngle)
{
    return std::tan(degreesOfAngle * 3.14159265358979 / 180.0);
}

double distance(const QPointF &a, const QPointF &b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

} // namespace

class TestCamera : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void partOfTheSphereIsThatPartOfTheWholePicture();
    void markerLandsOnItsPixel_data();
    void markerLandsOnItsPixel();
    void uprightPortraitKeepsTheFocalLengthInPixels();
    void distortionMovesMarkersAlongTheirRadius_data();
    void distortionMovesMarkersAlongTheirRadius();
    void vignettingTakesItsShareOfTheLight();
    void pixelAndDirectionAreEachOthersInverse_data();
    void pixelAndDirectionAreEachOthersInverse();
    void directionsBehindARectilinearCameraHaveNoPixel();
    void markerLandsOnItsPixelOfTheSphere_data();
    void markerLandsOnItsPixelOfTheSphere();
    void pixelsAverageTheLightThatFallsOnThem();
    void stopsDoubleTheLightBeforeTheCurve_data();
    void stopsDoubleTheLightBeforeTheCurve();
};

void TestCamera::markerLandsOnItsPixel_data()
{
    QTest::addColumn<bool>("fisheye");
    QTest::addColumn<double>("yaw");
    QTest::addColumn<double>("pitch");
    QTest::addColumn<double>("roll");
    QTest::addColumn<double>("markerYaw");
    QTest::addColumn<double>("markerPitch");
    QTest::addColumn<QPointF>("pixel");

    const double ten = 600.0 * tangent(10.0);
    QTest::newRow("straight ahead")
        << false << 30.0 << 20.0 << 0.0 << 30.0 << 20.0 << QPointF(450, 300);
    QTest::newRow("yaw is to the right")
        << false << 0.0 << 0.0 << 0.0 << 10.0 << 0.0 << QPointF(450 + ten, 300);
    QTest::newRow("pitch is up") << false << 0.0 << 0.0 << 0.0 << 0.0 << 10.0
                                 << QPointF(450, 300 - ten);
    QTest::newRow("yaw of the camera is taken off")
        << false << 170.0 << 0.0 << 0.0 << -180.0 << 0.0 << QPointF(450 + ten, 300);
    QTest::newRow("pitch of the camera is taken off")
        << false << 77.0 << -50.0 << 0.0 << 77.0 << -60.0 << QPointF(450, 300 + ten);
    // Above yaw 90 pitch 80 come the zenith and then pitch 80 of the other side: 20 degrees up.
    QTest::newRow("across the zenith") << false << 90.0 << 80.0 << 0.0 << -90.0 << 80.0
                                       << QPointF(450, 300 - 600.0 * tangent(20.0));
    // A camera turned clockwise sees the world turned to the left: up is where left was.
    QTest::newRow("roll is clockwise, marker above")
        << false << 0.0 << 0.0 << 90.0 << 0.0 << 10.0 << QPointF(450 - ten, 300);
    QTest::newRow("roll is clockwise, marker beside")
        << false << 0.0 << 0.0 << 90.0 << 10.0 << 0.0 << QPointF(450, 300 - ten);
    QTest::newRow("roll by 30") << false << 0.0 << 0.0 << 30.0 << 0.0 << 10.0
                                << QPointF(450 - 0.5 * ten, 300 - std::sqrt(0.75) * ten);
    // x = tan(yaw), y = tan(pitch) / cos(yaw)
    QTest::newRow("off both axes")
        << false << 0.0 << 0.0 << 0.0 << 20.0 << 15.0
        << QPointF(450 + 600.0 * 0.363970, 300 - 600.0 * 0.267949 / 0.939693);
    QTest::newRow("fisheye is linear in the angle")
        << true << 0.0 << 0.0 << 0.0 << 60.0 << 0.0 << QPointF(450 + 300.0 * 1.047198, 300);
    QTest::newRow("fisheye, nearly beside the camera")
        << true << 0.0 << 0.0 << 0.0 << -80.0 << 0.0 << QPointF(450 - 300.0 * 1.396263, 300);
    QTest::newRow("fisheye, turned")
        << true << 10.0 << 0.0 << -90.0 << 10.0 << 40.0 << QPointF(450 + 300.0 * 0.698132, 300);
}

void TestCamera::markerLandsOnItsPixel()
{
    QFETCH(bool, fisheye);
    QFETCH(double, yaw);
    QFETCH(double, pitch);
    QFETCH(double, roll);
    QFETCH(double, markerYaw);
    QFETCH(double, markerPitch);
    QFETCH(QPointF, pixel);

    const Camera camera = fisheye ? Camera{ kSize, kFisheyeFocal, Projection::EquidistantFisheye }
                                  : Camera{ kSize, kStandardFocal, Projection::Rectilinear };
    const LightField photo
        = exposePhoto(spotAt(markerYaw, markerPitch, 0.3), camera, { yaw, pitch, roll }, 1);
    const QPointF seen = centroid(photo);
    QVERIFY2(distance(seen, pixel) < 0.2,
             qPrintable(QStringLiteral("%1, %2").arg(seen.x()).arg(seen.y())));
}

void TestCamera::uprightPortraitKeepsTheFocalLengthInPixels()
{
    const Camera camera{ kSize.transposed(), kStandardFocal, Projection::Rectilinear };
    const QPointF seen = centroid(exposePhoto(spotAt(0.0, 20.0, 0.3), camera, {}, 1));
    QVERIFY(distance(seen, QPointF(300, 450 - 600.0 * tangent(20.0))) < 0.2);
}

void TestCamera::distortionMovesMarkersAlongTheirRadius_data()
{
    QTest::addColumn<double>("a");
    QTest::addColumn<double>("b");
    QTest::addColumn<double>("c");
    QTest::addColumn<double>("markerYaw");
    QTest::addColumn<double>("roll");
    QTest::addColumn<QPointF>("pixel");
    // Half of the shorter side, 300 pixels, is the unit. tan(26.56505) = 1 / 2: radius 1 stays.
    QTest::newRow("at radius 1 nothing moves")
        << 0.01 << -0.03 << 0.02 << 26.56505 << 0.0 << QPointF(750, 300);
    // tan(33.69007) = 2 / 3: 4 / 3 units; barrel: 4 / 3 * (-0.02 * 16 / 9 + 1.02) = 1.3125926
    QTest::newRow("b = -0.02") << 0.0 << -0.02 << 0.0 << 33.69007 << 0.0
                               << QPointF(450 + 300 * 1.3125926, 300);
    // 4 / 3 * (0.01 * 64 / 27 + 0.02 * 16 / 9 - 0.03 * 4 / 3 + 1) = 1.3590123
    QTest::newRow("all three") << 0.01 << 0.02 << -0.03 << 33.69007 << 0.0
                               << QPointF(450 + 300 * 1.3590123, 300);
    // tan(14.03624) = 1 / 4: half a unit: 0.5 * (-0.1 / 4 + 1.1) = 0.5375; to the right is now up
    QTest::newRow("near the centre, turned")
        << 0.0 << -0.1 << 0.0 << 14.03624 << 90.0 << QPointF(450, 300 - 300 * 0.5375);
}

void TestCamera::distortionMovesMarkersAlongTheirRadius()
{
    QFETCH(double, a);
    QFETCH(double, b);
    QFETCH(double, c);
    QFETCH(double, markerYaw);
    QFETCH(double, roll);
    QFETCH(QPointF, pixel);
    const Camera camera{ kSize, kStandardFocal, Projection::Rectilinear, { a, b, c } };
    const QPointF seen
        = centroid(exposePhoto(spotAt(markerYaw, 0.0, 0.3), camera, { 0.0, 0.0, roll }, 1));
    QVERIFY2(distance(seen, pixel) < 0.2,
             qPrintable(QStringLiteral("%1, %2").arg(seen.x()).arg(seen.y())));
}

void TestCamera::vignettingTakesItsShareOfTheLight()
{
    const RayLight even = [](const Vec3 &) { return Rgb{ 0.8F, 0.4F, 0.2F }; };
    LensErrors errors;
    errors.vignettingB = -0.45;
    errors.vignettingC = 0.1;
    errors.vignettingD = -0.02;
    const QSize odd(301, 201); // half of the diagonal: hypot(150.5, 100.5) = 180.97
    const LightField photo
        = exposePhoto(even, { odd, kStandardFocal, Projection::Rectilinear, errors }, {}, 1);
    const auto red = [&](int x, int y) { return photo.pixels[static_cast<size_t>(y) * 301 + x]; };
    QVERIFY(std::fabs(red(150, 100).red - 0.8F) < 1e-6F);
    // r^2 = 150^2 / 32750.5 = 0.687012; 1 - 0.309155 + 0.047199 - 0.006485
    QVERIFY(std::fabs(red(300, 100).red - 0.8F * 0.731558F) < 1e-5F);
    QVERIFY(std::fabs(red(0, 100).green - 0.4F * 0.731558F) < 1e-5F);
    // The middle of the corner's pixel: (150^2 + 100^2) / 32750.5 = 0.992351
    QVERIFY(std::fabs(red(300, 200).blue - 0.2F * 0.632374F) < 1e-5F);
}

void TestCamera::pixelAndDirectionAreEachOthersInverse_data()
{
    QTest::addColumn<int>("projection");
    QTest::addColumn<double>("b");
    QTest::newRow("rectilinear") << static_cast<int>(Projection::Rectilinear) << 0.0;
    QTest::newRow("fisheye") << static_cast<int>(Projection::EquidistantFisheye) << 0.0;
    QTest::newRow("barrel") << static_cast<int>(Projection::Rectilinear) << -0.05;
    QTest::newRow("pincushion of a fisheye")
        << static_cast<int>(Projection::EquidistantFisheye) << 0.03;
}

void TestCamera::pixelAndDirectionAreEachOthersInverse()
{
    QFETCH(int, projection);
    QFETCH(double, b);
    const View view({ kSize, kFisheyeFocal, static_cast<Projection>(projection), { 0.0, b } },
                    { 123.0, -56.0, 78.0 });
    for (const QPointF place :
         { QPointF(0.25, 0.25), QPointF(450, 300), QPointF(899, 1), QPointF(17, 580) }) {
        const Vec3 direction = view.directionAt(place.x(), place.y());
        QVERIFY(std::fabs(dot(direction, direction) - 1.0) < 1e-12);
        const std::optional<QPointF> back = view.pixelAt(direction);
        QVERIFY(back);
        QVERIFY(distance(*back, place) < 1e-6);
    }
}

void TestCamera::directionsBehindARectilinearCameraHaveNoPixel()
{
    const View view({ kSize, kStandardFocal, Projection::Rectilinear }, {});
    QVERIFY(view.pixelAt(directionTo(0.0, 0.0)));
    QVERIFY(!view.pixelAt(directionTo(180.0, 0.0)));
    QVERIFY(!view.pixelAt(directionTo(37.0, 0.0))); // half the field of view is 36.87 degrees
    // Barrel distortion brings directions far outside back into the polynomial's picture: not here.
    const View barrel({ kSize, kStandardFocal, Projection::Rectilinear, { 0.0, -0.02 } }, {});
    QVERIFY(!barrel.pixelAt(directionTo(74.0, 0.0)));
}

void TestCamera::markerLandsOnItsPixelOfTheSphere_data()
{
    QTest::addColumn<double>("yaw");
    QTest::addColumn<double>("pitch");
    QTest::addColumn<QPointF>("pixel");
    QTest::newRow("middle") << 0.0 << 0.0 << QPointF(512, 256);
    QTest::newRow("right and up") << 90.0 << 45.0 << QPointF(768, 128);
    QTest::newRow("left and down") << -135.0 << -30.0 << QPointF(128, 341.3333);
}

void TestCamera::markerLandsOnItsPixelOfTheSphere()
{
    QFETCH(double, yaw);
    QFETCH(double, pitch);
    QFETCH(QPointF, pixel);
    const LightField sphere = exposeSphere(spotAt(yaw, pitch, 1.0), 1024, 1);
    QCOMPARE(sphere.size, QSize(1024, 512));
    QVERIFY(distance(centroid(sphere), pixel) < 0.2);
}

void TestCamera::pixelsAverageTheLightThatFallsOnThem()
{
    // White above the horizon, black below: the rays of the middle row fall half on either.
    const RayLight horizon = [](const Vec3 &direction) {
        return direction.z > 0.0 ? Rgb{ 1.0F, 1.0F, 1.0F } : Rgb{};
    };
    const Camera camera{ QSize(3, 3), kStandardFocal, Projection::Rectilinear };
    const LightField photo = exposePhoto(horizon, camera, {}, 4);
    QCOMPARE(photo.pixels[1].green, 1.0F);
    QCOMPARE(photo.pixels[4].green, 0.5F);
    QCOMPARE(photo.pixels[7].green, 0.0F);
}

void TestCamera::stopsDoubleTheLightBeforeTheCurve_data()
{
    QTest::addColumn<double>("stops");
    QTest::addColumn<int>("level");
    // 1.055 * light^(1 / 2.4) - 0.055, times 255
    QTest::newRow("reference, 0.2") << 0.0 << 124;
    QTest::newRow("one more, 0.4") << 1.0 << 170;
    QTest::newRow("two less, 0.05") << -2.0 << 63;
    QTest::newRow("three more, clipped") << 3.0 << 255;
}

void TestCamera::stopsDoubleTheLightBeforeTheCurve()
{
    QFETCH(double, stops);
    QFETCH(int, level);
    const LightField grey{ QSize(1, 1), { Rgb{ 0.2F, 0.2F, 0.2F } } };
    QCOMPARE(developed(grey, stops).pixel(0, 0), qRgb(level, level, level));
}

void TestCamera::partOfTheSphereIsThatPartOfTheWholePicture()
{
    // 90 degrees about yaw 90 of a picture of 360 degrees: columns 640 to 895 of 1024.
    const RayLight light = spotAt(100.0, 10.0, 1.0);
    const QImage whole = developed(exposeSphere(light, 1024, 1));
    const QRect crop(20, 200, 200, 90);
    const QImage part = developed(exposePart(light, { QSize(256, 512), 90.0, 90.0, crop }, 1));
    QCOMPARE(part.size(), crop.size());
    QCOMPARE(part, whole.copy(crop.translated(640, 0)));
    QVERIFY(part != developed(exposePart(light, { QSize(256, 512), 90.0, 91.0, crop }, 1)));
}

TEST_CLASS(TestCamera, QCoreApplication)
#include "tst_camera.moc"
