// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/gridchoice.h"

#include "host/cli/commanderror.h"
#include "host/cli/displayname.h"

#include <algorithm>
#include <array>

namespace PanoHost
{

namespace
{

struct WholeNumber {
    const char *option;
    int smallest;
    int largest; ///< of the page's field
    const char *tryThis;
};

constexpr WholeNumber kRows{ "rows", 1, 100000, "give a whole number from %1 to %2" };
constexpr WholeNumber kBracket{ "bracket", 1, 99, "give a whole number from %1 to %2" };
constexpr WholeNumber kIgnored{
    "ignore", 0, 99, "give a whole number from %1 to %2, or leave the photos out of the command"
};

constexpr double kSmallestOverlap = 5.0;
constexpr double kLargestOverlap = 100.0;

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

int wholeNumber(const CommandLine &line, const WholeNumber &option, int otherwise)
{
    const QString name = QString::fromLatin1(option.option);
    if (!line.isSet(name)) {
        return otherwise;
    }
    bool isNumber = false;
    const int number = line.value(name).toInt(&isNumber);
    if (!isNumber || number < option.smallest || number > option.largest) {
        throw usageError(
            QStringLiteral("--%1 %2: out of range").arg(name, line.value(name)),
            QString::fromLatin1(option.tryThis)
                .arg(QString::number(option.smallest), QString::number(option.largest)));
    }
    return number;
}

std::optional<double> overlap(const CommandLine &line)
{
    const QString name = QStringLiteral("overlap");
    if (!line.isSet(name)) {
        return {};
    }
    bool isNumber = false;
    const double percent = line.value(name).toDouble(&isNumber);
    if (!isNumber || !(percent >= kSmallestOverlap && percent <= kLargestOverlap)) {
        throw usageError(QStringLiteral("--overlap %1: out of range").arg(line.value(name)),
                         QStringLiteral("give a percentage from %1 to %2")
                             .arg(kSmallestOverlap)
                             .arg(kLargestOverlap));
    }
    return percent;
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

QVector<OptionRow> gridOptions()
{
    return {
        { "--rows", "N", "rows of the grid; the columns follow from the photos" },
        { "--mode", "columns|columns-from-right|rows-down|rows-up|serpentine",
          "the order in which the head swept the grid: column by column from the left (default) "
          "or from the right, row by row from the top or from the bottom, or row by row from the "
          "bottom and to and fro",
          true },
        { "--bracket", "N", "photos per position; default: 1" },
        { "--ignore", "N", "photos in front that belong to no position; default: 0" },
        { "--wrap360", nullptr, "the columns reach around a full turn" },
        { "--overlap", "PERCENT", "overlap of neighbouring photos, 5 to 100; default: 40" },
    };
}

GridChoice gridChoice(const CommandLine &line)
{
    if (!line.isSet(QString::fromLatin1(kRows.option))) {
        throw usageError(QStringLiteral("a grid needs its number of rows"),
                         QStringLiteral("add --rows N"));
    }
    GridChoice grid;
    grid.rows = wholeNumber(line, kRows, 1);
    grid.bracketCount = wholeNumber(line, kBracket, 1);
    grid.ignoredCount = wholeNumber(line, kIgnored, 0);
    const QString name = line.value(QStringLiteral("mode"));
    grid.mode
        = modeWhere([&name](const GridMode &row) { return name == QLatin1String(row.name); }).mode;
    grid.wrap360 = line.isSet(QStringLiteral("wrap360"));
    grid.overlapPercent = overlap(line);
    return grid;
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
