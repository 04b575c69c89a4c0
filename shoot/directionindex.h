// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

#include <array>
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
 * Finds the directions near one of them. The part of the sphere that they take up is cut into bands
 * of latitude and each band into cells of longitude, both about half a search radius wide, so that
 * a search looks at a few times as many directions as it finds, on a whole sphere and in a mosaic
 * of some degrees alike. Directions that are not finite are never found.
 */
class DirectionIndex
{
public:
    /** \p typicalRadius, radians, fixes the size of the cells; any other radius works too. */
    DirectionIndex(const QVector<UnitVector> &directions, double typicalRadius);

    /**
     * Calls \p visit with the index of every direction within \p radius of direction \p centre,
     * itself included, and of some beyond; each once, in no particular order. \p radius in radians,
     * at most pi / 2. Around a direction that is not finite there is none.
     */
    template <typename Visit> void visitNear(int centre, double radius, Visit visit) const
    {
        const Cap cap = capAround(centre, radius);
        for (int band = cap.firstBand; band <= cap.lastBand; ++band) {
            for (const Slots &slots : slotsIn(m_bands[band], cap)) {
                for (int slot = slots.begin; slot < slots.end; ++slot) {
                    visit(m_order[slot]);
                }
            }
        }
    }

private:
    /** Radians; the longitude counts from the first direction. Not a number: nowhere. */
    struct Place {
        double latitude;
        double longitude;
    };
    /** The cells of one band. */
    struct Band {
        int firstCell = 0;
        int cells = 0; ///< 0: no direction lies in this band
        double firstLongitude = 0.0;
        double lastLongitude = 0.0;
        double cellsPerRadian = 0.0;

        [[nodiscard]] int cellAt(double longitude) const;
    };
    /** The bands and longitudes in reach of a search. */
    struct Cap {
        int firstBand;
        int lastBand; ///< below the first one: nothing is in reach
        double longitude;
        double halfWidth; ///< pi or more: every longitude
    };
    /** A part of m_order. */
    struct Slots {
        int begin;
        int end;
    };
    /** Cells of one band, by number; none when the last one is below the first. */
    struct Cells {
        int first = 0;
        int last = -1;

        [[nodiscard]] bool isEmpty() const { return last < first; }
    };

    void findPlaces(const QVector<UnitVector> &directions);
    void layOutBands(double typicalRadius);
    void layOutCells();
    void sortIntoCells();
    [[nodiscard]] int bandAt(double latitude) const;
    [[nodiscard]] int cellOf(const Place &place) const;
    [[nodiscard]] Cap capAround(int centre, double radius) const;
    [[nodiscard]] std::array<Slots, 2> slotsIn(const Band &band, const Cap &cap) const;
    [[nodiscard]] static Cells cellsBetween(const Band &band, double first, double last);
    [[nodiscard]] Slots slotsOf(const Band &band, const Cells &cells) const;

    std::vector<Place> m_places; // by direction
    double m_firstLatitude = 0.0;
    double m_bandHeight = 0.0; // radians
    std::vector<Band> m_bands;
    std::vector<int> m_cellStarts; // per cell, and one behind the last: place in m_order
    std::vector<int> m_order; // indices of the directions, cell by cell
};

} // namespace PanoHead
