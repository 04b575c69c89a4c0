// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/demohead.h"

#include <cmath>

namespace PanoHost
{
namespace
{

constexpr double kFocal35mm = 24.0;
constexpr int kGridColumns = 5;
constexpr double kGridFocal35mm = 50.0;

/** Column by column from the left, each downwards; neighbours overlap as the user says. */
ShootPlan grid(const QSize &photoSize)
{
    ShootPlan plan;
    plan.camera = { photoSize, kGridFocal35mm, Projection::Rectilinear };
    const double step = 1.0 - kDemoGrid.overlapPercent / 100.0;
    const auto stepDegrees = [step](int pixels, double focalPixels) {
        return step * 2.0 * std::atan(pixels / (2.0 * focalPixels)) * 180.0 / M_PI;
    };
    const double focal = plan.camera.focalPixels();
    for (int column = 0; column < kGridColumns; ++column) {
        for (int row = 0; row < kDemoGrid.rows; ++row) {
            plan.positions.append(
                { (column - (kGridColumns - 1) / 2.0) * stepDegrees(photoSize.width(), focal),
                  ((kDemoGrid.rows - 1) / 2.0 - row) * stepDegrees(photoSize.height(), focal),
                  0.0 });
        }
    }
    return plan;
}

/** Over the whole sphere, at angles that every record can hold. */
ShootPlan sphere(const PanoHead::DemoFacts &facts, const QSize &photoSize)
{
    ShootPlan plan;
    plan.camera = { photoSize, kFocal35mm, Projection::Rectilinear };
    plan.positions = positionsOf(landscapeRows());
    plan.playDegrees = facts.playDegrees;
    if (facts.inBrackets) {
        plan.stops = { -2.0, 0.0, 2.0 };
    }
    return plan;
}

} // namespace

ShootPlan demoPlan(const HeadFacts &head, const QSize &photoSize)
{
    return head.isGrid() ? grid(photoSize) : sphere(head.demo, photoSize);
}

PanoHead::NotedShoot notesOf(const ShootPlan &plan, const QString &title)
{
    PanoHead::NotedShoot shoot;
    const QVector<PlannedShot> shots = shotsOf(plan);
    for (const PlannedShot &shot : shots) {
        shoot.shots.append({ shot.head.yawDegrees, shot.head.pitchDegrees, shot.head.rollDegrees,
                             shot.level, shot.time });
    }
    shoot.bracketCount = plan.stops.size();
    shoot.focal35mm = plan.camera.focal35mm;
    shoot.lens = plan.camera.projection == Projection::EquidistantFisheye ? LensModel::Fisheye
                                                                          : LensModel::Standard;
    shoot.isPortrait = plan.mounting != Mounting::Landscape;
    shoot.title = title;
    return shoot;
}

QByteArray demoRecord(const HeadFacts &head, const ShootPlan &plan)
{
    return head.write(notesOf(plan, QStringLiteral("Lake terrace")));
}

QString demoRecordFile(const HeadFacts &head)
{
    return QString::fromLatin1(head.record).toLower();
}

} // namespace PanoHost
