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
 * of latitude, in which they are sorted by longitude: a search looks at about twice as many
 * directions as it finds. Directions that are not finite are never found.
 */
class DirectionIndex
{
public:
    /** \p typicalRadius, radians, fixes the height of the bands; any other radius works too. */
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
            for (const Longitudes &part : cap.parts) {
                for (auto entry = firstIn(band, part);
                     entry != m_bands[band].cend() && entry->longitude <= part.last; ++entry) {
                    visit(entry->direction);
                }
            }
        }
    }

private:
    /** Radians; not a number: nowhere. */
    struct Place {
        double latitude;
        double longitude;
    };
    struct Entry {
        double longitude;
        int direction;
    };
    using Band = std::vector<Entry>; // by longitude
    struct Longitudes {
        double first;
        double last; ///< below the first one: none
    };
    /** The bands and longitudes in reach of a search. */
    struct Cap {
        int firstBand;
        int lastBand; ///< below the first one: nothing is in reach
        std::array<Longitudes, 2>
            parts; ///< what reaches beyond half a turn goes on at the other end
    };

    [[nodiscard]] int bandAt(double latitude) const;
    [[nodiscard]] Cap capAround(int centre, double radius) const;
    [[nodiscard]] Band::const_iterator firstIn(int band, const Longitudes &part) const;

    std::vector<Place> m_places; // by direction
    double m_firstLatitude = 0.0;
    double m_bandHeight = 0.0; // radians
    std::vector<Band> m_bands;
};

} // namespace PanoHead
