// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/panorama.h"

#include "host/model/assumedgrid.h"
#include "host/model/said.h"

#include <QFileInfo>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace PanoHost
{

namespace
{

double median(QVector<double> values)
{
    if (values.isEmpty()) {
        return 0.0;
    }
    std::sort(values.begin(), values.end());
    const int middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2.0;
}

double medianFocal35mm(const QVector<Position> &positions)
{
    QVector<double> focals;
    for (const Position &position : positions) {
        for (const PhotoInfo &photo : position.photos) {
            if (photo.focal35mm > 0.0) {
                focals.append(photo.focal35mm);
            }
        }
    }
    return median(focals);
}

double focalOf(const StructuredPanoramaProperties &description, const QVector<Position> &positions,
               const JoinWishes &wishes)
{
    if (wishes.focal35mm > 0.0) {
        return wishes.focal35mm;
    }
    const double described = description.focalLength;
    return std::isfinite(described) && described > 0.0 ? described : medianFocal35mm(positions);
}

LensModel lensOf(const StructuredPanoramaProperties &description, const PhotoInfo &firstPhoto)
{
    if (PanoHead::isLensModel(static_cast<int>(description.lensModel))) {
        return description.lensModel;
    }
    return firstPhoto.lens == LensModel::Fisheye ? LensModel::Fisheye : LensModel::Standard;
}

QString shotNumber(int entry)
{
    return Said::tr("shot %1").arg(entry + 1);
}

/** Fills the directions from the recorded angles. */
std::optional<Failure> takeAngles(const StructuredPanoramaProperties &description,
                                  QVector<Position> &positions)
{
    int photos = 0;
    for (const Position &position : qAsConst(positions)) {
        photos += position.photos.size();
    }
    const int angles = std::min(description.yaw.size(), description.pitch.size());
    const bool perPosition = angles == positions.size();
    if (!perPosition && angles < photos) {
        return refused(Said::tr("the description"),
                       Said::tr("%1 recorded directions for %2 photos at %3 positions")
                           .arg(angles)
                           .arg(photos)
                           .arg(positions.size()));
    }
    int entry = 0;
    for (Position &position : positions) {
        const double yaw = description.yaw[entry];
        const double pitch = description.pitch[entry];
        const double roll = description.rollKnown ? description.roll.value(entry) : 0.0;
        if (!std::isfinite(yaw) || !std::isfinite(pitch) || !std::isfinite(roll)) {
            return refused(shotNumber(entry), Said::tr("its direction is not a number"),
                           Said::tr("correct the record"));
        }
        position.yawDegrees = qRadiansToDegrees(yaw);
        position.pitchDegrees = qRadiansToDegrees(pitch);
        position.rollDegrees = qRadiansToDegrees(roll);
        entry += perPosition ? 1 : position.photos.size();
    }
    return {};
}

void takeGrid(Panorama &panorama, bool asStored)
{
    const AssumedGrid grid = gridOf(panorama, panorama.description.gridMode, asStored);
    for (int i = 0; i < grid.directions.size() && i < panorama.positions.size(); ++i) {
        panorama.positions[i].yawDegrees = grid.directions[i].yawDegrees;
        panorama.positions[i].pitchDegrees = grid.directions[i].pitchDegrees;
    }
    panorama.warnings += grid.warnings;
}

} // namespace

QSize uprightSize(const PhotoInfo &photo)
{
    return clockwiseDegrees(photo.orientation) % 180 == 0 ? photo.storedSize
                                                          : photo.storedSize.transposed();
}

QString lensName(LensModel lens)
{
    switch (lens) {
    case LensModel::Standard:
        return QStringLiteral("standard");
    case LensModel::Fisheye:
        return QStringLiteral("fisheye");
    case LensModel::NotChosen:
        break;
    }
    return QStringLiteral("unknown");
}

Result<Panorama> joinPanorama(const StructuredPanoramaProperties &description,
                              const SourceInfo &source, const PhotoLookup &lookup,
                              const JoinWishes &wishes)
{
    Panorama panorama;
    panorama.source = source;
    panorama.description = description;
    panorama.missingCells = wishes.missingCells;
    panorama.positions.reserve(description.imageGroups.size());
    for (const QStringList &group : description.imageGroups) {
        Position position;
        for (const QString &path : group) {
            auto photo = lookup(path);
            if (!photo) {
                return photo.error();
            }
            position.photos.append(std::move(photo).value());
        }
        if (position.photos.isEmpty()) {
            return refused(Said::tr("position %1").arg(panorama.positions.size() + 1),
                           Said::tr("has no photo"));
        }
        panorama.positions.append(position);
    }
    if (panorama.positions.isEmpty()) {
        return refused(Said::tr("the description"), Said::tr("holds no photos"));
    }
    panorama.focal35mm = focalOf(description, panorama.positions, wishes);
    panorama.lens = wishes.lens != LensModel::NotChosen
        ? wishes.lens
        : lensOf(description, panorama.positions.first().photos.first());
    if (description.positionsKnown) {
        if (const auto failure = takeAngles(description, panorama.positions)) {
            return *failure;
        }
    } else {
        takeGrid(panorama, wishes.ignoreExifRotation);
    }
    return panorama;
}

AssumedGrid gridOf(const Panorama &panorama, int gridMode, bool ignoreExifRotation)
{
    StructuredPanoramaProperties description = panorama.description;
    description.gridMode = gridMode;
    const PhotoInfo &first = panorama.positions.first().photos.first();
    return assumedGrid(description, ignoreExifRotation ? first.storedSize : uprightSize(first),
                       panorama.focal35mm, panorama.lens, panorama.missingCells);
}

double horizontalFovDegrees(const QSize &size, double focal35mm, LensModel lens)
{
    if (size.isEmpty() || !(focal35mm > 0.0) || !std::isfinite(focal35mm)) {
        return 0.0;
    }
    const double diagonal = std::hypot(double(size.width()), double(size.height()));
    const double widthMm = kFullFrameDiagonalMm * size.width() / diagonal;
    return qRadiansToDegrees(lens == LensModel::Fisheye
                                 ? widthMm / focal35mm
                                 : 2.0 * std::atan(widthMm / (2.0 * focal35mm)));
}

double focalPixels(const QSize &size, double focal35mm)
{
    if (size.isEmpty() || !(focal35mm > 0.0) || !std::isfinite(focal35mm)) {
        return 0.0;
    }
    return focal35mm * std::hypot(double(size.width()), double(size.height()))
        / kFullFrameDiagonalMm;
}

double focalPixelsOfFov(const QSize &size, double fovDegrees, LensModel lens)
{
    const double fov = qDegreesToRadians(fovDegrees);
    return lens == LensModel::Fisheye ? size.width() / fov
                                      : size.width() / 2.0 / std::tan(fov / 2.0);
}

double focal35mmOf(const QSize &size, double focalPixels)
{
    return focalPixels * kFullFrameDiagonalMm / std::hypot(size.width(), size.height());
}

int photoCount(const Panorama &panorama)
{
    int photos = 0;
    for (const Position &position : panorama.positions) {
        photos += position.photos.size();
    }
    return photos;
}

QStringList photoPaths(const Panorama &panorama)
{
    QStringList paths;
    for (const Position &position : panorama.positions) {
        for (const PhotoInfo &photo : position.photos) {
            paths += photo.path;
        }
    }
    return paths;
}

bool hasBrackets(const Panorama &panorama)
{
    return std::any_of(panorama.positions.begin(), panorama.positions.end(),
                       [](const Position &position) { return position.photos.size() > 1; });
}

QVector<QVector<int>> linkTargets(const Panorama &panorama)
{
    QVector<QVector<int>> targets(panorama.positions.size());
    for (const AuthorizedLink &link : panorama.description.authorizedLinks) {
        const bool usable
            = link.indices.size() == 2 && link.indices[0] >= 0 && link.indices[0] < targets.size();
        if (usable) {
            targets[link.indices[0]] += link.indices[1];
        }
    }
    return targets;
}

} // namespace PanoHost
