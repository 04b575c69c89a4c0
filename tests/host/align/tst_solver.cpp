// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/solver.h"
#include "tests/host/align/trueshoot.h"
#include "tests/support/testprogram.h"

#include <QtTest>

using namespace PanoHost;

class TestSolver : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void photosAreFoundWithinTheHeadsPlay();
};

void TestSolver::photosAreFoundWithinTheHeadsPlay()
{
    TrueShoot shoot;
    shoot.addSphere();
    shoot.play(0.3);
    HeadModel model = shoot.recorded();
    const auto points = shoot.points(0.2);
    QVERIFY(shoot.error(model) > 0.2);
    const SolveResult result = solve(model, points, {});
    QVERIFY(shoot.error(model) <= 0.005);
    // Evenly up to 0.3 degrees is 0.3 / sqrt(3) on an axis.
    QVERIFY(result.playKnown);
    for (const double degrees : { result.play.yaw, result.play.pitch, result.play.roll }) {
        QVERIFY(std::abs(degrees - 0.173) < 0.03);
    }
    // 0.2 pixels on each axis, widened as for a median of one axis.
    QVERIFY(std::abs(result.sigmaPixels - 0.2 * 1.4826) < 0.03);
}

TEST_CLASS(TestSolver, TestProgram::NoApplication)
#include "tst_solver.moc"
