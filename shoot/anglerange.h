// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

#include <limits>

struct ShootData;

namespace PanoHead
{

/** Extent of one recorded angle, degrees, 32-bit as in the record. */
struct AngleRange {
    static constexpr float kUnbounded = std::numeric_limits<float>::max();

    float minimum = -kUnbounded;
    float maximum = kUnbounded;

    /** Nothing is loaded; shown as not available. */
    [[nodiscard]] static constexpr AngleRange unknown() { return { -kUnbounded, kUnbounded }; }
    /** Where a scan starts. A record without shots keeps it, and pages show it as numbers. */
    [[nodiscard]] static constexpr AngleRange scanStart() { return { kUnbounded, -kUnbounded }; }

    [[nodiscard]] bool isUnknown() const;
    /** Neither unknown nor a scan start, and finite: a picture can be laid out over it. */
    [[nodiscard]] bool isMeasured() const;
    void widen(float angle);
    /** The range of the negated angles. */
    [[nodiscard]] AngleRange negated() const { return { -maximum, -minimum }; }

    friend bool operator==(const AngleRange &a, const AngleRange &b)
    {
        return a.minimum == b.minimum && a.maximum == b.maximum;
    }
};

/** Extents of a shoot. */
struct AngleExtents {
    AngleRange yaw;
    AngleRange pitch;

    friend bool operator==(const AngleExtents &a, const AngleExtents &b)
    {
        return a.yaw == b.yaw && a.pitch == b.pitch;
    }
};

/** Extents over \p shots; both ranges stay at the scan's start when there are none. */
[[nodiscard]] AngleExtents extentsOf(const QVector<ShootData> &shots);

} // namespace PanoHead
