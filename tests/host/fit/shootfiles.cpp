// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/fit/shootfiles.h"

#include "host/align/geometry.h"
#include "host/demo/finejpeg.h"
#include "tests/host/align/support/testscenes.h"
#include "tests/host/testphotos.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QtTest>

#include <algorithm>
#include <cmath>

using namespace PanoHost;

namespace
{

constexpr double kFocal35mm = 24.0;
constexpr double kReferenceExposure = 12.0;
constexpr int kPixelsPerPixel = 10; ///< photos are smaller than they say in a made-up shoot

TestPhotos::Exif exifOf(const PhotoInfo &photo)
{
    TestPhotos::Exif exif{ { "Exif.Photo.FocalLengthIn35mmFilm",
                             QByteArray::number(qRound(kFocal35mm)) },
                           { "Exif.Photo.FNumber", "8/1" },
                           { "Exif.Photo.ISOSpeedRatings", "100" } };
    if (photo.exposureValue) {
        const double seconds = 64.0 / std::exp2(*photo.exposureValue); // f/8
        exif["Exif.Photo.ExposureTime"] = QByteArray::number(qRound(seconds * 1e6)) + "/1000000";
    }
    if (photo.timeMs != 0) {
        const QDateTime time = QDateTime::fromMSecsSinceEpoch(photo.timeMs, Qt::UTC);
        exif["Exif.Photo.DateTimeOriginal"]
            = time.toString(QStringLiteral("yyyy:MM:dd HH:mm:ss")).toLatin1();
        if (photo.timeMs % 1000 != 0) {
            exif["Exif.Photo.SubSecTimeOriginal"] = time.toString(QStringLiteral("zzz")).toLatin1();
        }
    }
    return exif;
}

template <typename PictureOf>
ShootFiles written(const MadeShoot &shoot, const HeadFacts &head, const QString &folder,
                   const PictureOf &pictureOf)
{
    QDir().mkpath(folder);
    ShootFiles files;
    PanoHead::NotedShoot noted;
    noted.shots = shoot.shots;
    noted.bracketCount = shoot.bracketCount;
    noted.focal35mm = kFocal35mm;
    files.record = TestPhotos::writeFile(folder + QLatin1Char('/') + QLatin1String(head.record),
                                         head.write(noted));
    for (int i = 0; i < shoot.photos.size(); ++i) {
        const PhotoInfo &photo = shoot.photos.at(i);
        const QString path = folder + photo.path;
        QDir().mkpath(QFileInfo(path).path());
        TestPhotos::writeFile(path, pictureOf(i));
        TestPhotos::addExif(path, exifOf(photo));
        files.photos += path;
        files.truth.insert(path, shoot.truth.at(i));
        files.rotations.insert(path, shoot.rotations.at(i));
    }
    std::sort(files.photos.begin(), files.photos.end());
    return files;
}

} // namespace

QByteArray ShootPhotographer::picture(const Eigen::Matrix3d &rotation, const QSize &size,
                                      double exposure)
{
    const Angles angles = anglesOf(rotation);
    const double stops = std::round(kReferenceExposure - exposure);
    QByteArray key;
    for (const double number :
         { angles.yaw, angles.pitch, angles.roll, double(size.width()), stops }) {
        key += QByteArray::number(number) + ' ';
    }
    QByteArray &bytes = m_seen[key];
    if (bytes.isEmpty()) {
        const Camera camera{ size / kPixelsPerPixel, kFocal35mm };
        const LightField light = exposePhoto(TestShoots::lightOf(TestShoots::TestScene::Terrace),
                                             camera, { angles.yaw, angles.pitch, angles.roll }, 1);
        constexpr int kQuality = 95;
        bytes = fineJpeg(developed(light, stops), kQuality);
    }
    return bytes;
}

ShootFiles ShootPhotographer::photographed(const MadeShoot &shoot, const HeadFacts &head,
                                           const QString &folder)
{
    return written(shoot, head, folder, [&](int i) {
        const PhotoInfo &photo = shoot.photos.at(i);
        return picture(shoot.rotations.at(i), photo.storedSize,
                       photo.exposureValue.value_or(kReferenceExposure));
    });
}

ShootFiles ShootPhotographer::withoutPictures(const MadeShoot &shoot, const HeadFacts &head,
                                              const QString &folder)
{
    return written(shoot, head, folder, [&](int i) {
        QImage picture(shoot.photos.at(i).storedSize / 100, QImage::Format_RGB32);
        picture.fill(Qt::gray);
        return TestPhotos::jpegBytes(picture);
    });
}

ImportRequest requestFor(const HeadFacts &head, const ShootFiles &files)
{
    ImportRequest request;
    request.head = &head;
    request.record = files.record;
    request.photos = files.photos;
    request.matchesPhotos = true;
    request.pluginPath = QStringLiteral(PANOHOST_TEST_LIBRARY);
    return request;
}

QString misreadIn(const Panorama &panorama, const MadeShoot &shoot, const ShootFiles &files)
{
    QStringList wrong;
    QSet<int> used;
    for (const Position &position : panorama.positions) {
        for (const PhotoInfo &photo : position.photos) {
            const int shot = files.truth.value(photo.path, -1);
            const PanoHead::NotedShot noted = shoot.shots.value(shot);
            constexpr double kRounded = 0.06; // a record's last digit
            if (shot < 0 || std::abs(noted.yawDegrees - position.yawDegrees) > kRounded
                || std::abs(noted.pitchDegrees - position.pitchDegrees) > kRounded) {
                wrong += QStringLiteral("%1, of shot %2, looks to %3, %4")
                             .arg(QFileInfo(photo.path).fileName())
                             .arg(shot + 1)
                             .arg(position.yawDegrees)
                             .arg(position.pitchDegrees);
            }
            if (used.contains(shot)) {
                wrong += QStringLiteral("shot %1 has two photos").arg(shot + 1);
            }
            used += shot;
        }
    }
    for (const int shot : files.truth) {
        if (shot >= 0 && !used.contains(shot)) {
            wrong += QStringLiteral("shot %1 has none").arg(shot + 1);
            used += shot;
        }
    }
    return wrong.join(QStringLiteral("; "));
}

AttitudeErrors errorsOf(const PtoFile &aligned, const Panorama &panorama, const ShootFiles &files)
{
    QStringList paths;
    for (const Position &position : panorama.positions) {
        for (const PhotoInfo &photo : position.photos) {
            paths += photo.path;
        }
    }
    Rotations truth;
    Rotations found;
    for (int i = 0; i < static_cast<int>(aligned.images().size()); ++i) {
        const PtoImage &image = aligned.images().at(i);
        if (image.stackMaster < 0) {
            truth.push_back(files.rotations.value(paths.at(i)));
            found.push_back(rotationOf(image.angles));
        }
    }
    return attitudeErrors(truth, found);
}
