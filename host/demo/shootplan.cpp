// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/shootplan.h"

#include "host/demo/noise.h"

#include <algorithm>

namespace PanoHost
{
namespace
{

constexpr qint64 kMillisecondsPerPosition = 4250;
constexpr qint64 kMillisecondsPerLevel = 600;
constexpr quint32 kPlaySeed = 77;

Pose cameraPose(const Pose &head, Mounting mounting)
{
    Pose pose = head;
    if (mounting == Mounting::PortraitTurned) {
        pose.rollDegrees += 90.0;
    }
    return pose;
}

} // namespace

QVector<Pose> positionsOf(const QVector<ShootRow> &rows)
{
    QVector<Pose> positions;
    for (const ShootRow &row : rows) {
        const int before = row.count / 2;
        for (int i = 0; i < row.count; ++i) {
            positions.append({ (i - before) * 360.0 / row.count, row.pitchDegrees, 0.0 });
        }
    }
    return positions;
}

QVector<Pose> withPlay(QVector<Pose> positions, double degrees)
{
    for (int i = 0; i < positions.size(); ++i) {
        const auto play
            = [=](int axis) { return degrees * (2.0 * cellValue(i, axis, kPlaySeed) - 1.0); };
        positions[i].yawDegrees = positions[i].yawDegrees + play(0);
        positions[i].pitchDegrees = std::clamp(positions[i].pitchDegrees + play(1), -90.0, 90.0);
    }
    return positions;
}

QVector<ShootRow> landscapeRows()
{
    return { { 45.0, 8 }, { 0.0, 8 }, { -45.0, 8 }, { 90.0, 1 }, { -90.0, 1 } };
}

QVector<ShootRow> portraitRows()
{
    return { { 45.0, 10 }, { 0.0, 10 }, { -45.0, 10 }, { 90.0, 1 }, { -90.0, 1 } };
}

QVector<PlannedShot> shotsOf(const ShootPlan &plan)
{
    QVector<PlannedShot> shots;
    const QVector<Pose> stops = withPlay(plan.positions, plan.playDegrees);
    for (int position = 0; position < plan.positions.size(); ++position) {
        for (int level = 0; level < plan.stops.size(); ++level) {
            PlannedShot shot;
            shot.position = position;
            shot.level = level;
            shot.head = plan.positions[position];
            shot.camera = cameraPose(stops[position], plan.mounting);
            shot.stops = plan.stops[level];
            shot.time = plan.start.addMSecs(position * kMillisecondsPerPosition
                                            + level * kMillisecondsPerLevel);
            shot.fileName
                = QStringLiteral("demo_%1.jpg").arg(shots.size() + 1, 4, 10, QLatin1Char('0'));
            shots.append(shot);
        }
    }
    return shots;
}

} // namespace PanoHost
