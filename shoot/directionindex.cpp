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
constexpr double kSlack = 1e-6; // radians
bool isFinite(const UnitVector &v)
{
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

} // namespace

DirectionIndex::DirectionIndex(const QVector<UnitVector> &directions, double typicalRadius)
{
    constexpr double kNowhere = std::numeric_limits<double>::quiet_NaN();
    double lowest = kHalfPi;
    double highest = -kHalfPi;
    m_places.reserve(directions.size());
    for (const UnitVector &v : directions) {
        m_places.push_back({ kNowhere, kNowhere });
        if (isFinite(v)) {
            Place &place = m_places.back();
            place = { std::atan2(v.z, std::sqrt(v.x * v.x + v.y * v.y)), std::atan2(v.y, v.x) };
            lowest = std::min(lowest, place.latitude);
            highest = std::max(highest, place.latitude);
        }
    }
    const double span = std::max(highest - lowest, 0.0);
    const double count = std::max(static_cast<double>(directions.size()), 1.0);
    m_firstLatitude = lowest;
    m_bandHeight = std::max({ typicalRadius / 2.0, span / count, kSlack });
    m_bands.resize(static_cast<std::size_t>(span / m_bandHeight) + 1);
    for (int i = 0; i < directions.size(); ++i) {
        const Place &place = m_places[i];
        if (!std::isnan(place.latitude)) {
            m_bands[bandAt(place.latitude)].push_back({ place.longitude, i });
        }
    }
    for (Band &band : m_bands) {
        std::sort(band.begin(), band.end(),
                  [](const Entry &a, const Entry &b) { return a.longitude < b.longitude; });
    }
}

int DirectionIndex::bandAt(double latitude) const
{
    const double band = (latitude - m_firstLatitude) / m_bandHeight;
    return static_cast<int>(std::clamp(band, 0.0, static_cast<double>(m_bands.size() - 1)));
}

DirectionIndex::Cap DirectionIndex::capAround(int centre, double radius) const
{
    constexpr Longitudes kNone{ 1.0, 0.0 };
    const Place &place = m_places[centre];
    if (std::isnan(place.latitude)) {
        return { 0, -1, { kNone, kNone } };
    }
    const double reach = radius + kSlack;
    Cap cap{ bandAt(place.latitude - reach),
             bandAt(place.latitude + reach),
             { Longitudes{ -kPi, kPi }, kNone } };
    // A cap that holds a pole meets every longitude.
    if (std::abs(place.latitude) + reach < kHalfPi) {
        const double sine = std::sin(reach) / std::cos(place.latitude);
        const double halfWidth = std::asin(std::min(sine, 1.0)) + kSlack;
        cap.parts[0] = { place.longitude - halfWidth, place.longitude + halfWidth };
        if (std::abs(place.longitude) + halfWidth > kPi) {
            const double turn = place.longitude < 0.0 ? kFullTurn : -kFullTurn;
            cap.parts[1] = { cap.parts[0].first + turn, cap.parts[0].last + turn };
        }
    }
    return cap;
}

DirectionIndex::Band::const_iterator DirectionIndex::firstIn(int band, const Longitudes &part) const
{
    const Band &entries = m_bands[band];
    if (part.last < part.first) {
        return entries.cend();
    }
    return std::lower_bound(
        entries.cbegin(), entries.cend(), part.first,
        [](const Entry &entry, double longitude) { return entry.longitude < longitude; });
}

} // namespace PanoHead
