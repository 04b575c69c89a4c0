// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/common/directionindex.h"

#include <algorithm>
#include <cmath>

namespace PanoHead
{

namespace
{

constexpr double kPi = 3.141592653589793;
constexpr double kHalfPi = kPi / 2.0;
// Far above the rounding of the coordinates, far below any distance between two photos.
constexpr double kMargin = 1e-6; // radians
constexpr int kMaxBands = 4'096;

bool isFinite(const UnitVector &v)
{
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

double latitudeOf(const UnitVector &v)
{
    return std::atan2(v.z, std::hypot(v.x, v.y));
}

double longitudeOf(const UnitVector &v)
{
    return std::atan2(v.y, v.x);
}

} // namespace

DirectionIndex::DirectionIndex(const QVector<UnitVector> &directions, double typicalRadius)
{
    layOutBands(directions.size(), typicalRadius);
    const int cells = m_bands.back().firstCell + m_bands.back().cells;
    m_cellStarts.assign(cells + 1, 0);
    std::vector<int> cellOfDirection(directions.size(), -1);
    for (int i = 0; i < directions.size(); ++i) {
        if (isFinite(directions[i])) {
            cellOfDirection[i] = cellOf(directions[i]);
            ++m_cellStarts[cellOfDirection[i] + 1];
        }
    }
    for (int cell = 0; cell < cells; ++cell) {
        m_cellStarts[cell + 1] += m_cellStarts[cell];
    }
    m_order.resize(m_cellStarts[cells]);
    std::vector<int> next = m_cellStarts;
    for (int i = 0; i < directions.size(); ++i) {
        if (cellOfDirection[i] >= 0) {
            m_order[next[cellOfDirection[i]]++] = i;
        }
    }
}

/** About as many cells as directions at most: smaller ones would be empty. */
void DirectionIndex::layOutBands(int directions, double typicalRadius)
{
    const int useful = static_cast<int>(std::sqrt(static_cast<double>(directions))) + 1;
    const double wanted = typicalRadius > 0.0 ? kPi / (typicalRadius / 2.0) : useful;
    const int bands
        = static_cast<int>(std::max(1.0, std::min<double>(wanted, std::min(useful, kMaxBands))));
    m_bandHeight = kPi / bands;
    int firstCell = 0;
    for (int band = 0; band < bands; ++band) {
        const double latitude = -kHalfPi + (band + 0.5) * m_bandHeight;
        const int cells = static_cast<int>(2.0 * kPi * std::cos(latitude) / m_bandHeight) + 1;
        m_bands.push_back({ firstCell, cells });
        firstCell += cells;
    }
}

int DirectionIndex::bandOf(double latitude) const
{
    const int band = static_cast<int>(std::floor((latitude + kHalfPi) / m_bandHeight));
    return std::clamp(band, 0, static_cast<int>(m_bands.size()) - 1);
}

int DirectionIndex::cellOf(const UnitVector &direction) const
{
    const Band &band = m_bands[bandOf(latitudeOf(direction))];
    const double turn = (longitudeOf(direction) + kPi) / (2.0 * kPi);
    return band.firstCell + std::clamp(static_cast<int>(turn * band.cells), 0, band.cells - 1);
}

const std::vector<DirectionIndex::CellRange> &DirectionIndex::cellsNear(const UnitVector &centre,
                                                                        double radius) const
{
    m_found.clear();
    if (!isFinite(centre)) {
        return m_found;
    }
    const double reach = radius + kMargin;
    const double latitude = latitudeOf(centre);
    // A cap that holds a pole meets every longitude.
    const bool holdsPole = std::abs(latitude) + reach >= kHalfPi;
    const double halfWidth
        = holdsPole ? kPi : std::asin(std::sin(reach) / std::cos(latitude)) + kMargin;
    const double longitude = longitudeOf(centre);
    const int last = bandOf(latitude + reach);
    for (int band = bandOf(latitude - reach); band <= last; ++band) {
        appendCells(m_bands[band], longitude, halfWidth);
    }
    return m_found;
}

void DirectionIndex::appendCells(const Band &band, double longitude, double halfWidth) const
{
    const double cellsPerRadian = band.cells / (2.0 * kPi);
    const int first = static_cast<int>(std::floor((longitude + kPi - halfWidth) * cellsPerRadian));
    const int last = static_cast<int>(std::floor((longitude + kPi + halfWidth) * cellsPerRadian));
    if (last - first + 1 >= band.cells) {
        m_found.push_back({ band.firstCell, band.firstCell + band.cells - 1 });
    } else if (first < 0) {
        m_found.push_back({ band.firstCell, band.firstCell + last });
        m_found.push_back({ band.firstCell + first + band.cells, band.firstCell + band.cells - 1 });
    } else if (last >= band.cells) {
        m_found.push_back({ band.firstCell + first, band.firstCell + band.cells - 1 });
        m_found.push_back({ band.firstCell, band.firstCell + last - band.cells });
    } else {
        m_found.push_back({ band.firstCell + first, band.firstCell + last });
    }
}

} // namespace PanoHead
