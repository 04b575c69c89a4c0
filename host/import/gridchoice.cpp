// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/gridchoice.h"

#include "host/model/assumedgrid.h"
#include "host/model/commanderror.h"
#include "host/model/displayname.h"
#include "host/model/said.h"

#include <algorithm>
#include <array>

namespace PanoHost
{

namespace
{

/** The page's button for each order; null: it has none, only a slot. */
constexpr std::array<const char *, kGridModes> kButtons{ "m_rbMode0", "m_rbMode1", "m_rbMode2",
                                                         "m_rbMode3", nullptr };

/** "14 photos", "14 photos less 2 ignored". */
QString photosText(const GridChoice &grid, int photoCount)
{
    const QString photos = counted(photoCount, "photo");
    return grid.ignoredCount == 0
        ? photos
        : Said::tr("%1 less %2 ignored").arg(photos, QString::number(grid.ignoredCount));
}

} // namespace

int gridModeNamed(const QString &name)
{
    int mode = 0;
    while (mode < kGridModes && gridModeName(mode) != name) {
        ++mode;
    }
    return mode < kGridModes ? mode : 0;
}

Finding gridFinding(const GridChoice &grid, int photoCount)
{
    const int used = std::max(photoCount - grid.ignoredCount, 0);
    return { QStringLiteral("grid"),
             Said::tr("%1, %2, bracket %3, %4 ignored")
                 .arg(counted(grid.rows, "row"),
                      counted(used / grid.bracketCount / grid.rows, "column"),
                      QString::number(grid.bracketCount), QString::number(grid.ignoredCount)) };
}

void requireFullGrid(const GridChoice &grid, int photoCount)
{
    const QString what = Said::tr("photos");
    const QString photos = photosText(grid, photoCount);
    const int used = photoCount - grid.ignoredCount;
    if (used < 1) {
        throw inputRefused(
            what, Said::tr("--ignore %1 leaves none of %2").arg(grid.ignoredCount).arg(photoCount),
            Said::tr("ignore fewer, or name all photos"));
    }
    if (used < grid.bracketCount) {
        throw inputRefused(
            what, Said::tr("--bracket %1 is more than %2").arg(grid.bracketCount).arg(photos),
            Said::tr("each position needs all its exposures"));
    }
    if (used % grid.bracketCount != 0) {
        throw inputRefused(
            what,
            Said::tr("%1 are not a multiple of bracket %2").arg(photos).arg(grid.bracketCount),
            Said::tr("each position needs all its exposures; --ignore N leaves out the first "
                     "N photos"));
    }
    const int positions = used / grid.bracketCount;
    if (positions % grid.rows != 0) {
        const QString divided = grid.bracketCount == 1
            ? photos
            : Said::tr("%1 (%2 in brackets of %3)")
                  .arg(counted(positions, "position"), photos, QString::number(grid.bracketCount));
        throw inputRefused(
            what, Said::tr("%1 do not divide %2 evenly").arg(counted(grid.rows, "row"), divided),
            Said::tr("are photos missing? --ignore N leaves out the first N photos"));
    }
}

void enterGrid(PageDriver &page, const GridChoice &grid)
{
    page.setWholeNumber(QStringLiteral("m_sbIgnore"), grid.ignoredCount);
    page.setWholeNumber(QStringLiteral("m_sbBracket"), grid.bracketCount);
    page.setWholeNumber(QStringLiteral("m_sbRow"), grid.rows);
    page.setChecked(QStringLiteral("m_cbIS360"), grid.wrap360);
    if (grid.overlapPercent) {
        page.setNumber(QStringLiteral("m_dsbOverlapping"), *grid.overlapPercent);
    }
    const char *const button = kButtons.at(static_cast<size_t>(grid.mode));
    if (button != nullptr) {
        page.setChecked(QString::fromLatin1(button), true);
    } else {
        page.toggle("OnMode4Toggled");
    }
}

} // namespace PanoHost
