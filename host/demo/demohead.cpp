// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/demohead.h"

#include "host/demo/recordwriter.h"

#include <algorithm>
#include <array>

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

/** The darkest first: the importer is to find the median exposure by itself. */
ShootPlan brackets(const QSize &photoSize)
{
    ShootPlan plan = singleExposures(photoSize);
    plan.stops = { -2.0, 0.0, 2.0 };
    return plan;
}

QByteArray papywizard(const ShootPlan &plan)
{
    return papywizardRecord(plan, QStringLiteral("Lake terrace"));
}

constexpr std::array<DemoHead, 3> kHeads{ {
    { "papywizard", "record.xml", singleExposures, papywizard },
    { "vrdrive2", "record.xml", brackets, papywizard },
    { "clauss", "script.txt", wholeDegrees, claussScript },
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
