// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/alignshoot.h"

#include "host/align/matching.h"
#include "host/model/safefile.h"

#include <QRegularExpression>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>

namespace PanoHost
{

namespace
{

struct KindName {
    RecordKind kind;
    const char *name;
};

constexpr std::array<KindName, 4> kKindNames{ { { RecordKind::Angles, "angles" },
                                                { RecordKind::NoRoll, "noroll" },
                                                { RecordKind::WholeDegrees, "whole" },
                                                { RecordKind::Grid, "grid" } } };

bool isWhole(const QVector<float> &radians)
{
    return std::all_of(radians.cbegin(), radians.cend(), [](float angle) {
        const double degrees = qRadiansToDegrees(double(angle));
        // 32-bit angles are exact to a hundred-thousandth of a degree.
        return std::abs(degrees - std::round(degrees)) < 1e-4;
    });
}

/** Whether the script at \p path holds an angle with a fraction, which importers cut off. */
bool hasFractions(const QString &path)
{
    constexpr qint64 kMostBytes = 64LL * 1024 * 1024;
    const auto script
        = path.isEmpty() ? Result<QByteArray>(QByteArray()) : readRegularFile(path, kMostBytes);
    static const QRegularExpression fraction(QStringLiteral("\\d\\.\\d*[1-9]"));
    return script && QString::fromLatin1(script.value()).contains(fraction);
}

RecordKind kindOf(const Panorama &panorama)
{
    const StructuredPanoramaProperties &description = panorama.description;
    if (!description.positionsKnown) {
        return RecordKind::Grid;
    }
    if (description.rollKnown) {
        return RecordKind::Angles;
    }
    const bool cut = isWhole(description.yaw) && isWhole(description.pitch)
        && hasFractions(panorama.source.record);
    return cut ? RecordKind::WholeDegrees : RecordKind::NoRoll;
}

void insertPair(IndexPairs &pairs, int one, int other)
{
    if (one != other) {
        pairs.emplace_back(std::min(one, other), std::max(one, other));
    }
}

void sortUnique(IndexPairs &pairs)
{
    std::sort(pairs.begin(), pairs.end());
    pairs.erase(std::unique(pairs.begin(), pairs.end()), pairs.end());
}

/** How else the grid may have been swept. */
void addOrders(const Panorama &panorama, bool ignoreExifRotation, AlignPlan &plan)
{
    plan.gridOrder = gridModeName(panorama.description.gridMode);
    for (int mode = 0; mode < kGridModes; ++mode) {
        const AssumedGrid grid = gridOf(panorama, mode, ignoreExifRotation);
        if (mode == panorama.description.gridMode
            || grid.directions.size() != panorama.positions.size()) {
            continue;
        }
        GridOrder order{ gridModeName(mode), {} };
        for (const GridDirection &direction : grid.directions) {
            order.directions.push_back({ direction.yawDegrees, direction.pitchDegrees, 0.0 });
        }
        plan.otherOrders.push_back(order);
    }
}

/** The lens as it was recorded, with the distortion that the project knows. */
AlignLens recordedLensOf(const PtoImage &image)
{
    AlignLens lens = lensOf(image);
    lens.focalPixels = focalPixelsOfFov(image.size, image.recordedFovDegrees, image.lens);
    return lens;
}

/** Position pairs that overlap, by their reference levels. */
IndexPairs overlapping(const AlignShoot &shoot)
{
    std::vector<Eigen::Matrix3d> rotations;
    std::vector<const AlignLens *> lenses;
    for (const std::vector<int> &images : shoot.positions) {
        const int view = shoot.viewOfImage[static_cast<size_t>(images.front())];
        rotations.push_back(shoot.model.rotation(view));
        lenses.push_back(&shoot.model.lensOf(view));
    }
    return overlappingPairs(rotations, lenses);
}

} // namespace

QString recordKindName(RecordKind kind)
{
    const auto *const row = std::find_if(kKindNames.begin(), kKindNames.end(),
                                         [kind](const KindName &one) { return one.kind == kind; });
    return QLatin1String(row->name);
}

RecordKind recordKindNamed(const QString &name)
{
    const auto *const row
        = std::find_if(kKindNames.begin(), kKindNames.end(),
                       [&](const KindName &one) { return name == QLatin1String(one.name); });
    return row == kKindNames.end() ? RecordKind::Angles : row->kind;
}

AlignPlan planOf(const Panorama &panorama, bool ignoreExifRotation)
{
    const StructuredPanoramaProperties &description = panorama.description;
    AlignPlan plan;
    plan.kind = kindOf(panorama);
    plan.detects = description.autoDetection;
    plan.places = !description.skipOptimization;
    plan.cleans = description.cleanWrongLinks;
    plan.trustsRecord = description.useRecordedLocation;
    plan.usesAllLevels = description.levelLinking != 0;
    const int count = panorama.positions.size();
    for (const AuthorizedLink &link : description.authorizedLinks) {
        const bool exists = link.indices.size() == 2
            && std::all_of(link.indices.cbegin(), link.indices.cend(),
                           [count](qint32 index) { return index >= 0 && index < count; });
        if (exists) {
            insertPair(plan.positionPairs, link.indices[0], link.indices[1]);
        }
    }
    sortUnique(plan.positionPairs);
    if (plan.kind == RecordKind::Grid) {
        addOrders(panorama, ignoreExifRotation, plan);
    }
    return plan;
}

AlignPlan planOf(const PtoFile &project)
{
    AlignPlan plan;
    plan.kind = recordKindNamed(QString::fromLatin1(project.head()));
    if (project.hasRecord()) {
        for (const PtoPoint &point : project.points()) {
            insertPair(plan.imagePairs, point.first, point.second);
        }
        sortUnique(plan.imagePairs);
    }
    return plan;
}

AlignShoot shootOf(const PtoFile &project)
{
    AlignShoot shoot;
    const QVector<PtoImage> &images = project.images();
    const auto count = static_cast<size_t>(images.size());
    std::vector<int> lensOfImage(count);
    std::vector<int> positionOfImage(count);
    shoot.viewOfImage.resize(count);
    // Links run to other images, wherever these stand: first those that have something of their
    // own.
    for (size_t i = 0; i < count; ++i) {
        const PtoImage &image = images[static_cast<int>(i)];
        if (image.lensMaster < 0) {
            lensOfImage[i] = static_cast<int>(shoot.model.lenses.size());
            shoot.model.lenses.push_back(recordedLensOf(image));
        }
        if (image.angleMaster < 0) {
            shoot.viewOfImage[i] = static_cast<int>(shoot.imageOfView.size());
            shoot.imageOfView.push_back(static_cast<int>(i));
        }
        if (image.stackMaster < 0) {
            positionOfImage[i] = static_cast<int>(shoot.positions.size());
            shoot.positions.push_back({ static_cast<int>(i) });
        }
    }
    for (size_t i = 0; i < count; ++i) {
        const PtoImage &image = images[static_cast<int>(i)];
        if (image.lensMaster >= 0) {
            lensOfImage[i] = lensOfImage[static_cast<size_t>(image.lensMaster)];
        }
        if (image.angleMaster >= 0) {
            shoot.viewOfImage[i] = shoot.viewOfImage[static_cast<size_t>(image.angleMaster)];
        }
        if (image.stackMaster >= 0) {
            const int position = positionOfImage[static_cast<size_t>(image.stackMaster)];
            shoot.positions[static_cast<size_t>(position)].push_back(static_cast<int>(i));
        }
    }
    for (const int i : shoot.imageOfView) {
        const PtoImage &image = images[i];
        AlignView view;
        view.recorded = image.recorded;
        view.turnDegrees = image.turnDegrees;
        view.lens = lensOfImage[static_cast<size_t>(i)];
        view.stack = image.stackMaster < 0
            ? -1
            : shoot.viewOfImage[static_cast<size_t>(image.stackMaster)];
        shoot.model.views.push_back(view);
    }
    shoot.model.corrections.resize(shoot.model.views.size());
    return shoot;
}

AlignShoot reordered(AlignShoot shoot, const GridOrder &order)
{
    for (size_t position = 0; position < shoot.positions.size(); ++position) {
        for (const int image : shoot.positions[position]) {
            const auto view = static_cast<size_t>(shoot.viewOfImage[static_cast<size_t>(image)]);
            const double roll = shoot.model.views[view].recorded.roll;
            shoot.model.views[view].recorded = order.directions.at(position);
            shoot.model.views[view].recorded.roll = roll;
        }
    }
    return shoot;
}

IndexPairs imagePairs(const AlignShoot &shoot, const AlignPlan &plan)
{
    if (!plan.imagePairs.empty()) {
        return plan.imagePairs;
    }
    IndexPairs pairs;
    for (const auto &[one, other] :
         plan.positionPairs.empty() ? overlapping(shoot) : plan.positionPairs) {
        const std::vector<int> &first = shoot.positions[static_cast<size_t>(one)];
        const std::vector<int> &second = shoot.positions[static_cast<size_t>(other)];
        const size_t levels = plan.usesAllLevels ? std::min(first.size(), second.size()) : 1;
        for (size_t level = 0; level < levels; ++level) {
            insertPair(pairs, first[level], second[level]);
        }
    }
    for (const std::vector<int> &images : shoot.positions) {
        for (const int image : images) {
            if (shoot.viewOfImage[static_cast<size_t>(image)]
                != shoot.viewOfImage[static_cast<size_t>(images.front())]) {
                insertPair(pairs, images.front(), image);
            }
        }
    }
    sortUnique(pairs);
    return pairs;
}

SolveOptions trustOf(const AlignPlan &plan, const AlignOptions &options)
{
    SolveOptions trust;
    trust.freesFocal = options.freesFocal;
    trust.freesA = options.freesA;
    trust.freesB = options.freesB;
    trust.freesC = options.freesC;
    constexpr double kUnknownDegrees = 20.0;
    constexpr double kUnknownRollDegrees = 2.0;
    switch (plan.kind) {
    case RecordKind::Angles:
        break;
    case RecordKind::WholeDegrees:
        trust.cutOff = true;
        [[fallthrough]];
    case RecordKind::NoRoll:
        trust.play.roll = kUnknownRollDegrees;
        break;
    case RecordKind::Grid:
        trust.freesScales = true;
        trust.mountPitchDegrees = kUnknownDegrees;
        break;
    }
    if (!plan.trustsRecord) {
        trust.play = { kUnknownDegrees, kUnknownDegrees, kUnknownDegrees };
        trust.learnsPlay = false;
    }
    return trust;
}

} // namespace PanoHost
