// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/demo/attitudeerrors.h"
#include "host/demo/shootplan.h"
#include "host/model/panorama.h"
#include "importers/gigapan/gridorder.h"
#include "tests/host/align/support/testscenes.h"

#include <QImage>
#include <QString>
#include <QVector>

#include <optional>

namespace TestShoots
{

using PanoHost::AttitudeErrors;
using PanoHost::Chosen;
using PanoHost::Rotations;

/** What head and camera do besides what is recorded. Degrees. */
struct HeadFaults {
    double play = 0.3; ///< at most, evenly spread, in yaw and in pitch
    double rollPlay = 0.05;
    double mountPitch = 0.0; ///< how crooked the camera sits
    double mountRoll = 0.0;
    int slipsFrom = -1; ///< the position from which on the yaw is off by `slip`; -1: none
    double slip = 6.0;
    int bumped = -1; ///< the position that is off by `bump`; -1: none
    double bump = 3.0;
};

/** Who notes the angles down. */
enum class Noted {
    Papywizard, ///< to 0.1 degrees
    Clauss, ///< whole degrees, the rest is cut off; no roll
    Grid, ///< nobody: rows, columns and an overlap are all that is known
};

/** What the user says of a grid. */
struct StatedGrid {
    int rows = 0;
    int order = PanoHead::kColumnsFromLeft; ///< which is the true one, whatever is said
    double overlapPercent = 0.0;
    bool wraps = false;
};

/** What the photos' exposures do. */
struct Exposures {
    QVector<double> bracket{ 0.0 }; ///< stops, one photo each at every position
    double automatic = 0.0; ///< at most so many stops more or less, another one at each position
    bool isTold = true; ///< by the photos' EXIF data
};

/** A shoot as it truly is, and what is noted of it. Everything else follows from these. */
struct TestShoot {
    QString name; ///< of its folder
    TestScene scene = TestScene::Terrace;
    PanoHost::Camera camera{ QSize(900, 600), 24.0 }; ///< the true one; size of stored pixels
    PanoHost::Mounting mounting = PanoHost::Mounting::Landscape;
    double statedFocal35mm = 24.0; ///< by record and EXIF
    QVector<PanoHost::Pose> planned; ///< where the head was told to go, as its motors count
    std::vector<Chosen> groups; ///< of positions: rows, islands; the first ones are textured
    HeadFaults faults;
    Noted noted = Noted::Papywizard;
    StatedGrid grid;
    Exposures exposures;
    double noiseLevels = 0.0; ///< standard deviation, 8-bit levels
    double nodalOffsetMetres = 0.0; ///< how far the lens's eye is ahead of the head's axes
    quint32 seed = 1;
};

/** Positions of \p rows, in order, with a group for each row. */
void setRows(TestShoot &shoot, const QVector<PanoHost::ShootRow> &rows);

/** Column by column from the left, neighbours \p overlapPercent apart, evenly around a full turn
 * where the stated grid wraps; one group. Sets the stated grid's rows as well. */
void setGrid(TestShoot &shoot, int rows, int columns, double overlapPercent,
             double centrePitchDegrees);

/** What the head notes, one entry per position. */
[[nodiscard]] QVector<PanoHost::Pose> recordedAngles(const TestShoot &shoot);

/** Where the cameras (their stored pixels) truly point, one entry per position. */
[[nodiscard]] Rotations trueRotations(const TestShoot &shoot);

/** Where the cameras of \p panorama point as far as it knows, EXIF orientation included. */
[[nodiscard]] Rotations rotationsOf(const PanoHost::Panorama &panorama);

/**
 * The photos in \p folder, which is made, joined with the description that the import of the
 * recorded angles gives. Photos that the same shoot has left there are not taken again.
 */
[[nodiscard]] PanoHost::Result<PanoHost::Panorama> photographed(const TestShoot &shoot,
                                                                const QString &folder);

/** What \p position of \p shoot sees, without noise. */
[[nodiscard]] PanoHost::LightField lightAt(const TestShoot &shoot, int position);

/**
 * What a faultless panorama of \p part receives, \p turned into the frame of found rotations by
 * their `commonRotation`.
 */
[[nodiscard]] PanoHost::LightField truthOf(const TestShoot &shoot, const PanoHost::SpherePart &part,
                                           const Eigen::Matrix3d &turned
                                           = Eigen::Matrix3d::Identity());

/** The angle by which \p one as a whole is turned against \p other as a whole, degrees. */
[[nodiscard]] double degreesBetweenGroups(const Rotations &truth, const Rotations &found,
                                          const Chosen &one, const Chosen &other);

/** How well photos were placed, and what part of them could be placed by their texture. */
struct Verdict {
    AttitudeErrors tied; ///< of the photos with texture, each island in its own frame
    /** Of the photos of nothing but sky in the frame of the others, rms; between islands, the
     * angle; 0 where there are neither. Degrees. */
    double apart = 0.0;
    Eigen::Matrix3d common; ///< found to true
};
[[nodiscard]] Verdict judged(const TestShoot &shoot, const Rotations &found);

} // namespace TestShoots
