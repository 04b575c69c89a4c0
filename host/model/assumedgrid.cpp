// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/assumedgrid.h"

#include "host/model/panorama.h"
#include "host/model/said.h"

#include <QSet>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>

namespace PanoHost
{

namespace
{

constexpr double kSteepestPitchDegrees = 85.0;

double verticalFovDegrees(const QSize &frame, double horizontalDegrees, LensModel lens)
{
    const double ratio = double(frame.height()) / frame.width();
    if (lens == LensModel::Fisheye) {
        return horizontalDegrees * ratio;
    }
    return qRadiansToDegrees(
        2.0 * std::atan(std::tan(qDegreesToRadians(horizontalDegrees) / 2.0) * ratio));
}

} // namespace

QString gridModeName(int mode)
{
    constexpr std::array<const char *, kGridModes> kNames{ "columns", "rows-down", "rows-up",
                                                           "columns-from-right", "serpentine" };
    return QLatin1String(kNames.at(static_cast<size_t>(std::clamp(mode, 0, kGridModes - 1))));
}

bool sweepsRows(int mode)
{
    return mode == 1 || mode == 2 || mode == 4;
}

GridCell gridCellOf(int shot, int mode, int rows, int columns)
{
    switch (mode) {
    case 1:
        return { shot / columns, shot % columns };
    case 2:
        return { rows - 1 - shot / columns, shot % columns };
    case 3:
        return { shot % rows, columns - 1 - shot / rows };
    case 4: {
        const int level = shot / columns;
        const int along = shot % columns;
        return { rows - 1 - level, level % 2 == 0 ? along : columns - 1 - along };
    }
    default:
        return { shot % rows, shot / rows };
    }
}

QString gridCellName(const GridCell &cell)
{
    return Said::tr("row %1 of column %2")
        .arg(QString::number(cell.row + 1), QString::number(cell.column + 1));
}

AssumedGrid assumedGrid(const StructuredPanoramaProperties &description, const QSize &frame,
                        double focal35mm, LensModel lens, const QVector<qint32> &missing)
{
    AssumedGrid layout;
    const int positions = description.imageGroups.size();
    if (positions == 0 || frame.isEmpty()) {
        return layout;
    }
    const int cells = positions + missing.size();
    const int rows = std::clamp(description.gridRows, 1, cells);
    layout.columns = (cells + rows - 1) / rows;
    const double fov = horizontalFovDegrees(frame, focal35mm, lens);
    const double step = 1.0 - std::clamp(description.overlap, 0.0, 95.0) / 100.0;
    const double yawStep = description.gridWrap360 ? 360.0 / layout.columns : fov * step;
    const double pitchStep = verticalFovDegrees(frame, fov, lens) * step;

    const QSet<qint32> isMissing(missing.begin(), missing.end());
    bool clamped = false;
    layout.directions.reserve(positions);
    for (int shot = 0; shot < cells && layout.directions.size() < positions; ++shot) {
        if (isMissing.contains(shot)) {
            continue;
        }
        const GridCell cell = gridCellOf(shot, description.gridMode, rows, layout.columns);
        const double pitch = ((rows - 1) / 2.0 - cell.row) * pitchStep;
        clamped = clamped || std::abs(pitch) > kSteepestPitchDegrees;
        layout.directions.append(
            { (cell.column - (layout.columns - 1) / 2.0) * yawStep,
              std::clamp(pitch, -kSteepestPitchDegrees, kSteepestPitchDegrees) });
    }
    if (clamped || (layout.columns - 1) * yawStep >= 360.0) {
        layout.warnings.append(
            Said::tr("the grid reaches around the sphere: overlap or rows do not fit this lens"));
    }
    return layout;
}

} // namespace PanoHost
