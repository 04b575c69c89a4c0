// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/demo/camera.h"

#include <QDateTime>
#include <QString>
#include <QVector>

namespace PanoHost
{

/** How the camera sits on the head, and how it stores its pixels. */
enum class Mounting {
    Landscape,
    PortraitUpright, ///< turned clockwise; the camera turns the stored pixels upright itself
    PortraitTurned, ///< turned clockwise; pixels as the sensor has them, with an EXIF orientation
};

/** A row of positions, evenly spread over a full turn from yaw -180; a single one at yaw 0. */
struct ShootRow {
    double pitchDegrees = 0.0;
    int count = 1;
};

/** What a motorised head is told to do. */
struct ShootPlan {
    Camera camera; ///< its size is that of the stored pixels
    Mounting mounting = Mounting::Landscape;
    QVector<Pose> positions; ///< as the head records them, without the camera's own turn
    double playDegrees = 0.0; ///< it stops up to so far from there, in yaw and pitch
    /** The exposures at each position, in order, as stops from the reference exposure. */
    QVector<double> stops{ 0.0 };
    QDateTime start{ QDate(2026, 5, 1), QTime(10, 20, 30) };
};

/** One photo of a plan. */
struct PlannedShot {
    int position = 0; ///< index into the plan's positions
    int level = 0; ///< index into the plan's stops
    Pose head; ///< what the head records
    Pose camera; ///< where the camera truly points, its mounting included
    double stops = 0.0;
    QDateTime time;
    QString fileName; ///< sorts in shooting order
};

/** Positions of \p rows, in order. */
[[nodiscard]] QVector<Pose> positionsOf(const QVector<ShootRow> &rows);

/**
 * Moves every position by up to \p degrees in yaw and pitch, the same way each time: no head stops
 * exactly where it is told to. Pitch stays within -90 to 90.
 */
[[nodiscard]] QVector<Pose> withPlay(QVector<Pose> positions, double degrees);

/** 26 positions that cover the sphere at 24 mm in landscape: three rows, zenith and nadir. */
[[nodiscard]] QVector<ShootRow> landscapeRows();

/** 32 positions that cover the sphere at 24 mm in portrait. */
[[nodiscard]] QVector<ShootRow> portraitRows();

/** The photos of \p plan in shooting order: position by position, each with all its exposures. */
[[nodiscard]] QVector<PlannedShot> shotsOf(const ShootPlan &plan);

} // namespace PanoHost
