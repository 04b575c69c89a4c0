// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/assumedgrid.h"
#include "host/model/photofile.h"
#include "host/model/result.h"
#include "model/structuredpanoramaproperties.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <optional>

namespace PanoHost
{

using PanoHead::kFullFrameDiagonalMm;

/** As `renderMode` pages ask for the light itself. */
constexpr qint32 kHdrRadiance = 3;

/** "standard", "fisheye" or "unknown". */
[[nodiscard]] QString lensName(LensModel lens);

/** The size of \p photo once it is turned upright. */
[[nodiscard]] QSize uprightSize(const PhotoInfo &photo);

/** Where a description came from. */
struct SourceInfo {
    QString pluginUid;
    QString name; ///< of the importer
    QString record; ///< path of the head's file; empty for importers without one
    QString version; ///< of the importer
};

/** One shooting position: its direction and the photos taken there (one, or a stack). */
struct Position {
    double yawDegrees = 0.0; ///< to the right, as recorded (any number of turns)
    double pitchDegrees = 0.0; ///< up
    double rollDegrees = 0.0; ///< clockwise as seen from behind the camera
    QVector<PhotoInfo> photos; ///< never empty; the first one is the stack's reference level
};

/** The project that was written for a panorama. */
struct ProjectReference {
    QString path;
    double yawCentreDegrees = 0.0; ///< was subtracted from every yaw
};

/** A delivered description, joined with what is known about its photos. */
struct Panorama {
    SourceInfo source;
    /** As delivered, but for `imageGroups` and the angles, which `positions` holds joined. */
    StructuredPanoramaProperties description;
    QVector<Position> positions;
    /** Cells of a grid without a position, by their numbers in shooting order from 0. */
    QVector<qint32> missingCells;
    /** The focal length to use, 35 mm equivalent: wished, described, or the photos' median. */
    double focal35mm = 0.0;
    /** The lens to use; never `NotChosen`. */
    LensModel lens = LensModel::Standard;
    QStringList warnings;
    std::optional<ProjectReference> project;
};

/** What the user knows better than the description and the photos. */
struct JoinWishes {
    double focal35mm = 0.0; ///< 0: none
    LensModel lens = LensModel::NotChosen; ///< `NotChosen`: none
    /** Frames of a grid are as stored, whatever the photos' orientation. */
    bool ignoreExifRotation = false;
    QVector<qint32> missingCells; ///< of a grid, as `Panorama` has them
};

/** Answers what is known about one photo. */
using PhotoLookup = std::function<Result<PhotoInfo>(const QString &path)>;

/**
 * Joins positions, angles and photos.
 *
 * Angles are one per shot, groups one per position: a position takes the entry of its first photo
 * (entry i * N for stacks of N photos), or entry i where the record has one entry per position.
 * Descriptions without known positions (grids) get the start layout of `gridOf`.
 * Refuses: no photos, unreadable photos, fewer angles than positions, angles that are no numbers.
 */
[[nodiscard]] Result<Panorama> joinPanorama(const StructuredPanoramaProperties &description,
                                            const SourceInfo &source, const PhotoLookup &lookup,
                                            const JoinWishes &wishes = {});

/** Where a grid swept by \p gridMode would put the positions of \p panorama; its frames are as
 * stored where photos' own rotation is ignored. */
[[nodiscard]] AssumedGrid gridOf(const Panorama &panorama, int gridMode, bool ignoreExifRotation);

/**
 * The horizontal field of view in degrees of \p size pixels, for a focal length given as 35 mm
 * equivalent (by the diagonal). 0 when a number is missing.
 */
[[nodiscard]] double horizontalFovDegrees(const QSize &size, double focal35mm, LensModel lens);

/** The focal length in pixels, the same for both projections. 0 when a number is missing. */
[[nodiscard]] double focalPixels(const QSize &size, double focal35mm);

/** The same for a horizontal field of view in degrees, which is that of \p lens. */
[[nodiscard]] double focalPixelsOfFov(const QSize &size, double fovDegrees, LensModel lens);

/** The 35 mm equivalent of a focal length in pixels. */
[[nodiscard]] double focal35mmOf(const QSize &size, double focalPixels);

/** The number of photos of all positions. */
[[nodiscard]] int photoCount(const Panorama &panorama);

/** The paths of all photos, position by position. */
[[nodiscard]] QStringList photoPaths(const Panorama &panorama);

/** Whether a position has several photos. */
[[nodiscard]] bool hasBrackets(const Panorama &panorama);

/** For each position the positions that its links lead to, as they are described: each link stands
 * at one end, and those of grids may lead to cells without a position. */
[[nodiscard]] QVector<QVector<int>> linkTargets(const Panorama &panorama);

} // namespace PanoHost
