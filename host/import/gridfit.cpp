// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/gridfit.h"

#include "host/align/seenturns.h"
#include "host/check/gridmatch.h"
#include "host/model/assumedgrid.h"
#include "host/model/commanderror.h"
#include "host/model/displayname.h"
#include "host/model/panorama.h"
#include "host/model/said.h"

namespace PanoHost
{

namespace
{

/** "row 2 of column 5, row 3 of column 5": cells as they are counted on a wall. */
QString cellNames(const GridChoice &grid, int columns, const QVector<int> &shots)
{
    constexpr int kMostNamed = 5;
    QStringList names;
    for (const int shot : shots) {
        const GridCell cell = gridCellOf(shot / grid.bracketCount, grid.mode, grid.rows, columns);
        const QString name = gridCellName(cell);
        if (!names.contains(name)) {
            names += name;
        }
    }
    const int more = names.size() - kMostNamed;
    return more < 2 ? names.join(QStringLiteral(", "))
                    : Said::tr("%1 and %2 more")
                          .arg(QStringList(names.mid(0, kMostNamed)).join(QStringLiteral(", ")))
                          .arg(more);
}

/** Where a photo may be missing. */
QString longestPause(const GridChoice &grid, int columns, const QVector<PhotoInfo> &photos)
{
    const Finding gap = gapFinding(photos);
    if (gap.files.isEmpty()) {
        return Said::tr("no pause tells where");
    }
    int before = 0;
    while (photos.at(before).path != gap.files.first()) {
        ++before;
    }
    const int position = before / grid.bracketCount;
    const bool byRows = sweepsRows(grid.mode);
    return (byRows ? Said::tr("the longest pause: %1, in row %2 as they were taken")
                   : Said::tr("the longest pause: %1, in column %2 as they were taken"))
        .arg(gap.text)
        .arg(position / (byRows ? columns : grid.rows) + 1);
}

/** Why \p photos do not fill \p grid, and \p where one may be missing. */
Failure refusal(const GridChoice &grid, const QVector<PhotoInfo> &photos, const QString &where)
{
    try {
        requireFullGrid(grid, photos.size());
    } catch (const CommandError &error) {
        Failure failure = error.failure();
        failure.tryThis += QStringLiteral("; ")
            + Said::tr("the pictures do not tell which are missing: %1").arg(where);
        return failure;
    }
    return {};
}

} // namespace

Result<PhotoFit> fitGrid(const GridChoice &grid, const QVector<PhotoInfo> &photos,
                         const KnownLens &lens, const JobWatch &watch)
{
    const QVector<PhotoInfo> used = photos.mid(grid.ignoredCount);
    const int line = grid.rows * grid.bracketCount;
    if (used.size() < 2 * grid.bracketCount || used.size() % line == 0 || !(lens.focal35mm > 0.0)) {
        return PhotoFit{};
    }
    const QSize frame = uprightSize(used.first());
    SeenTurns turns(used, lens.focal35mm, lens.lens, watch);
    const SweptGrid swept{ grid.rows, grid.mode, grid.bracketCount,
                           QSizeF(horizontalFovDegrees(frame, lens.focal35mm, lens.lens),
                                  horizontalFovDegrees(frame.transposed(), lens.focal35mm,
                                                       lens.lens)) };
    const auto matched = matchGrid(
        swept, used, [&turns](int one, int other) { return turns.between(one, other); });
    if (!matched) {
        return refusal(grid, photos, longestPause(grid, used.size() / line + 1, used));
    }
    PhotoFit fit = fitOf(matched->match, used, turns);
    for (Finding &finding : fit.findings) {
        if (finding.topic == QLatin1String("missing")) {
            finding.text = Said::tr("no photo for %1 (rows from the top, columns from the left)")
                               .arg(cellNames(grid, matched->columns, finding.shots));
        }
    }
    ShotFit all;
    for (int i = 0; i < grid.ignoredCount; ++i) {
        all += FittedShot{ photos.at(i).path, 0, {} };
    }
    fit.fit = all + *fit.fit;
    return fit;
}

} // namespace PanoHost
