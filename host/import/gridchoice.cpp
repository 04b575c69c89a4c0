// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/gridchoice.h"

#include "host/model/commanderror.h"
#include "host/model/displayname.h"

#include <algorithm>
#include <array>

namespace PanoHost
{

namespace
{

struct GridMode {
    const char *name;
    int mode;
    const char *button; ///< null: the page has none, only a slot
};

constexpr std::array<GridMode, 5> kModes{ {
    { "columns", 0, "m_rbMode0" },
    { "columns-from-right", 3, "m_rbMode3" },
    { "rows-down", 1, "m_rbMode1" },
    { "rows-up", 2, "m_rbMode2" },
    { "serpentine", 4, nullptr },
} };

template <typename Predicate> const GridMode &modeWhere(Predicate isWanted)
{
    const auto *const row = std::find_if(kModes.begin(), kModes.end(), isWanted);
    return row == kModes.end() ? kModes.front() : *row;
}

/** "14 photos", "14 photos less 2 ignored". */
QString photosText(const GridChoice &grid, int photoCount)
{
    const QString photos = counted(photoCount, "photo");
    return grid.ignoredCount == 0
        ? photos
        : QStringLiteral("%1 less %2 ignored").arg(photos, QString::number(grid.ignoredCount));
}

} // namespace

int gridModeNamed(const QString &name)
{
    return modeWhere([&name](const GridMode &row) { return name == QLatin1String(row.name); }).mode;
}

void requireFullGrid(const GridChoice &grid, int photoCount)
{
    const QString what = QStringLiteral("photos");
    const QString photos = photosText(grid, photoCount);
    const int used = photoCount - grid.ignoredCount;
    if (used < 1) {
        throw inputRefused(
            what,
            QStringLiteral("--ignore %1 leaves none of %2").arg(grid.ignoredCount).arg(photoCount),
            QStringLiteral("ignore fewer, or name all photos"));
    }
    if (used < grid.bracketCount) {
        throw inputRefused(
            what, QStringLiteral("--bracket %1 is more than %2").arg(grid.bracketCount).arg(photos),
            QStringLiteral("each position needs all its exposures"));
    }
    if (used % grid.bracketCount != 0) {
        throw inputRefused(
            what,
            QStringLiteral("%1 are not a multiple of bracket %2")
                .arg(photos)
                .arg(grid.bracketCount),
            QStringLiteral("each position needs all its exposures; --ignore N leaves out the first "
                           "N photos"));
    }
    const int positions = used / grid.bracketCount;
    if (positions % grid.rows != 0) {
        const QString divided = grid.bracketCount == 1
            ? photos
            : QStringLiteral("%1 (%2 in brackets of %3)")
                  .arg(counted(positions, "position"), photos, QString::number(grid.bracketCount));
        throw inputRefused(
            what,
            QStringLiteral("%1 do not divide %2 evenly").arg(counted(grid.rows, "row"), divided),
            QStringLiteral("are photos missing? --ignore N leaves out the first N photos"));
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
    const GridMode &mode
        = modeWhere([&grid](const GridMode &row) { return row.mode == grid.mode; });
    if (mode.button != nullptr) {
        page.setChecked(QString::fromLatin1(mode.button), true);
    } else {
        page.toggle("OnMode4Toggled");
    }
}

} // namespace PanoHost
