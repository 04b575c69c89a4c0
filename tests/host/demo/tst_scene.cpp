// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/scene.h"
#include "tests/support/testprogram.h"

#include <QtTest>

#include <random>

using namespace PanoHost;

namespace
{

float brightness(const Rgb &colour)
{
    return 0.2F * colour.red + 0.7F * colour.green + 0.1F * colour.blue;
}

} // namespace

class TestScene : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void lettersStandAtTheirTrueYaw_data();
    void lettersStandAtTheirTrueYaw();
    void northPointOfTheRoseIsRed();
    void sunIsTheBrightestPlaceAround();
    void sameSeedGivesTheSameSceneAndAnotherOneAnother();
    void everyRegionHasTexture();
    void thereAreNoHardEdges();

private:
    const Scene m_scene;
};

void TestScene::lettersStandAtTheirTrueYaw_data()
{
    QTest::addColumn<double>("yaw");
    QTest::addColumn<double>("up"); ///< on the wall, in eye heights, from the letters' middle
    QTest::addColumn<bool>("ink");
    QTest::newRow("N: middle of the diagonal") << 0.0 << 0.0 << true;
    QTest::newRow("N: above the diagonal") << 0.7 << 0.12 << false;
    QTest::newRow("E: upper bar") << 90.0 << 0.165 << true;
    QTest::newRow("E: between the bars") << 90.8 << 0.085 << false;
    QTest::newRow("S: middle") << 180.0 << 0.0 << true;
    QTest::newRow("S: inside the upper bow") << 180.0 << 0.075 << false;
    QTest::newRow("W: middle point") << -90.0 << 0.1 << true;
    QTest::newRow("W: below the middle point") << -90.0 << -0.10 << false;
}

void TestScene::lettersStandAtTheirTrueYaw()
{
    QFETCH(double, yaw);
    QFETCH(double, up);
    QFETCH(bool, ink);
    const double pitch = degrees(std::atan2(-0.755 + up, 3.0));
    const Rgb colour = m_scene.radiance(directionTo(yaw, pitch));
    // The plaques are nearly white; the ink is red (N) or blue.
    const float darkest = std::min(colour.red, colour.blue);
    const float brightest = std::max(colour.red, colour.blue);
    QVERIFY2(
        (darkest < 0.5F * brightest) == ink,
        qPrintable(QStringLiteral("%1 %2 %3").arg(colour.red).arg(colour.green).arg(colour.blue)));
    if (ink) {
        QCOMPARE(colour.red > colour.blue, yaw == 0.0);
    }
}

void TestScene::northPointOfTheRoseIsRed()
{
    // Half an eye height from the nadir, on either side of the point's ridge.
    for (const double yaw : { -3.0, 3.0 }) {
        const Rgb north = m_scene.radiance(directionTo(yaw, -63.4));
        const Rgb south = m_scene.radiance(directionTo(180.0 + yaw, -63.4));
        QVERIFY(north.red > 2.0F * north.blue);
        QVERIFY(south.blue > 2.0F * south.red);
    }
}

void TestScene::sunIsTheBrightestPlaceAround()
{
    const float sun = brightness(m_scene.radiance(directionTo(kSunYawDegrees, kSunPitchDegrees)));
    for (int turn = 0; turn < 360; turn += 15) {
        const Vec3 away = directionTo(kSunYawDegrees + 8.0 * std::sin(radians(turn)),
                                      kSunPitchDegrees + 8.0 * std::cos(radians(turn)));
        QVERIFY(brightness(m_scene.radiance(away)) < sun);
    }
}

void TestScene::sameSeedGivesTheSameSceneAndAnotherOneAnother()
{
    const Scene same;
    const Scene other(kSceneSeed + 1);
    int differing = 0;
    for (int yaw = -180; yaw < 180; yaw += 7) {
        const Vec3 direction = directionTo(yaw, yaw / 2.1);
        QCOMPARE(same.radiance(direction).green, m_scene.radiance(direction).green);
        differing += other.radiance(direction).green != m_scene.radiance(direction).green ? 1 : 0;
    }
    QVERIFY(differing > 40);
}

/** Control points need something to be found on: no cell of 15 degrees may be flat. */
void TestScene::everyRegionHasTexture()
{
    for (int row = 0; row < 12; ++row) {
        for (int column = 0; column < 24; ++column) {
            float darkest = 9.0F;
            float brightest = 0.0F;
            for (int sample = 0; sample < 900; ++sample) {
                const Vec3 direction = directionTo(-180.0 + 15.0 * column + 0.5 * (sample % 30),
                                                   -90.0 + 15.0 * row + 0.5 * (sample / 30));
                const float light = std::sqrt(brightness(m_scene.radiance(direction)));
                darkest = std::min(darkest, light);
                brightest = std::max(brightest, light);
            }
            QVERIFY2(brightest - darkest > 0.04F,
                     qPrintable(QStringLiteral("yaw %1 pitch %2: %3 to %4")
                                    .arg(-180 + 15 * column)
                                    .arg(-90 + 15 * row)
                                    .arg(darkest)
                                    .arg(brightest)));
        }
    }
}

/** An edge that is no wider than a photo's pixel would make PSNR a matter of luck. */
void TestScene::thereAreNoHardEdges()
{
    constexpr double kStepDegrees = 0.01;
    std::mt19937 random(4711);
    std::uniform_real_distribution<double> height(-1.0, 1.0);
    std::uniform_real_distribution<double> turn(-180.0, 180.0);
    int steep = 0;
    for (int i = 0; i < 100000; ++i) {
        const double yaw = turn(random);
        const double pitch = degrees(std::asin(height(random)));
        const Rgb here = m_scene.radiance(directionTo(yaw, pitch));
        const Rgb beside
            = m_scene.radiance(directionTo(yaw + kStepDegrees / std::cos(radians(pitch)), pitch));
        const Rgb above = m_scene.radiance(directionTo(yaw, pitch + kStepDegrees));
        for (const Rgb &next : { beside, above }) {
            steep += std::fabs(next.green - here.green) > 0.25F ? 1 : 0;
        }
    }
    QCOMPARE(steep, 0);
}

TEST_CLASS(TestScene, QCoreApplication)
#include "tst_scene.moc"
