// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/demohead.h"
#include "host/demo/ordercheck.h"
#include "host/stitch/projectcheck.h"
#include "tests/support/testprogram.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

using namespace PanoHost;

class TestProjectCheck : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cellsInTheHeadsOrderAreAccepted();
    void otherOrdersAreRefused_data();
    void otherOrdersAreRefused();
    void gridStepsLeaveTheOverlap();
    void photosThatCheckptoFindsAreCounted_data();
    void photosThatCheckptoFindsAreCounted();
    void missingCheckptoIsNamed();

private:
    /** Two columns of two rows, each downwards. */
    static ShootPlan plan();
    static Panorama panorama(const QVector<Pose> &poses);
};

ShootPlan TestProjectCheck::plan()
{
    ShootPlan plan;
    plan.positions
        = { { -10.0, 5.0, 0.0 }, { -10.0, -5.0, 0.0 }, { 10.0, 5.0, 0.0 }, { 10.0, -5.0, 0.0 } };
    return plan;
}

Panorama TestProjectCheck::panorama(const QVector<Pose> &poses)
{
    Panorama panorama;
    for (const Pose &pose : poses) {
        panorama.positions.append({ pose.yawDegrees, pose.pitchDegrees, 0.0, { PhotoInfo() } });
    }
    return panorama;
}

void TestProjectCheck::cellsInTheHeadsOrderAreAccepted()
{
    // Other steps and another centre, the same order.
    const Result<QString> check = checkOrder(
        panorama({ { 0.0, 9.0, 0.0 }, { 0.0, -2.0, 0.0 }, { 7.0, 9.0, 0.0 }, { 7.0, -2.0, 0.0 } }),
        plan());
    QVERIFY(check);
    QVERIFY(check.value().startsWith(QStringLiteral("4 positions ")));
}

void TestProjectCheck::otherOrdersAreRefused_data()
{
    QTest::addColumn<QVector<int>>("order"); ///< the plan's position in each place
    QTest::newRow("upside down") << QVector<int>{ 1, 0, 3, 2 };
    QTest::newRow("from the right") << QVector<int>{ 2, 3, 0, 1 };
    QTest::newRow("row by row") << QVector<int>{ 0, 2, 1, 3 };
    QTest::newRow("serpentine") << QVector<int>{ 0, 1, 3, 2 };
    QTest::newRow("one missing") << QVector<int>{ 0, 1, 2 };
    QTest::newRow("two in one place") << QVector<int>{ 0, 1, 2, 2 };
}

void TestProjectCheck::otherOrdersAreRefused()
{
    QFETCH(QVector<int>, order);
    QVector<Pose> poses;
    for (const int place : order) {
        poses.append(plan().positions[place]);
    }
    const Result<QString> check = checkOrder(panorama(poses), plan());
    QVERIFY(!check);
    QCOMPARE(check.error().code, ExitCode::ToolFailed);
}

void TestProjectCheck::gridStepsLeaveTheOverlap()
{
    const HeadFacts *const head = PanoHead::headFactsOf(QStringLiteral("gigapan"));
    QVERIFY(head != nullptr && head->isGrid());
    const ShootPlan grid = demoPlan(*head, QSize(900, 600));
    QCOMPARE(grid.positions.size() % kDemoGrid.rows, 0);
    // 50 mm in front of 36 mm x 24 mm; 60 % of the field lie between neighbours.
    const double across = 0.6 * 2.0 * std::atan(18.0 / 50.0) * 180.0 / M_PI;
    const double down = 0.6 * 2.0 * std::atan(12.0 / 50.0) * 180.0 / M_PI;
    const Pose &first = grid.positions[0];
    const Pose &below = grid.positions[1];
    const Pose &beside = grid.positions[kDemoGrid.rows];
    QCOMPARE(below.yawDegrees, first.yawDegrees);
    QVERIFY(std::fabs(first.pitchDegrees - below.pitchDegrees - down) < 1e-6);
    QCOMPARE(beside.pitchDegrees, first.pitchDegrees);
    QVERIFY(std::fabs(beside.yawDegrees - first.yawDegrees - across) < 1e-6);
}

void TestProjectCheck::photosThatCheckptoFindsAreCounted_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("all, unconnected")
        << QByteArray("printf 'Project contains\\n12 images\\n'; exit 12\n") << true;
    QTest::newRow("fewer") << QByteArray("printf 'Project contains\\n1 images\\n'; exit 0\n")
                           << false;
    QTest::newRow("cannot read it") << QByteArray("echo 'no project' >&2; exit 1\n") << false;
    QTest::newRow("killed after its answer")
        << QByteArray("printf 'Project contains\n12 images\n'; kill -KILL $$\n") << false;
    QTest::newRow("stuck after its answer")
        << QByteArray("printf 'Project contains\n12 images\n'; exec sleep 600\n") << false;
}

void TestProjectCheck::photosThatCheckptoFindsAreCounted()
{
    QFETCH(QByteArray, script);
    QFETCH(bool, accepted);
    const QTemporaryDir folder;
    QFile tool(folder.filePath(QStringLiteral("checkpto")));
    QVERIFY(tool.open(QIODevice::WriteOnly));
    tool.write("#!/bin/sh\n" + script);
    tool.close();
    QVERIFY(tool.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(folder.path()) + ":/usr/bin:/bin");
    JobWatch watch;
    watch.patience = std::chrono::seconds(accepted ? 60 : 1);
    const Result<QString> check = checkProject(QStringLiteral("demo.pto"), 12, watch);
    qputenv("PATH", before);
    QCOMPARE(bool(check), accepted);
    if (!accepted) {
        QCOMPARE(check.error().code, ExitCode::ToolFailed);
        QVERIFY(!check.error().why.isEmpty());
        QVERIFY(!check.error().tryThis.isEmpty());
    }
}

void TestProjectCheck::missingCheckptoIsNamed()
{
    const QTemporaryDir empty;
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(empty.path()));
    const Result<QString> check = checkProject(QStringLiteral("demo.pto"), 12);
    qputenv("PATH", before);
    QVERIFY(!check);
    QCOMPARE(check.error().code, ExitCode::ToolMissing);
    QCOMPARE(check.error().what, QStringLiteral("checkpto"));
}

TEST_CLASS(TestProjectCheck, QCoreApplication)
#include "tst_projectcheck.moc"
