// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/demo/shootplan.h"
#include "importers/headfacts.h"

namespace PanoHost
{

using PanoHead::HeadFacts;

/** What the user tells the importer about the demo's grid. */
struct DemoGrid {
    int rows;
    double overlapPercent;
};
constexpr DemoGrid kDemoGrid{ 3, 40.0 };

/** How the demo plays \p head. */
[[nodiscard]] ShootPlan demoPlan(const HeadFacts &head, const QSize &photoSize);

/** \p plan as its head notes it down, under any \p title. */
[[nodiscard]] PanoHead::NotedShoot notesOf(const ShootPlan &plan, const QString &title);

/** The record that \p head leaves of \p plan. */
[[nodiscard]] QByteArray demoRecord(const HeadFacts &head, const ShootPlan &plan);
/** The name of its file: "record.xml". */
[[nodiscard]] QString demoRecordFile(const HeadFacts &head);

} // namespace PanoHost
