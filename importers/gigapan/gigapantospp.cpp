// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/gigapan/gigapantospp.h"

#include "importers/gigapan/gridorder.h"

#include <algorithm>

namespace
{

constexpr qint32 kVertical = 1;
constexpr qint32 kHorizontal = 2;
constexpr qint32 kDiagonal = 3;
constexpr qint32 kAntiDiagonal = 4;

} // namespace

GigapanToSPP::GigapanToSPP(int rowCount, int columnCount, int gridOrder, int bracket, int ignored)
    : bracketCount(bracket)
    , ignoredCount(ignored)
    , columns(columnCount)
    , rows(rowCount)
    , mode(gridOrder)
{
    autoDetection = true;
    useRecordedLocation = true;
    overlap = 25.0;
}

void GigapanToSPP::generateSPP(const QStringList &images, bool is360)
{
    appendStacks(images);
    appendLinks(is360);
    gridMode = mode;
    gridRows = rows;
    gridBracketCount = bracketCount;
    gridWrap360 = is360;
}

void GigapanToSPP::appendStacks(const QStringList &images)
{
    const int bracket = std::max(bracketCount, 1);
    const qint64 cells = qint64{ std::max(rows, 0) } * std::max(columns, 0);
    int next = std::max(ignoredCount, 0);
    for (qint64 cell = 0; cell < cells && next < images.size(); ++cell) {
        // The last stack takes what there is.
        imageGroups.append(images.mid(next, bracket));
        next += std::min(bracket, images.size() - next);
    }
}

void GigapanToSPP::appendLinks(bool is360)
{
    if (!PanoHead::isGridOrder(mode)) {
        return;
    }
    for (int row = 0; row < rows; ++row) {
        const bool hasBelow = row < rows - 1;
        for (int column = 0; column < columns; ++column) {
            const bool hasBeside = column < columns - 1;
            const int beside = hasBeside ? column + 1 : 0;
            if (hasBelow) {
                appendLink(kVertical, row, column, row + 1, column);
            }
            if (hasBeside || is360) {
                appendLink(kHorizontal, row, column, row, beside);
            }
            if (hasBelow && (hasBeside || is360)) {
                appendLink(kAntiDiagonal, row + 1, column, row, beside);
                appendLink(kDiagonal, row, column, row + 1, beside);
            }
        }
    }
}

void GigapanToSPP::appendLink(qint32 kind, int rowA, int columnA, int rowB, int columnB)
{
    const auto index = [this](int row, int column) {
        return static_cast<qint32>(PanoHead::shotIndex(mode, rows, columns, row, column));
    };
    authorizedLinks.append({ kind, { index(rowA, columnA), index(rowB, columnB) } });
}
