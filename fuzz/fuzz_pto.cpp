// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "fuzz/bytesource.h"
#include "fuzz/check.h"
#include "host/model/panorama.h"
#include "host/model/ptoproject.h"

using namespace PanoHost;

namespace
{

PhotoInfo takePhoto(ByteSource &bytes, const QString &path)
{
    PhotoInfo photo;
    photo.path = path + QChar(bytes.between(0, 255));
    photo.storedSize = QSize(bytes.between(-1, 65'000), bytes.between(-1, 65'000));
    photo.orientation = bytes.between(1, 8);
    photo.focal35mm = bytes.take<float>();
    photo.lens = static_cast<LensModel>(bytes.between(-1, 1));
    if (bytes.between(0, 1) == 1) {
        photo.exposureValue = bytes.take<double>();
    }
    return photo;
}

/** A delivered description with angles for some of its photos, links left out. */
StructuredPanoramaProperties takeDescription(ByteSource &bytes)
{
    StructuredPanoramaProperties description;
    const int positions = bytes.count(16);
    const int bracket = bytes.between(1, 3);
    for (int i = 0; i < positions; ++i) {
        QStringList group;
        for (int k = 0; k < bracket; ++k) {
            group.append(QStringLiteral("/p/%1-%2").arg(i).arg(k));
        }
        description.imageGroups.append(group);
    }
    const int angles = bytes.count(32);
    for (int i = 0; i < angles; ++i) {
        description.yaw.append(bytes.angle());
        description.pitch.append(bytes.angle());
        description.roll.append(bytes.angle());
    }
    description.positionsKnown = bytes.between(0, 1) == 1;
    description.rollKnown = bytes.between(0, 1) == 1;
    description.focalLength = bytes.take<float>();
    description.lensModel = static_cast<LensModel>(bytes.between(-1, 2));
    description.gridMode = bytes.between(-1, 5);
    description.gridRows = bytes.take<qint32>();
    description.gridWrap360 = bytes.between(0, 1) == 1;
    description.overlap = bytes.take<double>();
    description.stackLinking = bytes.between(0, 1);
    description.renderMode = bytes.between(-1, 4);
    return description;
}

} // namespace

/** Any description with any photos: refused with a reason, or a project with every photo in it,
 * which is read again unless its angles are beyond all turns. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    ByteSource bytes(data, size);
    const StructuredPanoramaProperties description = takeDescription(bytes);
    const auto panorama = joinPanorama(description, {}, [&bytes](const QString &path) {
        return Result<PhotoInfo>(takePhoto(bytes, path));
    });
    if (!panorama) {
        FUZZ_CHECK(!panorama.error().why.isEmpty());
        return 0;
    }
    PtoOptions options;
    options.extraRollDegrees = bytes.angle();
    options.width = bytes.take<qint32>();
    const auto project = makePtoProject(panorama.value(), options);
    if (project) {
        const PtoProject &made = project.value();
        FUZZ_CHECK(made.text.count("\ni ") == photoCount(panorama.value()));
        FUZZ_CHECK(!made.text.contains("nan") && !made.text.contains("inf"));
        FUZZ_CHECK(made.canvas.width() > 0 && made.canvas.height() > 0);
        FUZZ_CHECK(made.crop.isNull() || QRect(QPoint(), made.canvas).contains(made.crop));
        const auto file = PtoFile::parse(made.text, {});
        FUZZ_CHECK(file.ok() || file.error().why.endsWith(QLatin1Char('\'')));
        if (file) {
            FUZZ_CHECK(file.value().images().size() == photoCount(panorama.value()));
            FUZZ_CHECK(file.value().text({}).value() == made.text);
        }
    }
    return 0;
}
