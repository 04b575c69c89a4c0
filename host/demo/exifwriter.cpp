// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/exifwriter.h"

#include "host/demo/finejpeg.h"
#include "host/model/safefile.h"

#include <QBuffer>

#include <exiv2/exiv2.hpp>

#include <cmath>

namespace PanoHost
{
namespace
{

constexpr int kPhotoQuality = 98;
constexpr int kPanoramaQuality = 98;
constexpr double kShutterPerSecond = 250.0; // at the reference exposure
constexpr double kSensorCoefficient = 1.5;

constexpr const char *kGPanoNamespace = "http://ns.google.com/photos/1.0/panorama/";

Failure cannotWrite(const QString &path, const QString &why)
{
    return { ExitCode::ToolFailed, path, QStringLiteral("cannot be written (%1)").arg(why),
             QStringLiteral("is the machine short of memory? close other programs") };
}

Exiv2::Rational rational(double value, int denominator)
{
    return { static_cast<int>(std::lround(value * denominator)), denominator };
}

/** 1/1000 s as a photographer writes it; long times in thousandths. */
Exiv2::Rational shutter(double seconds)
{
    return seconds < 0.5 ? Exiv2::Rational{ 1, static_cast<int>(std::lround(1.0 / seconds)) }
                         : rational(seconds, 1000);
}

Exiv2::ExifData exifOf(const PlannedShot &shot, const ShootPlan &plan)
{
    Exiv2::ExifData exif;
    const std::string time
        = shot.time.toString(QStringLiteral("yyyy:MM:dd HH:mm:ss")).toStdString();
    exif["Exif.Image.Make"] = "Imaginary Optics";
    exif["Exif.Image.Model"] = "Pinhole One";
    exif["Exif.Image.Software"] = "panohost demo";
    exif["Exif.Image.DateTime"] = time;
    exif["Exif.Image.Orientation"]
        = static_cast<uint16_t>(plan.mounting == Mounting::PortraitTurned ? 6 : 1);
    exif["Exif.Photo.DateTimeOriginal"] = time;
    exif["Exif.Photo.DateTimeDigitized"] = time;
    exif["Exif.Photo.SubSecTimeOriginal"] = shot.time.toString(QStringLiteral("zzz")).toStdString();
    exif["Exif.Photo.ExposureTime"] = shutter(std::exp2(shot.stops) / kShutterPerSecond);
    exif["Exif.Photo.FNumber"] = Exiv2::Rational{ 8, 1 };
    exif["Exif.Photo.ISOSpeedRatings"] = static_cast<uint16_t>(100);
    exif["Exif.Photo.FocalLength"] = rational(plan.camera.focal35mm / kSensorCoefficient, 100);
    exif["Exif.Photo.FocalLengthIn35mmFilm"]
        = static_cast<uint16_t>(std::lround(plan.camera.focal35mm));
    exif["Exif.Photo.PixelXDimension"] = static_cast<uint32_t>(plan.camera.size.width());
    exif["Exif.Photo.PixelYDimension"] = static_cast<uint32_t>(plan.camera.size.height());
    return exif;
}

Exiv2::XmpData gpanoOf(const QSize &sphereSize, const QRect &covered)
{
    static const bool registered = [] {
        Exiv2::XmpProperties::registerNs(kGPanoNamespace, "GPano");
        return true;
    }();
    Q_UNUSED(registered)
    Exiv2::XmpData xmp;
    xmp["Xmp.GPano.ProjectionType"] = "equirectangular";
    xmp["Xmp.GPano.UsePanoramaViewer"] = "True";
    xmp["Xmp.GPano.FullPanoWidthPixels"] = sphereSize.width();
    xmp["Xmp.GPano.FullPanoHeightPixels"] = sphereSize.height();
    xmp["Xmp.GPano.CroppedAreaLeftPixels"] = covered.left();
    xmp["Xmp.GPano.CroppedAreaTopPixels"] = covered.top();
    xmp["Xmp.GPano.CroppedAreaImageWidthPixels"] = covered.width();
    xmp["Xmp.GPano.CroppedAreaImageHeightPixels"] = covered.height();
    return xmp;
}

/** As cameras do it; empty when that failed. */
QByteArray photoJpeg(const QImage &photo)
{
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    buffer.open(QIODevice::WriteOnly);
    return photo.save(&buffer, "JPG", kPhotoQuality) ? jpeg : QByteArray();
}

/** The JPEG file \p plain with the data that \p describe sets; empty when that failed. */
template <typename Describe> QByteArray described(const QByteArray &plain, const Describe &describe)
{
    if (plain.isEmpty()) {
        return {};
    }
    const auto file = Exiv2::ImageFactory::open(
        reinterpret_cast<const Exiv2::byte *>(plain.constData()), plain.size());
    file->readMetadata();
    describe(*file);
    file->writeMetadata();
    Exiv2::BasicIo &io = file->io();
    if (io.open() != 0) {
        return {};
    }
    QByteArray bytes(static_cast<int>(io.size()), Qt::Uninitialized);
    const auto read = io.read(reinterpret_cast<Exiv2::byte *>(bytes.data()), bytes.size());
    return read == bytes.size() ? bytes : QByteArray();
}

/** Writes what \p encode makes with the data that \p describe sets, all or nothing. */
template <typename Encode, typename Describe>
Result<QString> saveJpeg(const QString &path, const Encode &encode, const Describe &describe)
{
    QByteArray jpeg;
    try {
        jpeg = described(encode(), describe);
    } catch (const std::exception &problem) {
        return cannotWrite(path, QString::fromLocal8Bit(problem.what()));
    }
    if (jpeg.isEmpty()) {
        return cannotWrite(path, QStringLiteral("making the JPEG file failed"));
    }
    return writeFileAtomically(path, jpeg);
}

} // namespace

Result<QString> writePhoto(const QString &path, const QImage &photo, const PlannedShot &shot,
                           const ShootPlan &plan)
{
    return saveJpeg(
        path, [&] { return photoJpeg(photo); },
        [&](Exiv2::Image &file) { file.setExifData(exifOf(shot, plan)); });
}

Result<QString> writePanorama(const QString &path, const QImage &panorama, const QSize &sphereSize,
                              const QRect &covered)
{
    return saveJpeg(
        path, [&] { return fineJpeg(panorama, kPanoramaQuality); },
        [&](Exiv2::Image &file) { file.setXmpData(gpanoOf(sphereSize, covered)); });
}

} // namespace PanoHost
