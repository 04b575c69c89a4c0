// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

#include <vector>

namespace PanoHead
{

/** A direction as a unit vector; any coordinate may be non-finite. */
struct UnitVector {
    double x;
    double y;
    double z;
};

/**
 * Finds the directions near a direction. The sphere is cut into bands of latitude and each band
 * into cells of longitude, both about half a search radius wide, so that a search looks at about
 * twice as many directions as it finds. Directions that are not finite are never found.
 */
class DirectionIndex
{
public:
    /** \p typicalRadius, radians, fixes the size of the cells; any other radius works too. */
    DirectionIndex(const QVector<UnitVector> &directions, double typicalRadius);

    /**
     * Calls \p visit with the index of every direction within \p radius of \p centre, and of some
     * beyond; in no particular order. \p radius in radians, below pi / 2.
     */
    template <typename Visit>
    void visitNear(const UnitVector &centre, double radius, Visit visit) const
    {
        for (const CellRange &range : cellsNear(centre, radius)) {
            for (int slot = m_cellStarts[range.first]; slot < m_cellStarts[range.last + 1];
                 ++slot) {
                visit(m_order[slot]);
            }
        }
    }

private:
    struct CellRange {
        int first;
        int last; ///< inclusive
    };
    /** Cells of one band: the first one's number and how many there are. */
    struct Band {
        int firstCell;
        int cells;
    };

    void layOutBands(int directions, double typicalRadius);
    [[nodiscard]] int bandOf(double latitude) const;
    [[nodiscard]] int cellOf(const UnitVector &direction) const;
    [[nodiscard]] const std::vector<CellRange> &cellsNear(const UnitVector &centre,
                                                          double radius) const;
    void appendCells(const Band &band, double longitude, double halfWidth) const;

    std::vector<Band> m_bands;
    double m_bandHeight = 0.0; // radians
    std::vector<int> m_cellStarts; // per cell, and one behind the last: place in m_order
    std::vector<int> m_order; // indices of the directions, cell by cell
    mutable std::vector<CellRange> m_found; // answer of the last search
};

} // namespace PanoHead
