// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/host/testpanoramas.h"

#include <cstring>
#include <random>

using namespace PanoHost;

PhotoInfo TestPanoramas::photoNamed(const QString &name)
{
    PhotoInfo photo;
    photo.path = QStringLiteral("/photos/") + name;
    photo.storedSize = QSize(1200, 800);
    photo.exposureValue = 12.643856189774724;
    return photo;
}

Position TestPanoramas::positionAt(double yaw, double pitch, const QVector<PhotoInfo> &photos)
{
    Position position;
    position.yawDegrees = yaw;
    position.pitchDegrees = pitch;
    position.photos = photos;
    return position;
}

Panorama TestPanoramas::row(int count, int each)
{
    Panorama panorama;
    panorama.focal35mm = 24.0;
    panorama.description.positionsKnown = true;
    int number = 0;
    for (int i = 0; i < count; ++i) {
        QVector<PhotoInfo> photos;
        for (int k = 0; k < each; ++k) {
            photos.append(photoNamed(QStringLiteral("%1.jpg").arg(++number)));
        }
        panorama.positions.append(positionAt(i * 360.0 / count, 0.0, photos));
    }
    return panorama;
}

Panorama TestPanoramas::sample()
{
    Panorama panorama;
    panorama.source = { QStringLiteral("7A21C94E-5B20-2020-2020-483181480AB7"),
                        QStringLiteral("Papywizard import"), kFolder + QStringLiteral("/pano.xml"),
                        QStringLiteral("1.0") };
    panorama.focal35mm = 24.0;
    panorama.lens = LensModel::Standard;
    StructuredPanoramaProperties &d = panorama.description;
    d.positionsKnown = true;
    d.rollKnown = true;
    d.focalLength = 24.0F;
    d.lensModel = LensModel::Standard;
    d.autoDetection = true;
    d.levelLinking = 1;
    d.cleanWrongLinks = true;
    d.yaw = { 0.0F, 0.628318548F };
    d.pitch = { 0.785398185F, -0.785398185F };
    d.roll = { 0.0F, 1.57079637F };
    AuthorizedLink link;
    link.linkType = 2;
    link.indices = { 0, 1 };
    d.authorizedLinks = { link };
    for (int i = 0; i < 2; ++i) {
        Position position;
        position.yawDegrees = 36.0 * i;
        position.pitchDegrees = i == 0 ? 45.0 : -45.0;
        position.rollDegrees = 90.0 * i;
        PhotoInfo photo;
        photo.path = kFolder + QStringLiteral("/img_000%1.jpg").arg(i + 1);
        photo.storedSize = QSize(1200, 800);
        photo.orientation = i == 0 ? 1 : 6;
        if (i == 0) {
            photo.exposureValue = 12.643856189774724;
            photo.timeText = QStringLiteral("2024-05-01T10:00:00");
            photo.timeMs = 1714557600000;
        }
        position.photos = { photo };
        panorama.positions.append(position);
        d.imageGroups.append({ photo.path });
    }
    panorama.project = ProjectReference{ kFolder + QStringLiteral("/pano.pto"), 356.0 };
    panorama.warnings = QStringList(QStringLiteral("a \"warning\"\nof two lines"));
    return panorama;
}

Panorama TestPanoramas::randomPanorama(unsigned seed)
{
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> angle(-1e4, 1e4);
    std::uniform_int_distribution<int> count(0, 5);
    Panorama panorama = sample();
    StructuredPanoramaProperties &d = panorama.description;
    d = StructuredPanoramaProperties();
    panorama.positions.clear();
    const int positions = count(random);
    for (int i = 0; i < positions; ++i) {
        Position position;
        position.yawDegrees = angle(random);
        position.pitchDegrees = angle(random) / 1e7;
        position.rollDegrees = angle(random);
        const int photos = 1 + count(random);
        for (int k = 0; k < photos; ++k) {
            PhotoInfo photo;
            photo.path = kFolder + QString::fromUtf8("/ä\"b\\c %1 $(id)\t.jpg").arg(k);
            photo.storedSize = QSize(count(random), count(random));
            photo.orientation = 1 + count(random);
            if (count(random) > 2) {
                photo.exposureValue = angle(random) / 1000.0;
                photo.timeText = QStringLiteral("2024-03-31T02:30:00.125");
            }
            position.photos.append(photo);
            // any bits that make a 32-bit float, finite or not
            const auto bits = static_cast<quint32>(random());
            float value = 0.0F;
            std::memcpy(&value, &bits, sizeof value);
            d.yaw.append(value);
            d.pitch.append(float(angle(random)));
        }
        panorama.positions.append(position);
    }
    d.gridRows = count(random);
    d.gridMode = count(random);
    d.overlap = angle(random);
    d.renderMode = count(random) - 1;
    d.reservedValues = { { -1, 2147483647, int(-2147483647 - 1) } };
    d.reservedText1 = QString::fromUtf8("全景");
    if (count(random) > 2) {
        panorama.project.reset();
    }
    return panorama;
}
