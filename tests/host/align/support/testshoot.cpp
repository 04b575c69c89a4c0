// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/align/support/testshoot.h"

#include "host/align/geometry.h"
#include "host/demo/exifwriter.h"
#include "host/demo/noise.h"
#include "host/model/photofile.h"
#include "host/model/safefile.h"
#include "importers/gigapan/gigapantospp.h"
#include "importers/headfacts.h"
#include "importers/papywizard/merlintospp.h"
#include "shoot/angles.h"
#include "shoot/linksearch.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <cmath>
#include <random>

using namespace PanoHost;
using TestShoots::Noted;
using TestShoots::TestShoot;

namespace
{

/** Counts up when the same shoot comes to give other photos. */
constexpr int kPhotosVersion = 1;
constexpr int kSamplesPerPhotoPixelSide = 1;
constexpr int kSamplesPerTruthPixelSide = 2;

/** What is drawn by lot for each position. */
enum class Lot { Yaw, Pitch, Roll, Exposure };

/** -1 to 1, evenly spread. */
double lot(const TestShoot &shoot, int position, Lot what)
{
    return 2.0 * cellValue(position, static_cast<int>(what), 1000 + shoot.seed) - 1.0;
}

double turnDegrees(Mounting mounting)
{
    return mounting == Mounting::PortraitTurned ? 90.0 : 0.0;
}

/** Where the head itself points. */
Angles headAngles(const TestShoot &shoot, int position)
{
    const TestShoots::HeadFaults &faults = shoot.faults;
    const Pose &planned = shoot.planned[position];
    Angles angles{ planned.yawDegrees + faults.play * lot(shoot, position, Lot::Yaw),
                   planned.pitchDegrees + faults.play * lot(shoot, position, Lot::Pitch),
                   planned.rollDegrees + faults.rollPlay * lot(shoot, position, Lot::Roll) };
    if (faults.slipsFrom >= 0 && position >= faults.slipsFrom) {
        angles.yaw += faults.slip;
    }
    if (position == faults.bumped) {
        // Three fifths down, four fifths to the side: as seen from the camera.
        angles.pitch -= 0.6 * faults.bump;
        angles.yaw += 0.8 * faults.bump / std::cos(radians(planned.pitchDegrees));
    }
    return angles;
}

Pose poseOf(const Eigen::Matrix3d &rotation)
{
    const Angles angles = anglesOf(rotation);
    return { angles.yaw, angles.pitch, angles.roll };
}

double automaticStops(const TestShoot &shoot, int position)
{
    return shoot.exposures.automatic * lot(shoot, position, Lot::Exposure);
}

/** What the camera writes into its photos. */
ShootPlan noticePlan(const TestShoot &shoot)
{
    ShootPlan plan;
    plan.camera = shoot.camera;
    plan.camera.focal35mm = shoot.statedFocal35mm;
    plan.mounting = shoot.mounting;
    plan.positions = shoot.planned;
    plan.stops = shoot.exposures.bracket;
    return plan;
}

void addNoise(QImage &photo, double levels, std::mt19937 &random)
{
    std::normal_distribution<float> noise(0.0F, static_cast<float>(levels));
    const auto noisy = [&](int level) {
        return std::clamp(static_cast<int>(std::lround(static_cast<float>(level) + noise(random))),
                          0, 255);
    };
    for (int row = 0; row < photo.height(); ++row) {
        auto *const line = reinterpret_cast<QRgb *>(photo.scanLine(row));
        for (int column = 0; column < photo.width(); ++column) {
            const QRgb pixel = line[column];
            line[column] = qRgb(noisy(qRed(pixel)), noisy(qGreen(pixel)), noisy(qBlue(pixel)));
        }
    }
}

/** Changes with everything that the photos depend on. */
QByteArray fingerprint(const TestShoot &shoot)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    const Camera &camera = shoot.camera;
    const LensErrors &e = camera.errors;
    out << kPhotosVersion << static_cast<int>(shoot.scene) << camera.size << camera.focal35mm
        << static_cast<int>(camera.projection) << e.a << e.b << e.c << e.vignettingB
        << e.vignettingC << e.vignettingD << static_cast<int>(shoot.mounting)
        << shoot.statedFocal35mm << shoot.exposures.bracket << shoot.exposures.automatic
        << shoot.exposures.isTold << shoot.noiseLevels << shoot.nodalOffsetMetres << shoot.seed;
    for (const Eigen::Matrix3d &rotation : TestShoots::trueRotations(shoot)) {
        const Angles angles = anglesOf(rotation);
        out << angles.yaw << angles.pitch << angles.roll;
    }
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

Result<QString> takePhotos(const TestShoot &shoot, const QVector<PlannedShot> &shots,
                           const QString &folder)
{
    const ShootPlan plan = noticePlan(shoot);
    std::mt19937 random(shoot.seed);
    LightField light;
    for (PlannedShot shot : shots) {
        if (shot.level == 0) {
            light = TestShoots::lightAt(shoot, shot.position);
        }
        const double automatic = automaticStops(shoot, shot.position);
        QImage photo = developed(light, shot.stops + automatic);
        if (shoot.noiseLevels > 0.0) {
            addNoise(photo, shoot.noiseLevels, random);
        }
        shot.stops += shoot.exposures.isTold ? automatic : 0.0;
        const Result<QString> written
            = writePhoto(QDir(folder).absoluteFilePath(shot.fileName), photo, shot, plan);
        if (!written) {
            return written;
        }
    }
    return folder;
}

QVector<ShootData> recordedShots(const TestShoot &shoot)
{
    QVector<ShootData> shots;
    const QVector<Pose> recorded = TestShoots::recordedAngles(shoot);
    for (const Pose &pose : recorded) {
        for (int level = 0; level < shoot.exposures.bracket.size(); ++level) {
            ShootData shot;
            shot.yaw = static_cast<float>(pose.yawDegrees);
            shot.pitch = static_cast<float>(pose.pitchDegrees);
            shot.bracket = level;
            shots.append(shot);
        }
    }
    return shots;
}

/** What the importers' generators make of the record; the pages' own choices as they stand. */
StructuredPanoramaProperties described(const TestShoot &shoot, const QStringList &paths)
{
    const int bracket = shoot.exposures.bracket.size();
    if (shoot.noted == Noted::Grid) {
        const int columns = shoot.planned.size() / shoot.grid.rows;
        GigapanToSPP generator(shoot.grid.rows, columns, shoot.grid.order, bracket, 0);
        generator.generateSPP(paths, shoot.grid.wraps);
        generator.overlap = shoot.grid.overlapPercent;
        return generator;
    }
    const QVector<ShootData> shots = recordedShots(shoot);
    if (shoot.noted == Noted::Clauss) {
        StructuredPanoramaProperties description;
        description.positionsKnown = true;
        description.autoDetection = true;
        QVector<PanoHead::PhotoDirection> directions;
        for (int i = 0; i < shots.size(); ++i) {
            description.imageGroups.append({ paths[i] });
            directions.append(
                { shots[i].yaw, shots[i].pitch, static_cast<float>(shoot.statedFocal35mm) });
        }
        PanoHead::appendAngles(description, shots, PanoHead::RollAngles::LeaveEmpty);
        PanoHead::appendCloseLinks(description.authorizedLinks, directions);
        return description;
    }
    MerlinToSPP generator;
    generator.autoDetection = true;
    generator.shots = shots;
    generator.nbPicts = bracket;
    generator.generateSPP(paths, shoot.statedFocal35mm,
                          shoot.camera.projection == Projection::EquidistantFisheye
                              ? LensModel::Fisheye
                              : LensModel::Standard);
    return generator;
}

SourceInfo sourceOf(const TestShoot &shoot)
{
    const auto name = [&] {
        switch (shoot.noted) {
        case Noted::Clauss:
            return QStringLiteral("clauss");
        case Noted::Grid:
            return QStringLiteral("gigapan");
        case Noted::Papywizard:
            break;
        }
        return QStringLiteral("papywizard");
    };
    const PanoHead::About &about = *PanoHead::headFactsOf(name())->about;
    return { about.uidText(), about.nameText(), {}, PanoHead::About::versionText() };
}

} // namespace

void TestShoots::setRows(TestShoot &shoot, const QVector<ShootRow> &rows)
{
    shoot.planned = positionsOf(rows);
    shoot.groups.clear();
    int next = 0;
    for (const ShootRow &row : rows) {
        Chosen group;
        for (int i = 0; i < row.count; ++i) {
            group.push_back(next++);
        }
        shoot.groups.push_back(group);
    }
}

void TestShoots::setGrid(TestShoot &shoot, int rows, int columns, double overlapPercent,
                         double centrePitchDegrees)
{
    shoot.noted = Noted::Grid;
    shoot.grid.rows = rows;
    const double focal = shoot.camera.focalPixels();
    const auto step = [&](int pixels) {
        return (1.0 - overlapPercent / 100.0) * degrees(2.0 * std::atan(pixels / (2.0 * focal)));
    };
    const double yawStep = shoot.grid.wraps ? 360.0 / columns : step(shoot.camera.size.width());
    const double pitchStep = step(shoot.camera.size.height());
    shoot.planned.clear();
    for (int column = 0; column < columns; ++column) {
        for (int row = 0; row < rows; ++row) {
            shoot.planned.append({ (column - (columns - 1) / 2.0) * yawStep,
                                   centrePitchDegrees + ((rows - 1) / 2.0 - row) * pitchStep,
                                   0.0 });
        }
    }
    shoot.groups = { allOf(shoot.planned.size()) };
}

QVector<Pose> TestShoots::recordedAngles(const TestShoot &shoot)
{
    QVector<Pose> recorded;
    for (const Pose &planned : shoot.planned) {
        if (shoot.noted == Noted::Clauss) {
            recorded.append({ std::trunc(planned.yawDegrees), std::trunc(planned.pitchDegrees) });
        } else {
            recorded.append({ std::round(10.0 * planned.yawDegrees) / 10.0,
                              std::round(10.0 * planned.pitchDegrees) / 10.0 });
        }
    }
    return recorded;
}

TestShoots::Rotations TestShoots::trueRotations(const TestShoot &shoot)
{
    const Eigen::Matrix3d mount
        = rotationOf({ 0.0, shoot.faults.mountPitch, shoot.faults.mountRoll });
    const Eigen::Matrix3d turn = rotationOf({ 0.0, 0.0, turnDegrees(shoot.mounting) });
    Rotations rotations;
    for (int i = 0; i < shoot.planned.size(); ++i) {
        rotations.push_back(rotationOf(headAngles(shoot, i)) * mount * turn);
    }
    return rotations;
}

TestShoots::Rotations TestShoots::rotationsOf(const Panorama &panorama)
{
    Rotations rotations;
    for (const Position &position : panorama.positions) {
        rotations.push_back(rotationOf(
            { position.yawDegrees, position.pitchDegrees,
              position.rollDegrees + clockwiseDegrees(position.photos.first().orientation) }));
    }
    return rotations;
}

LightField TestShoots::lightAt(const TestShoot &shoot, int position)
{
    const Pose pose = poseOf(trueRotations(shoot)[static_cast<size_t>(position)]);
    const Vec3 eye = shoot.nodalOffsetMetres * directionTo(pose.yawDegrees, pose.pitchDegrees);
    return exposePhoto(lightOf(shoot.scene, eye), shoot.camera, pose, kSamplesPerPhotoPixelSide);
}

Result<Panorama> TestShoots::photographed(const TestShoot &shoot, const QString &folder)
{
    QDir().mkpath(folder);
    const QVector<PlannedShot> shots = shotsOf(noticePlan(shoot));
    const QByteArray id = fingerprint(shoot);
    QFile note(QDir(folder).filePath(QStringLiteral("shoot.id")));
    if (!note.open(QIODevice::ReadOnly) || note.readAll() != id) {
        const Result<QString> taken = takePhotos(shoot, shots, folder);
        const Result<QString> noted = taken ? writeFileAtomically(note.fileName(), id) : taken;
        if (!noted) {
            return noted.error();
        }
    }
    QStringList paths;
    for (const PlannedShot &shot : shots) {
        paths.append(QDir(folder).absoluteFilePath(shot.fileName));
    }
    return joinPanorama(described(shoot, paths), sourceOf(shoot),
                        [](const QString &path) { return readPhotoInfo(path); });
}

LightField TestShoots::truthOf(const TestShoot &shoot, const SpherePart &part,
                               const Eigen::Matrix3d &turned)
{
    return exposePart(turnedBy(turned, lightOf(shoot.scene)), part, kSamplesPerTruthPixelSide);
}

double TestShoots::degreesBetweenGroups(const Rotations &truth, const Rotations &found,
                                        const Chosen &one, const Chosen &other)
{
    return degreesBetween(commonRotation(truth, found, one), commonRotation(truth, found, other));
}

TestShoots::Verdict TestShoots::judged(const TestShoot &shoot, const Rotations &found)
{
    const Rotations truth = trueRotations(shoot);
    if (shoot.scene == TestScene::PlainBelt) {
        Rotations inOwnFrames = found;
        for (const Chosen &island : shoot.groups) {
            const Eigen::Matrix3d own = commonRotation(truth, found, island);
            for (const int i : island) {
                inOwnFrames[static_cast<size_t>(i)] = own * found.at(i);
            }
        }
        const Chosen all = allOf(static_cast<int>(found.size()));
        return { attitudeErrors(truth, inOwnFrames, Eigen::Matrix3d::Identity(), all),
                 degreesBetweenGroups(truth, found, shoot.groups.at(0), shoot.groups.at(1)),
                 commonRotation(truth, found, all) };
    }
    Chosen tied;
    Chosen sky;
    for (const Chosen &group : shoot.groups) {
        const bool isSky = shoot.scene == TestScene::OpenSky
            && shoot.planned[group.front()].pitchDegrees > kOpenSkyPitchDegrees;
        Chosen &kind = isSky ? sky : tied;
        kind.insert(kind.end(), group.begin(), group.end());
    }
    const Eigen::Matrix3d common = commonRotation(truth, found, tied);
    return { attitudeErrors(truth, found, common, tied),
             attitudeErrors(truth, found, common, sky).rms, common };
}
