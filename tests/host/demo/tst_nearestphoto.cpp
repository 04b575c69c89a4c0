// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/nearestphoto.h"
#include "tests/support/testprogram.h"

#include <QtTest>

using namespace PanoHost;

namespace
{

const Camera kCamera{ QSize(90, 60), 24.0, Projection::Rectilinear }; // 73.7 x 53.1 degrees

PlacedPhoto plain(const QColor &colour, const Pose &pose)
{
    QImage picture(kCamera.size, QImage::Format_RGB32);
    picture.fill(colour);
    return { picture, kCamera, pose };
}

/** The colour of a panorama of 360 x 180 pixels: one per degree. */
QColor at(const QImage &panorama, int yawDegrees, int pitchDegrees)
{
    return panorama.pixelColor(180 + yawDegrees, 90 - pitchDegrees);
}

} // namespace

class TestNearestPhoto : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void nearestCentreWinsAndOutsideStaysTransparent();
    void photoThatDoesNotReachGivesWayToOneThatDoes();
    void detailsStandWhereTheyWere();
    void unreadablePhotosAreLeftOut();
};

void TestNearestPhoto::nearestCentreWinsAndOutsideStaysTransparent()
{
    const QImage panorama = nearestPhotoPanorama(
        { plain(Qt::red, { 0.0, 0.0, 0.0 }), plain(Qt::blue, { 50.0, 0.0, 0.0 }) }, 360);
    QCOMPARE(panorama.size(), QSize(360, 180));
    QCOMPARE(at(panorama, -30, 0), QColor(Qt::red));
    QCOMPARE(at(panorama, 23, 0), QColor(Qt::red));
    QCOMPARE(at(panorama, 27, 0), QColor(Qt::blue));
    QCOMPARE(at(panorama, 80, 0), QColor(Qt::blue));
    QCOMPARE(at(panorama, 90, 0).alpha(), 0);
    QCOMPARE(at(panorama, 0, 40).alpha(), 0);
    QCOMPARE(at(panorama, -170, 0).alpha(), 0);
}

void TestNearestPhoto::photoThatDoesNotReachGivesWayToOneThatDoes()
{
    // Pitch 28 is above the first photo (26.6 up), nearer to its centre than to the second's.
    const QImage panorama = nearestPhotoPanorama(
        { plain(Qt::red, { 0.0, 0.0, 0.0 }), plain(Qt::blue, { 0.0, 54.0, 0.0 }) }, 360);
    QCOMPARE(at(panorama, 0, 25), QColor(Qt::red));
    QCOMPARE(at(panorama, 0, 29), QColor(Qt::blue));
}

void TestNearestPhoto::detailsStandWhereTheyWere()
{
    const auto isWhite = [](const Vec3 &direction) {
        const double yaw = yawDegreesOf(direction);
        const double pitch = pitchDegreesOf(direction);
        return yaw > 10.0 && yaw < 20.0 && pitch > 5.0 && pitch < 15.0;
    };
    const RayLight window = [&](const Vec3 &direction) {
        return isWhite(direction) ? Rgb{ 1.0F, 1.0F, 1.0F } : Rgb{};
    };
    const Camera camera{ QSize(900, 600), 24.0, Projection::Rectilinear };
    const Pose pose{ 20.0, -5.0, 25.0 };
    const QImage panorama = nearestPhotoPanorama(
        { { developed(exposePhoto(window, camera, pose)), camera, pose } }, 720);
    int checked = 0;
    for (double yaw = 5.25; yaw < 25.0; yaw += 0.5) {
        for (double pitch = 0.25; pitch < 20.0; pitch += 0.5) {
            const QColor colour = panorama.pixelColor(static_cast<int>((yaw + 180.0) * 2.0),
                                                      static_cast<int>((90.0 - pitch) * 2.0));
            const auto nearEdge = [](double value, double from, double to) {
                return std::fabs(value - from) < 0.3 || std::fabs(value - to) < 0.3;
            };
            if (nearEdge(yaw, 10.0, 20.0) || nearEdge(pitch, 5.0, 15.0)) {
                continue;
            }
            ++checked;
            const int expected = isWhite(directionTo(yaw, pitch)) ? 255 : 0;
            QVERIFY2(
                colour.red() == expected,
                qPrintable(QStringLiteral("%1, %2: %3").arg(yaw).arg(pitch).arg(colour.red())));
        }
    }
    QVERIFY(checked > 1000);
}

void TestNearestPhoto::unreadablePhotosAreLeftOut()
{
    const QImage panorama = nearestPhotoPanorama(
        { { QImage(), kCamera, { 0.0, 0.0, 0.0 } }, plain(Qt::blue, { 20.0, 0.0, 0.0 }) }, 360);
    QCOMPARE(at(panorama, 5, 0), QColor(Qt::blue));
    QCOMPARE(nearestPhotoPanorama({}, 360).pixelColor(180, 90).alpha(), 0);
}

TEST_CLASS(TestNearestPhoto, QCoreApplication)
#include "tst_nearestphoto.moc"
