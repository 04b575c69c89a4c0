// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/directionindex.h"

#include "shoot/angles.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace PanoHead
{

namespace
{

constexpr double kHalfPi = kPi / 2.0;
constexpr double kFullTurn = 2.0 * kPi;
// Far above the rounding of the coordinates, far below any distance between two photos.
constexpr double kMargin = 1e-6; // radians
// More would mostly be empty, and a search passes all that are in its reach.
constexpr int kCellsPerDirection = 4;

bool isFinite(const UnitVector &v)
{
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

/** -pi to pi. */
double withinHalfATurn(double longitude)
{
    if (longitude > kPi) {
        return longitude - kFullTurn;
    }
    return longitude < -kPi ? longitude + kFullTurn : longitude;
}

} // namespace

DirectionIndex::DirectionIndex(const QVector<UnitVector> &directions, double typicalRadius)
{
    findPlaces(directions);
    layOutBands(typicalRadius);
    layOutCells();
    sortIntoCells();
}

/** Counted from the first direction, the longitudes of a mosaic run on over half a turn. */
void DirectionIndex::findPlaces(const QVector<UnitVector> &directions)
{
    constexpr double kNowhere = std::numeric_limits<double>::quiet_NaN();
    const auto first = std::find_if(directions.cbegin(), directions.cend(), isFinite);
    const double start = first == directions.cend() ? 0.0 : std::atan2(first->y, first->x);
    m_places.reserve(directions.size());
    for (const UnitVector &v : directions) {
        if (isFinite(v)) {
            m_places.push_back({ std::atan2(v.z, std::sqrt(v.x * v.x + v.y * v.y)),
                                 withinHalfATurn(std::atan2(v.y, v.x) - start) });
        } else {
            m_places.push_back({ kNowhere, kNowhere });
        }
    }
}

void DirectionIndex::layOutBands(double typicalRadius)
{
    double first = kHalfPi;
    double last = -kHalfPi;
    for (const Place &place : m_places) {
        first = std::fmin(first, place.latitude);
        last = std::fmax(last, place.latitude);
    }
    const double span = std::max(last - first, 0.0);
    const double directions = std::max(static_cast<double>(m_places.size()), 1.0);
    m_firstLatitude = first;
    m_bandHeight = std::max({ typicalRadius / 2.0, span / directions, kMargin });
    m_bands.resize(static_cast<std::size_t>(span / m_bandHeight) + 1);
}

void DirectionIndex::layOutCells()
{
    std::vector<int> directions(m_bands.size(), 0);
    for (const Place &place : m_places) {
        if (std::isnan(place.latitude)) {
            continue;
        }
        const int number = bandAt(place.latitude);
        Band &band = m_bands[number];
        const bool isFirst = directions[number]++ == 0;
        band.firstLongitude
            = isFirst ? place.longitude : std::min(band.firstLongitude, place.longitude);
        band.lastLongitude
            = isFirst ? place.longitude : std::max(band.lastLongitude, place.longitude);
    }
    int firstCell = 0;
    for (std::size_t number = 0; number < m_bands.size(); ++number) {
        Band &band = m_bands[number];
        band.firstCell = firstCell;
        if (directions[number] > 0) {
            const double latitude
                = m_firstLatitude + (static_cast<double>(number) + 0.5) * m_bandHeight;
            const double span = band.lastLongitude - band.firstLongitude;
            const double wanted = span * std::abs(std::cos(latitude)) / m_bandHeight + 1.0;
            const double most = static_cast<double>(directions[number]) * kCellsPerDirection;
            band.cells = static_cast<int>(std::min(wanted, most));
            band.cellsPerRadian = band.cells > 1 ? band.cells / span : 0.0;
        }
        firstCell += band.cells;
    }
    m_cellStarts.assign(static_cast<std::size_t>(firstCell) + 1, 0);
}

void DirectionIndex::sortIntoCells()
{
    std::vector<int> cells;
    cells.reserve(m_places.size());
    for (const Place &place : m_places) {
        cells.push_back(cellOf(place));
        if (cells.back() >= 0) {
            ++m_cellStarts[cells.back() + 1];
        }
    }
    for (std::size_t cell = 1; cell < m_cellStarts.size(); ++cell) {
        m_cellStarts[cell] += m_cellStarts[cell - 1];
    }
    m_order.resize(m_cellStarts.back());
    std::vector<int> next = m_cellStarts;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (cells[i] >= 0) {
            m_order[next[cells[i]]++] = static_cast<int>(i);
        }
    }
}

int DirectionIndex::bandAt(double latitude) const
{
    const double band = (latitude - m_firstLatitude) / m_bandHeight;
    return static_cast<int>(std::clamp(band, 0.0, static_cast<double>(m_bands.size() - 1)));
}

int DirectionIndex::Band::cellAt(double longitude) const
{
    const double cell = (longitude - firstLongitude) * cellsPerRadian;
    return static_cast<int>(std::clamp(cell, 0.0, static_cast<double>(cells - 1)));
}

/** -1 for nowhere. */
int DirectionIndex::cellOf(const Place &place) const
{
    if (std::isnan(place.latitude)) {
        return -1;
    }
    const Band &band = m_bands[bandAt(place.latitude)];
    return band.firstCell + band.cellAt(place.longitude);
}

DirectionIndex::Cap DirectionIndex::capAround(int centre, double radius) const
{
    const Place &place = m_places[centre];
    if (std::isnan(place.latitude)) {
        return { 0, -1, 0.0, 0.0 };
    }
    const double reach = radius + kMargin;
    // A cap that holds a pole meets every longitude.
    const bool holdsPole = std::abs(place.latitude) + reach >= kHalfPi;
    const double sine = std::sin(reach) / std::cos(place.latitude);
    const double halfWidth = holdsPole ? kPi : std::asin(std::min(sine, 1.0)) + kMargin;
    return { bandAt(place.latitude - reach), bandAt(place.latitude + reach), place.longitude,
             halfWidth };
}

std::array<DirectionIndex::Slots, 2> DirectionIndex::slotsIn(const Band &band, const Cap &cap) const
{
    if (band.cells == 0) {
        return {};
    }
    if (cap.halfWidth >= kPi) {
        return { slotsOf(band, { 0, band.cells - 1 }), {} };
    }
    const double first = cap.longitude - cap.halfWidth;
    const double last = cap.longitude + cap.halfWidth;
    // What reaches beyond half a turn goes on at the other end.
    const double turn = cap.longitude < 0.0 ? kFullTurn : -kFullTurn;
    Cells here = cellsBetween(band, first, last);
    Cells beyond = cellsBetween(band, first + turn, last + turn);
    if (!here.isEmpty() && !beyond.isEmpty() && here.first <= beyond.last
        && beyond.first <= here.last) {
        here = { std::min(here.first, beyond.first), std::max(here.last, beyond.last) };
        beyond = {};
    }
    return { slotsOf(band, here), slotsOf(band, beyond) };
}

DirectionIndex::Cells DirectionIndex::cellsBetween(const Band &band, double first, double last)
{
    if (last < band.firstLongitude || first > band.lastLongitude) {
        return {};
    }
    return { band.cellAt(first), band.cellAt(last) };
}

DirectionIndex::Slots DirectionIndex::slotsOf(const Band &band, const Cells &cells) const
{
    if (cells.isEmpty()) {
        return {};
    }
    return { m_cellStarts[band.firstCell + cells.first],
             m_cellStarts[band.firstCell + cells.last + 1] };
}

} // namespace PanoHead
