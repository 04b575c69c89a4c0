// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/shootplan.h"
#include "tests/support/testprogram.h"

#include <QtTest>

using namespace PanoHost;

class TestShootPlan : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void rowsAreSpreadEvenlyOverATurn();
    void landscapeShootHasTwentySixPositions();
    void positionsCoverTheSphere_data();
    void positionsCoverTheSphere();
    void playIsSmallDiffersAndRepeats();
    void playMovesTheCameraAndNotTheRecord();
    void bracketsShareTheirPositionAndFollowEachOther();
    void onlyACameraTurnedWithItsPixelsIsRolled();
};

void TestShootPlan::rowsAreSpreadEvenlyOverATurn()
{
    const QVector<Pose> positions = positionsOf({ { 10.0, 4 }, { 90.0, 1 } });
    QCOMPARE(positions.size(), 5);
    const QVector<double> yaws{ -180.0, -90.0, 0.0, 90.0, 0.0 };
    for (int i = 0; i < positions.size(); ++i) {
        QCOMPARE(positions[i].yawDegrees, yaws[i]);
        QCOMPARE(positions[i].pitchDegrees, i < 4 ? 10.0 : 90.0);
        QCOMPARE(positions[i].rollDegrees, 0.0);
    }
}

void TestShootPlan::landscapeShootHasTwentySixPositions()
{
    QCOMPARE(positionsOf(landscapeRows()).size(), 26);
}

void TestShootPlan::positionsCoverTheSphere_data()
{
    QTest::addColumn<bool>("portrait");
    QTest::newRow("landscape") << false;
    QTest::newRow("portrait") << true;
}

void TestShootPlan::positionsCoverTheSphere()
{
    QFETCH(bool, portrait);
    const Camera camera{ portrait ? QSize(600, 900) : QSize(900, 600), 24.0,
                         Projection::Rectilinear };
    std::vector<View> views;
    for (const Pose &position : positionsOf(portrait ? portraitRows() : landscapeRows())) {
        views.emplace_back(camera, position);
    }
    for (int yaw = -180; yaw < 180; ++yaw) {
        for (int pitch = -90; pitch <= 90; ++pitch) {
            const Vec3 direction = directionTo(yaw, pitch);
            const bool seen = std::any_of(views.begin(), views.end(), [&](const View &view) {
                return view.pixelAt(direction).has_value();
            });
            QVERIFY2(seen, qPrintable(QStringLiteral("yaw %1 pitch %2").arg(yaw).arg(pitch)));
        }
    }
}

void TestShootPlan::playIsSmallDiffersAndRepeats()
{
    const QVector<Pose> exact = positionsOf(landscapeRows());
    const QVector<Pose> played = withPlay(exact, 0.3);
    const QVector<Pose> again = withPlay(exact, 0.3);
    QSet<qint64> offsets;
    for (int i = 0; i < exact.size(); ++i) {
        QVERIFY(std::fabs(played[i].yawDegrees - exact[i].yawDegrees) <= 0.3);
        QVERIFY(std::fabs(played[i].pitchDegrees - exact[i].pitchDegrees) <= 0.3);
        QVERIFY(std::fabs(played[i].pitchDegrees) <= 90.0);
        QCOMPARE(played[i].yawDegrees, again[i].yawDegrees);
        QCOMPARE(played[i].pitchDegrees, again[i].pitchDegrees);
        offsets.insert(std::llround(1e9 * (played[i].yawDegrees - exact[i].yawDegrees)));
    }
    QCOMPARE(offsets.size(), exact.size());
}

void TestShootPlan::playMovesTheCameraAndNotTheRecord()
{
    ShootPlan plan;
    plan.positions = positionsOf(landscapeRows());
    plan.playDegrees = 0.3;
    plan.stops = { 0.0, 2.0 };
    const QVector<Pose> played = withPlay(plan.positions, 0.3);
    const QVector<PlannedShot> shots = shotsOf(plan);
    QCOMPARE(shots.size(), 52);
    for (const PlannedShot &shot : shots) {
        QCOMPARE(shot.head.yawDegrees, plan.positions[shot.position].yawDegrees);
        QCOMPARE(shot.head.pitchDegrees, plan.positions[shot.position].pitchDegrees);
        QCOMPARE(shot.camera.yawDegrees, played[shot.position].yawDegrees);
        QCOMPARE(shot.camera.pitchDegrees, played[shot.position].pitchDegrees);
    }
}

void TestShootPlan::bracketsShareTheirPositionAndFollowEachOther()
{
    ShootPlan plan;
    plan.camera = { QSize(90, 60), 24.0, Projection::Rectilinear };
    plan.positions = positionsOf({ { 0.0, 2 } });
    plan.stops = { 0.0, -2.0, 2.0 };
    const QVector<PlannedShot> shots = shotsOf(plan);
    QCOMPARE(shots.size(), 6);
    for (int i = 0; i < shots.size(); ++i) {
        QCOMPARE(shots[i].position, i / 3);
        QCOMPARE(shots[i].level, i % 3);
        QCOMPARE(shots[i].stops, plan.stops[i % 3]);
        QCOMPARE(shots[i].head.yawDegrees, plan.positions[i / 3].yawDegrees);
        QVERIFY(i == 0 || shots[i - 1].time < shots[i].time);
        QVERIFY(i == 0 || shots[i - 1].fileName < shots[i].fileName);
    }
}

void TestShootPlan::onlyACameraTurnedWithItsPixelsIsRolled()
{
    ShootPlan plan;
    plan.positions = positionsOf({ { 0.0, 1 } });
    for (const Mounting mounting : { Mounting::Landscape, Mounting::PortraitUpright }) {
        plan.mounting = mounting;
        QCOMPARE(shotsOf(plan).first().camera.rollDegrees, 0.0);
    }
    plan.mounting = Mounting::PortraitTurned;
    QCOMPARE(shotsOf(plan).first().camera.rollDegrees, 90.0);
    QCOMPARE(shotsOf(plan).first().head.rollDegrees, 0.0);
}

TEST_CLASS(TestShootPlan, QCoreApplication)
#include "tst_shootplan.moc"
