// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/geometry.h"
#include "host/model/coverage.h"

#include <QPair>
#include <QString>
#include <QVector>

#include <optional>
#include <vector>

namespace PanoHost
{

struct Panorama;
class PtoFile;

/** A position as it is shown: its stack's reference photo on the sphere. */
struct ShootFrame {
    QString path;
    int photo = 0; ///< the reference photo among all photos, from 0
    int photoCount = 1; ///< of the stack
    AlignLens lens; ///< of the stored pixels
    Angles angles; ///< of the stored pixels: the camera's own turn is part of the roll
    bool isLinked = false;
    double residualPixels = -1.0; ///< of its control points, the median; below 0: not known
    bool isPlaced = true; ///< false: its direction is not known, nothing is shown

    Eigen::Matrix3d toWorld = Eigen::Matrix3d::Identity();
    double radiusDegrees = 0.0; ///< from its middle to its corners

    /** Whether the photo shows what lies at \p direction. */
    [[nodiscard]] bool shows(const Eigen::Vector3d &direction) const;
};

/** A point of a frame's mesh. */
struct MeshPoint {
    Eigen::Vector3f direction = Eigen::Vector3f::Zero();
    float yaw = 0.0F; ///< degrees from the frame's own, which the whole mesh lies around
    float pitch = 0.0F;
    float u = 0.0F; ///< 0 to 1 from the stored photo's left edge to its right one
    float v = 0.0F; ///< likewise from the top; not a number where the photo is far away
};

/** A frame as a grid of points: straight between neighbours. */
struct FrameMesh {
    int first = 0; ///< point of the scene
    int columns = 0; ///< cells; 0: nothing to draw
    int rows = 0;
    bool isCut = false; ///< the grid is one of yaw and pitch, and reaches beyond the photo
    float yawFrom = 0.0F;
    float yawTo = 0.0F;
    float pitchFrom = 0.0F;
    float pitchTo = 0.0F;
};

/** What is shown of a shoot, one frame per position. */
struct ShootScene {
    QVector<ShootFrame> frames;
    QVector<QPair<int, int>> links; ///< pairs of frames, both in range
    int photoCount = 0;
    Coverage coverage;
    bool isAligned = false;
    bool assumesFocal = false; ///< nobody names a focal length: frames are as large as by 50 mm
    double worstResidualPixels = 0.0; ///< of all frames

    std::vector<MeshPoint> points;
    std::vector<FrameMesh> meshes; ///< one per frame

    /** The frame that is seen at \p direction, the front one first, then the later one; -1: none.
     */
    [[nodiscard]] int frameAt(const Eigen::Vector3d &direction, int front = -1) const;
};

/** As recorded. */
[[nodiscard]] ShootScene sceneOf(const Panorama &panorama);
/** As the project places the photos, with what its control points say of that. */
[[nodiscard]] ShootScene sceneOf(const PtoFile &project);

/** Where no photo looks: cells of a grid, each with its lower left corner. */
struct Gaps {
    double stepDegrees = 2.0;
    QVector<QPair<double, double>> corners; ///< yaw and pitch

    [[nodiscard]] bool isEmpty() const { return corners.isEmpty(); }
};

/** Within the band that \p scene covers; the middle of each cell counts. */
[[nodiscard]] Gaps gapsOf(const ShootScene &scene);

} // namespace PanoHost
