// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/linksearch.h"

#include "model/lensmodel.h"
#include "shoot/angles.h"
#include "shoot/directionindex.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace PanoHead
{

namespace
{

constexpr double kReachFactor = 0.6499999761581421; // 0.65 as 32-bit float
constexpr double kCloseFactor = 0.699999988079071; // 0.7 as 32-bit float
constexpr float kPiSingle = 3.1415927F;
constexpr float kFullTurnSingle = 6.2831854820251465F; // 2 pi as 32-bit float
constexpr qint32 kNoLink = 0;
constexpr qint32 kBelow = 1;
constexpr qint32 kBeside = 2;
constexpr qint32 kUnspecified = 0;

// Below this an index costs more than it saves.
constexpr int kWorthAnIndex = 64;
// A search that finds more than this part of all directions is quicker without the index, which
// gives its finds in no order.
constexpr double kWidePart = 1.0 / 16.0;
// Cosines this near to the limit are decided by the arc cosine itself.
constexpr double kUndecided = 1e-12;

/** The part of the sphere within \p radius of a direction. */
double capPart(double radius)
{
    return (1.0 - std::cos(radius)) / 2.0;
}

/**
 * Decides "acos(c) * factor < limit" as that expression does, but takes the arc cosine only where
 * rounding could matter. \c limit in radians.
 */
class NearEnough
{
public:
    NearEnough(double limit, double factor)
        : m_limit(limit)
        , m_factor(factor)
        , m_cosine(std::cos(radius()))
    {
    }

    /** Nothing is ever near enough: the limit is negative, zero or not a number. */
    [[nodiscard]] bool isNever() const { return !(m_limit > 0.0); }
    [[nodiscard]] double radius() const { return m_limit / m_factor; }
    [[nodiscard]] bool isWide() const { return capPart(radius()) > kWidePart; }

    /** False for a cosine above 1: its arc is not a number. */
    [[nodiscard]] bool accepts(double cosine) const
    {
        if (cosine > m_cosine + kUndecided && cosine <= 1.0) {
            return true;
        }
        if (cosine < m_cosine - kUndecided) {
            return false;
        }
        return std::acos(cosine) * m_factor < m_limit;
    }

private:
    double m_limit;
    double m_factor;
    double m_cosine;
};

/** Links found so far, four bytes each until the list is made: it then grows once. */
class FoundLinks
{
public:
    explicit FoundLinks(int positions) { m_ends.reserve(positions); }

    void add(int position, qint32 type)
    {
        m_links.push_back(static_cast<quint32>(position) << kTypeBits | static_cast<quint32>(type));
    }

    /** All links from the next position, counted from 0, have been added. */
    void finishPosition(bool sorted)
    {
        if (!sorted) {
            const size_t start = m_ends.empty() ? 0 : m_ends.back();
            std::sort(m_links.begin() + static_cast<std::ptrdiff_t>(start), m_links.end());
        }
        m_ends.push_back(m_links.size());
    }

    void appendTo(QVector<AuthorizedLink> &links) const
    {
        links.reserve(links.size() + static_cast<int>(m_links.size()));
        size_t next = 0;
        for (size_t from = 0; from < m_ends.size(); ++from) {
            for (; next < m_ends[from]; ++next) {
                const auto to = static_cast<qint32>(m_links[next] >> kTypeBits);
                const auto type = static_cast<qint32>(m_links[next] & kTypeMask);
                links.append({ type, { static_cast<qint32>(from), to } });
            }
        }
    }

private:
    static constexpr int kTypeBits = 2;
    static constexpr quint32 kTypeMask = 3;

    std::vector<quint32> m_links;
    std::vector<size_t> m_ends; // per position
};

/** A position's direction with the terms that every pair needs. */
struct Pointing {
    explicit Pointing(const Direction &direction)
        : yaw(direction.yaw)
        , pitch(direction.pitch)
        , sinYaw(std::sin(static_cast<double>(yaw)))
        , cosYaw(std::cos(static_cast<double>(yaw)))
        , sinPitch(std::sin(static_cast<double>(pitch)))
        , cosPitch(std::cos(static_cast<double>(pitch)))
    {
    }

    [[nodiscard]] UnitVector vector() const
    {
        return { cosPitch * cosYaw, cosPitch * sinYaw, sinPitch };
    }

    float yaw;
    float pitch;
    double sinYaw;
    double cosYaw;
    double sinPitch;
    double cosPitch;
};

/**
 * Cosine of the angular distance, not clamped. The order of the operations decides
 * near-duplicates and stays as it is.
 */
double cosineBetween(const Pointing &a, const Pointing &b)
{
    return b.cosPitch * (a.cosYaw * a.cosPitch * b.cosYaw + b.sinYaw * a.sinYaw * a.cosPitch)
        + b.sinPitch * a.sinPitch;
}

/**
 * Kind of neighbourhood by the sector of atan2(pitch step, yaw step) in which \p b lies as seen
 * from \p a: (-pi/4, pi/4] beside, (-3 pi/4, -pi/4] below. Comparing the steps gives the same
 * answers, since two different slopes of 32-bit floats are much further apart than the arc
 * tangent's rounding.
 */
qint32 linkTypeTowards(const Pointing &a, const Pointing &b)
{
    float yawStep = b.yaw - a.yaw;
    // Two tests of their own: a step of exactly half a turn passes through both.
    if (static_cast<double>(yawStep) > kPi) {
        yawStep -= kFullTurnSingle;
    }
    if (static_cast<double>(yawStep) < -kPi) {
        yawStep += kFullTurnSingle;
    }
    const float pitchStep = b.pitch - a.pitch;
    const bool sameDirection = yawStep == 0.0F && pitchStep == 0.0F && !std::signbit(yawStep);
    if (sameDirection || (yawStep > 0.0F && pitchStep > -yawStep && pitchStep <= yawStep)) {
        return kBeside;
    }
    if (pitchStep < 0.0F && pitchStep <= -yawStep && pitchStep < yawStep) {
        return kBelow;
    }
    return kNoLink;
}

/** A photo's direction as a unit vector, and how far it sees. */
struct CloseView {
    explicit CloseView(const PhotoDirection &photo)
        : near(static_cast<double>(static_cast<float>(
                   std::atan(kFullFrameDiagonalMm / (2.0 * static_cast<double>(photo.focalMm))))),
               kCloseFactor)
    {
        const auto yaw = static_cast<double>(photo.yawDegrees * kPiSingle / 180.0F);
        const auto pitch = static_cast<double>(photo.pitchDegrees * kPiSingle / 180.0F);
        direction.x = std::sin(yaw) * std::cos(pitch);
        direction.y = std::cos(yaw) * std::cos(pitch);
        direction.z = -std::sin(pitch);
    }

    [[nodiscard]] bool sees(double cosine) const { return !near.isNever() && near.accepts(cosine); }

    UnitVector direction;
    NearEnough near;
};

/** Clamped: brackets repeat a direction, and rounding may push the cosine above 1. */
double clampedCosine(const CloseView &a, const CloseView &b)
{
    const double cosine = a.direction.x * b.direction.x + a.direction.y * b.direction.y
        + a.direction.z * b.direction.z;
    return std::min(std::max(cosine, -1.0), 1.0);
}

/** Bands are cut for the middle one of the radii that an index serves. */
double typicalRadius(const std::vector<CloseView> &views)
{
    std::vector<double> radii;
    for (const CloseView &view : views) {
        if (!view.near.isNever() && !view.near.isWide()) {
            radii.push_back(view.near.radius());
        }
    }
    if (radii.empty()) {
        return 0.0;
    }
    const auto middle = radii.begin() + static_cast<std::ptrdiff_t>(radii.size() / 2);
    std::nth_element(radii.begin(), middle, radii.end());
    return *middle;
}

/** The pairs of photos of which either sees the other, each from its first photo. */
class CloseSearch
{
public:
    explicit CloseSearch(const QVector<PhotoDirection> &photos)
        : m_seenFrom(photos.size())
    {
        m_views.reserve(photos.size());
        for (const PhotoDirection &photo : photos) {
            m_views.emplace_back(photo);
        }
    }

    void appendTo(QVector<AuthorizedLink> &links)
    {
        QVector<UnitVector> directions;
        directions.reserve(count());
        for (const CloseView &view : m_views) {
            directions.append(view.direction);
        }
        const DirectionIndex index(directions, typicalRadius(m_views));
        for (int i = 0; i < count(); ++i) {
            search(index, i);
        }
        write(links);
    }

private:
    [[nodiscard]] int count() const { return static_cast<int>(m_views.size()); }

    void search(const DirectionIndex &index, int i)
    {
        const CloseView &view = m_views[i];
        if (view.near.isNever()) {
            return;
        }
        if (count() < kWorthAnIndex || view.near.isWide()) {
            for (int j = 0; j < count(); ++j) {
                test(i, j);
            }
            return;
        }
        index.visitNear(i, view.near.radius(), [this, i](int j) { test(i, j); });
    }

    /** A pair that both photos see is kept when the first one searches. */
    void test(int i, int j)
    {
        if (i == j) {
            return;
        }
        const double cosine = clampedCosine(m_views[i], m_views[j]);
        if (m_views[i].sees(cosine) && (i < j || !m_views[j].sees(cosine))) {
            m_seenFrom[std::min(i, j)].push_back(std::max(i, j));
        }
    }

    void write(QVector<AuthorizedLink> &links)
    {
        size_t found = 0;
        for (const std::vector<int> &seen : m_seenFrom) {
            found += seen.size();
        }
        links.reserve(links.size() + static_cast<int>(found));
        for (int i = 0; i < count(); ++i) {
            std::sort(m_seenFrom[i].begin(), m_seenFrom[i].end());
            for (const int j : m_seenFrom[i]) {
                links.append({ kUnspecified, { i, j } });
            }
        }
    }

    std::vector<CloseView> m_views;
    std::vector<std::vector<int>> m_seenFrom; // per photo: later photos it is linked to
};

} // namespace

float halfFieldOfView(float focalMm)
{
    return static_cast<float>(
        std::atan(kFullFrameDiagonalMm / static_cast<double>(focalMm + focalMm)));
}

void appendNeighbourLinks(QVector<AuthorizedLink> &links, const QVector<Direction> &positions,
                          float halfFieldOfViewRadians)
{
    const NearEnough near(static_cast<double>(halfFieldOfViewRadians), kReachFactor);
    if (near.isNever()) {
        return;
    }
    std::vector<Pointing> pointings;
    pointings.reserve(positions.size());
    QVector<UnitVector> vectors;
    vectors.reserve(positions.size());
    for (const Direction &position : positions) {
        pointings.emplace_back(position);
        vectors.append(pointings.back().vector());
    }
    FoundLinks found(positions.size());
    const auto test = [&pointings, &near, &found](int i, int j) {
        if (j != i && near.accepts(cosineBetween(pointings[i], pointings[j]))) {
            const qint32 type = linkTypeTowards(pointings[i], pointings[j]);
            if (type != kNoLink) {
                found.add(j, type);
            }
        }
    };
    const int count = positions.size();
    const bool scansAll = count < kWorthAnIndex || near.isWide();
    const DirectionIndex index(scansAll ? QVector<UnitVector>() : vectors, near.radius());
    for (int i = 0; i < count; ++i) {
        if (scansAll) {
            for (int j = 0; j < count; ++j) {
                test(i, j);
            }
        } else {
            index.visitNear(i, near.radius(), [&test, i](int j) { test(i, j); });
        }
        found.finishPosition(scansAll);
    }
    found.appendTo(links);
}

void appendCloseLinks(QVector<AuthorizedLink> &links, const QVector<PhotoDirection> &photos)
{
    CloseSearch(photos).appendTo(links);
}

} // namespace PanoHead
