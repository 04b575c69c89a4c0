// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/coverage.h"

#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>

namespace PanoHost
{

namespace
{

constexpr int kSamplesPerSide = 24;

/** x right, y up, z into the scene. */
using Direction = std::array<double, 3>;

struct Extent {
    double from = 0.0;
    double to = 0.0;
};

struct Footprint {
    Extent yaw; ///< degrees; `from` in [0, 360), `to` from there on
    Extent pitch;
};

double wrappedTurn(double degrees)
{
    const double turn = std::fmod(degrees, 360.0);
    return turn < 0.0 ? turn + 360.0 : turn;
}

/** Turns a direction of the camera into one of the world. */
Direction toWorld(const Direction &camera, const Frame &frame)
{
    const double roll = qDegreesToRadians(frame.rollDegrees);
    const double pitch = qDegreesToRadians(frame.pitchDegrees);
    const double yaw = qDegreesToRadians(frame.yawDegrees);
    const double x = camera[0] * std::cos(roll) + camera[1] * std::sin(roll);
    const double rolledY = camera[1] * std::cos(roll) - camera[0] * std::sin(roll);
    const double y = rolledY * std::cos(pitch) + camera[2] * std::sin(pitch);
    const double z = camera[2] * std::cos(pitch) - rolledY * std::sin(pitch);
    return { x * std::cos(yaw) + z * std::sin(yaw), y, z * std::cos(yaw) - x * std::sin(yaw) };
}

/** The direction of a point of the frame, pixels from its centre, up positive. */
Direction cameraDirection(double x, double y, const Frame &frame)
{
    if (frame.lens != LensModel::Fisheye) {
        const double length = std::hypot(x, y, frame.focalPixels);
        return { x / length, y / length, frame.focalPixels / length };
    }
    const double radius = std::hypot(x, y);
    const double angle = std::min(radius / frame.focalPixels, M_PI);
    const double scale = radius > 0.0 ? std::sin(angle) / radius : 0.0;
    return { x * scale, y * scale, std::cos(angle) };
}

/** Whether the zenith (\p up 1) or nadir (-1) lies inside the frame. */
bool holdsPole(const Frame &frame, double up)
{
    const double pitch = qDegreesToRadians(frame.pitchDegrees);
    const double roll = qDegreesToRadians(frame.rollDegrees);
    // The pole seen from the camera; its yaw does not matter.
    const double rolledY = up * std::cos(pitch);
    const double z = up * std::sin(pitch);
    const double x = -rolledY * std::sin(roll);
    const double y = rolledY * std::cos(roll);
    const double sideways = std::hypot(x, y);
    double perUnit = 0.0;
    if (frame.lens == LensModel::Fisheye) {
        perUnit = sideways > 0.0 ? frame.focalPixels * std::atan2(sideways, z) / sideways : 0.0;
        if (sideways == 0.0 && z < 0.0) {
            return false;
        }
    } else if (z > 0.0) {
        perUnit = frame.focalPixels / z;
    } else {
        return false;
    }
    return std::abs(x * perUnit) <= frame.size.width() / 2.0
        && std::abs(y * perUnit) <= frame.size.height() / 2.0;
}

/** The points around the frame, pixels from its centre. */
QVector<QPair<double, double>> outline(const QSize &size)
{
    const double w = size.width() / 2.0;
    const double h = size.height() / 2.0;
    QVector<QPair<double, double>> points;
    points.reserve(4 * kSamplesPerSide);
    for (int i = 0; i < kSamplesPerSide; ++i) {
        const double along = 2.0 * i / kSamplesPerSide - 1.0;
        points.append({ along * w, h });
        points.append({ w, -along * h });
        points.append({ -along * w, -h });
        points.append({ -w, along * h });
    }
    return points;
}

Footprint footprint(const Frame &frame)
{
    // Yaw is counted from the frame's own, so that ordinary frames never cross the join.
    Frame centred = frame;
    centred.yawDegrees = 0.0;
    Extent yaw{ 180.0, -180.0 };
    Extent pitch{ 90.0, -90.0 };
    const auto points = outline(frame.size);
    for (const auto &point : points) {
        const Direction world = toWorld(cameraDirection(point.first, point.second, frame), centred);
        const double pointYaw = qRadiansToDegrees(std::atan2(world[0], world[2]));
        const double pointPitch = qRadiansToDegrees(std::asin(std::clamp(world[1], -1.0, 1.0)));
        yaw = { std::min(yaw.from, pointYaw), std::max(yaw.to, pointYaw) };
        pitch = { std::min(pitch.from, pointPitch), std::max(pitch.to, pointPitch) };
    }
    const bool zenith = holdsPole(frame, 1.0);
    const bool nadir = holdsPole(frame, -1.0);
    if (zenith || nadir) {
        yaw = { -180.0, 180.0 };
        pitch = { nadir ? -90.0 : pitch.from, zenith ? 90.0 : pitch.to };
    }
    const double from = wrappedTurn(frame.yawDegrees + yaw.from);
    return { { from, from + yaw.to - yaw.from }, pitch };
}

} // namespace

Coverage coverageOf(const QVector<Frame> &frames)
{
    QVector<Extent> yaws;
    yaws.reserve(frames.size());
    Coverage coverage{ 0.0, 360.0, 90.0, -90.0 };
    for (const Frame &frame : frames) {
        const Footprint print = footprint(frame);
        yaws.append(print.yaw);
        coverage.lowestPitchDegrees = std::min(coverage.lowestPitchDegrees, print.pitch.from);
        coverage.highestPitchDegrees = std::max(coverage.highestPitchDegrees, print.pitch.to);
    }
    std::sort(yaws.begin(), yaws.end(),
              [](const Extent &a, const Extent &b) { return a.from < b.from; });

    // Around the circle once: what the ranges seen so far reach to, against where the next begins.
    double reach = 0.0;
    for (const Extent &yaw : qAsConst(yaws)) {
        reach = std::max(reach, yaw.to - 360.0);
    }
    double hole = 0.0;
    double holeEnd = 0.0;
    for (const Extent &yaw : qAsConst(yaws)) {
        if (yaw.from - reach > hole) {
            hole = yaw.from - reach;
            holeEnd = yaw.from;
        }
        reach = std::max(reach, yaw.to);
    }
    const double first = yaws.isEmpty() ? 0.0 : yaws.first().from;
    if (first + 360.0 - reach > hole) {
        hole = first + 360.0 - reach;
        holeEnd = first;
    }
    coverage.yawSpanDegrees = 360.0 - std::max(hole, 0.0);
    const double centre = wrappedTurn(holeEnd + coverage.yawSpanDegrees / 2.0);
    coverage.yawCentreDegrees = hole > 0.0 ? (centre >= 180.0 ? centre - 360.0 : centre) : 0.0;
    return coverage;
}

} // namespace PanoHost
