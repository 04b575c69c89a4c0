// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/demo/shootplan.h"

#include <QByteArray>
#include <QStringList>

namespace PanoHost
{

/** What the user tells the importer about a grid. */
struct DemoGrid {
    int rows;
    double overlapPercent;
};

/** A head that the demo can play: a way to shoot and the record that the head leaves. */
struct DemoHead {
    const char *name; ///< as on the command line
    const char *recordFile; ///< null for heads without a record
    ShootPlan (*plan)(const QSize &photoSize);
    QByteArray (*record)(const ShootPlan &plan); ///< null for heads without a record
    const DemoGrid *grid; ///< null for heads with a record
    double leastPsnrDecibels; ///< of the panorama in normal size
};

[[nodiscard]] QStringList demoHeadNames();

/** The head \p name; null when the demo cannot play it. */
[[nodiscard]] const DemoHead *demoHead(const QString &name);

} // namespace PanoHost
