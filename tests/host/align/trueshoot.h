// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/headmodel.h"

#include <QPair>

#include <Eigen/Geometry>

#include <functional>
#include <random>
#include <vector>

/**
 * A shoot of which everything is known: where its photos really looked, and the points that they
 * have in common. Directions and pixels are worked out here, by formulas of its own.
 */
class TrueShoot
{
public:
    /** A photo and what its head did besides the record. */
    struct Photo {
        PanoHost::AlignView view;
        PanoHost::Angles extra;
        bool hasTexture = true;
    };

    /** Draws come from \p seed. One rectilinear lens of 81 x 59 degrees across 900 x 600 pixels. */
    explicit TrueShoot(unsigned seed = 1);

    /** Adds \p count photos around the horizon at \p pitch, from \p yaw on. */
    void addRow(double pitch, int count, double yaw = 0.0);
    /** Adds photos of \p columns times \p rows, as many degrees apart. */
    void addGrid(int columns, int rows, double yawStep, double pitchStep);
    /** The usual one: two rows, the zenith and the nadir. 26 photos. */
    void addSphere();
    /** Lets the head miss what it records by up to \p degrees on each axis, evenly spread. */
    void play(double degrees);

    [[nodiscard]] Eigen::Quaterniond attitude(int photo) const;
    /** What the record says: lenses without distortion, a straight camera. */
    [[nodiscard]] PanoHost::HeadModel recorded() const;
    /** Up to \p most points for each of all pairs that overlap, off by \p noise pixels on each
     * axis. */
    [[nodiscard]] std::vector<PanoHost::TiePoint> points(double noise, int most = 40);
    /** Up to \p most points for the photos \p pair. */
    void appendPoints(std::vector<PanoHost::TiePoint> &points, const QPair<int, int> &pair,
                      double noise, int most);
    /** Moves a \p share of the points' matches to anywhere in their photos. */
    void spoil(std::vector<PanoHost::TiePoint> &points, double share);

    using Chosen = std::function<bool(int photo)>;
    /** The root of the mean square of the attitudes' errors after the best common rotation, which
     * is found by \p fitted photos; over the \p counted ones. Degrees. */
    [[nodiscard]] double error(const PanoHost::HeadModel &model, const Chosen &counted = {},
                               const Chosen &fitted = {}) const;

    std::vector<Photo> photos;
    std::vector<PanoHost::AlignLens> lenses;
    double mountPitch = 0.0;
    double mountRoll = 0.0;
    double yawScale = 1.0;
    double pitchScale = 1.0;

private:
    [[nodiscard]] double evenly(double from, double to);
    /** Where the photo sees \p direction; false: outside. */
    [[nodiscard]] bool sees(const Photo &photo, const Eigen::Vector3d &direction,
                            Eigen::Vector2d &pixel) const;

    std::mt19937 m_random;
};
