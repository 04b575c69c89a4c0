// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/demohead.h"

#include "host/demo/recordwriter.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace PanoHost
{
namespace
{

constexpr double kFocal35mm = 24.0;
/** Heads do not stop where they say: what the record's one decimal cannot tell. */
constexpr double kPlayDegrees = 0.049;

ShootPlan singleExposures(const QSize &photoSize)
{
    ShootPlan plan;
    plan.camera = { photoSize, kFocal35mm, Projection::Rectilinear };
    plan.positions = withPlay(positionsOf(landscapeRows()), kPlayDegrees);
    return plan;
}

/** A Clauss script holds whole degrees, and the head goes exactly there. */
ShootPlan wholeDegrees(const QSize &photoSize)
{
    ShootPlan plan = singleExposures(photoSize);
    plan.positions = positionsOf(landscapeRows());
    return plan;
}

/**
 * The darkest first: the importer is to find the median exposure by itself. Goes exactly where the
 * record says.
 */
ShootPlan brackets(const QSize &photoSize)
{
    ShootPlan plan = wholeDegrees(photoSize);
    plan.stops = { -2.0, 0.0, 2.0 };
    return plan;
}

QByteArray papywizard(const ShootPlan &plan)
{
    return papywizardRecord(plan, QStringLiteral("Lake terrace"));
}

constexpr DemoGrid kGrid{ 3, 40.0 };
constexpr int kGridColumns = 5;
constexpr double kGridFocal35mm = 50.0;

/** Column by column from the left, each downwards; neighbours overlap as the user says. */
ShootPlan grid(const QSize &photoSize)
{
    ShootPlan plan;
    plan.camera = { photoSize, kGridFocal35mm, Projection::Rectilinear };
    const double step = 1.0 - kGrid.overlapPercent / 100.0;
    const auto stepDegrees = [step](int pixels, double focalPixels) {
        return step * 2.0 * std::atan(pixels / (2.0 * focalPixels)) * 180.0 / M_PI;
    };
    const double focal = plan.camera.focalPixels();
    for (int column = 0; column < kGridColumns; ++column) {
        for (int row = 0; row < kGrid.rows; ++row) {
            plan.positions.append(
                { (column - (kGridColumns - 1) / 2.0) * stepDegrees(photoSize.width(), focal),
                  ((kGrid.rows - 1) / 2.0 - row) * stepDegrees(photoSize.height(), focal), 0.0 });
        }
    }
    return plan;
}

// Rounding and play of the Papywizard head cost some decibels.
constexpr std::array<DemoHead, 4> kHeads{ {
    { "papywizard", "record.xml", singleExposures, papywizard, nullptr, 30.0 },
    { "vrdrive2", "record.xml", brackets, papywizard, nullptr, 36.0 },
    { "clauss", "script.txt", wholeDegrees, claussScript, nullptr, 36.0 },
    { "gigapan", nullptr, grid, nullptr, &kGrid, 36.0 },
} };

} // namespace

QStringList demoHeadNames()
{
    QStringList names;
    for (const DemoHead &head : kHeads) {
        names.append(QString::fromLatin1(head.name));
    }
    return names;
}

const DemoHead *demoHead(const QString &name)
{
    const auto *const head
        = std::find_if(kHeads.begin(), kHeads.end(),
                       [&name](const DemoHead &row) { return name == QLatin1String(row.name); });
    return head == kHeads.end() ? nullptr : head;
}

} // namespace PanoHost
