// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/common/linksearch.h"

#include <algorithm>
#include <cmath>

namespace PanoHead
{

namespace
{

constexpr double kPi = 3.141592653589793;
constexpr double kFrameDiagonalMm = 43.266615305567875; // of 36 x 24 mm
constexpr double kReachFactor = 0.6499999761581421; // 0.65 as 32-bit float
constexpr float kFullTurn = 6.2831854820251465F; // 2 pi as 32-bit float
constexpr double kCloseFactor = 0.699999988079071; // 0.7 as 32-bit float
constexpr float kPiSingle = 3.1415927F;
constexpr qint32 kUnspecified = 0;
constexpr qint32 kBelow = 1;
constexpr qint32 kBeside = 2;
constexpr qint32 kNoLink = 0;

/** A direction with the terms that every pair needs. */
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

    float yaw;
    float pitch;
    double sinYaw;
    double cosYaw;
    double sinPitch;
    double cosPitch;
};

/**
 * Not a number when rounding pushes the cosine above 1: such a pair is no neighbour. The order of
 * the operations decides near-duplicates and stays as it is.
 */
double angularDistance(const Pointing &a, const Pointing &b)
{
    return std::acos(b.cosPitch
                         * (a.cosYaw * a.cosPitch * b.cosYaw + b.sinYaw * a.sinYaw * a.cosPitch)
                     + b.sinPitch * a.sinPitch);
}

/** Kind of neighbourhood by the sector in which \p b lies as seen from \p a. */
qint32 linkTypeTowards(const Pointing &a, const Pointing &b)
{
    float yawStep = b.yaw - a.yaw;
    // Two tests of their own: a step of exactly half a turn passes through both.
    if (static_cast<double>(yawStep) > kPi) {
        yawStep -= kFullTurn;
    }
    if (static_cast<double>(yawStep) < -kPi) {
        yawStep += kFullTurn;
    }
    const float pitchStep = b.pitch - a.pitch;
    const double sector = std::atan2(static_cast<double>(pitchStep), static_cast<double>(yawStep));
    if (sector > -kPi / 4.0 && sector <= kPi / 4.0) {
        return kBeside;
    }
    if (sector > -3.0 * kPi / 4.0 && sector <= -kPi / 4.0) {
        return kBelow;
    }
    return kNoLink;
}

/** A photo's direction as a unit vector, and how far it sees. */
struct CloseView {
    explicit CloseView(const PhotoDirection &photo)
        : halfAngleOfView(static_cast<float>(
            std::atan(kFrameDiagonalMm / (2.0 * static_cast<double>(photo.focalMm)))))
    {
        const double yaw = static_cast<double>(photo.yawDegrees * kPiSingle / 180.0F);
        const double pitch = static_cast<double>(photo.pitchDegrees * kPiSingle / 180.0F);
        x = std::sin(yaw) * std::cos(pitch);
        y = std::cos(yaw) * std::cos(pitch);
        z = -std::sin(pitch);
    }

    double x;
    double y;
    double z;
    double halfAngleOfView; // radians, rounded to 32-bit
};

/** Radians. Clamped, since brackets repeat a direction and rounding may push the cosine above 1. */
double angleBetween(const CloseView &a, const CloseView &b)
{
    const double cosine = a.x * b.x + a.y * b.y + a.z * b.z;
    return std::acos(std::min(std::max(cosine, -1.0), 1.0));
}

} // namespace

float halfFieldOfView(float focalMm)
{
    return static_cast<float>(std::atan(kFrameDiagonalMm / static_cast<double>(focalMm + focalMm)));
}

void appendNeighbourLinks(QVector<AuthorizedLink> &links, const QVector<Direction> &positions,
                          float halfFieldOfViewRadians)
{
    QVector<Pointing> pointings;
    pointings.reserve(positions.size());
    for (const Direction &position : positions) {
        pointings.append(Pointing(position));
    }
    const double reach = static_cast<double>(halfFieldOfViewRadians);
    for (int i = 0; i < pointings.size(); ++i) {
        for (int j = 0; j < pointings.size(); ++j) {
            if (j == i || !(reach > angularDistance(pointings[i], pointings[j]) * kReachFactor)) {
                continue;
            }
            const qint32 type = linkTypeTowards(pointings[i], pointings[j]);
            if (type != kNoLink) {
                links.append({ type, { i, j } });
            }
        }
    }
}

void appendCloseLinks(QVector<AuthorizedLink> &links, const QVector<PhotoDirection> &photos)
{
    QVector<CloseView> views;
    views.reserve(photos.size());
    for (const PhotoDirection &photo : photos) {
        views.append(CloseView(photo));
    }
    for (int i = 0; i < views.size(); ++i) {
        for (int j = i + 1; j < views.size(); ++j) {
            const double near = angleBetween(views[i], views[j]) * kCloseFactor;
            if (near < views[i].halfAngleOfView || near < views[j].halfAngleOfView) {
                links.append({ kUnspecified, { i, j } });
            }
        }
    }
}

} // namespace PanoHead
