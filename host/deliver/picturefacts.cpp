// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/picturefacts.h"

#include "host/model/photoexif.h"

#include <exiv2/exiv2.hpp>

#include <cmath>

namespace PanoHost
{
namespace
{

constexpr const char *kGPanoNamespace = "http://ns.google.com/photos/1.0/panorama/";

Exiv2::URational rational(double value, uint32_t denominator)
{
    return { static_cast<uint32_t>(std::lround(value * denominator)), denominator };
}

std::string number(double value, int decimals)
{
    return QString::number(value, 'f', decimals).toStdString();
}

/** "35,41.366700N" */
std::string xmpAngle(double degrees, char positive, char negative)
{
    constexpr double kParts = 60.0 * 1e6;
    // Rounded once, so that no 60 minutes come about.
    const qint64 parts = std::llround(std::abs(degrees) * kParts);
    const auto whole = parts / static_cast<qint64>(kParts);
    const double minutes = static_cast<double>(parts % static_cast<qint64>(kParts)) / 1e6;
    return std::to_string(whole) + ',' + number(minutes, 6) + (degrees < 0.0 ? negative : positive);
}

/** Degrees, minutes and ten thousandths of a second: some millimetres. */
std::string exifAngle(double degrees)
{
    constexpr qint64 kPartsPerSecond = 10000;
    const qint64 parts = std::llround(std::abs(degrees) * 3600.0 * kPartsPerSecond);
    const qint64 minutes = parts / (60 * kPartsPerSecond);
    return std::to_string(minutes / 60) + "/1 " + std::to_string(minutes % 60) + "/1 "
        + std::to_string(parts % (60 * kPartsPerSecond)) + '/' + std::to_string(kPartsPerSecond);
}

/** "+02:00"; empty: not known. */
QString zoneOf(const QDateTime &time)
{
    return time.timeSpec() == Qt::OffsetFromUTC ? time.toString(Qt::ISODate).right(6) : QString();
}

std::string isoTime(const QDateTime &time)
{
    return (time.toString(QStringLiteral("yyyy-MM-dd'T'HH:mm:ss")) + zoneOf(time)).toStdString();
}

/** To two decimals, as the compass direction that it is. */
std::string headingText(double degrees)
{
    const double rounded = std::round(degrees * 100.0) / 100.0;
    return number(rounded - 360.0 * std::floor(rounded / 360.0), 2);
}

void addSphere(Exiv2::XmpData &xmp, const StitchedPicture &panorama, const PictureOrigin &origin)
{
    xmp["Xmp.GPano.ProjectionType"] = "equirectangular";
    xmp["Xmp.GPano.UsePanoramaViewer"] = "True";
    xmp["Xmp.GPano.StitchingSoftware"] = kOwnSoftware;
    xmp["Xmp.GPano.FullPanoWidthPixels"] = panorama.sphere.width();
    xmp["Xmp.GPano.FullPanoHeightPixels"] = panorama.sphere.height();
    xmp["Xmp.GPano.CroppedAreaLeftPixels"] = panorama.onSphere.x();
    xmp["Xmp.GPano.CroppedAreaTopPixels"] = panorama.onSphere.y();
    xmp["Xmp.GPano.CroppedAreaImageWidthPixels"] = panorama.size.width();
    xmp["Xmp.GPano.CroppedAreaImageHeightPixels"] = panorama.size.height();
    if (origin.headingDegrees) {
        xmp["Xmp.GPano.PoseHeadingDegrees"] = headingText(*origin.headingDegrees);
    }
}

Exiv2::XmpData xmpOf(const PictureOrigin &origin, const StitchedPicture *panorama)
{
    static const bool registered = [] {
        Exiv2::XmpProperties::registerNs(kGPanoNamespace, "GPano");
        return true;
    }();
    Q_UNUSED(registered)
    Exiv2::XmpData xmp;
    const auto setText = [&xmp](const char *key, const QString &text) {
        if (!text.isEmpty()) {
            xmp[key] = text.toStdString();
        }
    };
    xmp["Xmp.xmp.CreatorTool"] = kOwnSoftware;
    if (origin.taken.isValid()) {
        xmp["Xmp.xmp.CreateDate"] = isoTime(origin.taken);
        xmp["Xmp.exif.DateTimeOriginal"] = isoTime(origin.taken);
    }
    setText("Xmp.dc.creator", origin.author);
    setText("Xmp.dc.rights", origin.copyright);
    setText("Xmp.tiff.Model", origin.camera);
    setText("Xmp.aux.Lens", origin.lens);
    if (origin.place) {
        xmp["Xmp.exif.GPSVersionID"] = "2.3.0.0";
        xmp["Xmp.exif.GPSLatitude"] = xmpAngle(origin.place->latitudeDegrees, 'N', 'S');
        xmp["Xmp.exif.GPSLongitude"] = xmpAngle(origin.place->longitudeDegrees, 'E', 'W');
        if (const auto altitude = origin.place->altitudeMetres) {
            xmp["Xmp.exif.GPSAltitudeRef"] = *altitude < 0.0 ? 1 : 0;
            xmp["Xmp.exif.GPSAltitude"]
                = number(std::round(std::abs(*altitude) * 100.0), 0) + "/100";
        }
    }
    if (panorama != nullptr) {
        addSphere(xmp, *panorama, origin);
    }
    return xmp;
}

void addPlace(Exiv2::ExifData &exif, const Place &place)
{
    exif["Exif.GPSInfo.GPSVersionID"] = "2 3 0 0";
    exif["Exif.GPSInfo.GPSLatitudeRef"] = place.latitudeDegrees < 0.0 ? "S" : "N";
    exif["Exif.GPSInfo.GPSLatitude"] = exifAngle(place.latitudeDegrees);
    exif["Exif.GPSInfo.GPSLongitudeRef"] = place.longitudeDegrees < 0.0 ? "W" : "E";
    exif["Exif.GPSInfo.GPSLongitude"] = exifAngle(place.longitudeDegrees);
    if (place.altitudeMetres) {
        exif["Exif.GPSInfo.GPSAltitudeRef"] = *place.altitudeMetres < 0.0 ? "1" : "0";
        exif["Exif.GPSInfo.GPSAltitude"] = rational(std::abs(*place.altitudeMetres), 100);
    }
}

Exiv2::ExifData exifOf(const PictureOrigin &origin, const QSize &size, bool hasProfile)
{
    constexpr uint16_t kUncalibrated = 65535;
    Exiv2::ExifData exif;
    const auto setText = [&exif](const char *key, const QString &text) {
        if (!text.isEmpty()) {
            exif[key] = text.toStdString();
        }
    };
    exif["Exif.Image.Software"] = kOwnSoftware;
    setText("Exif.Image.Model", origin.camera);
    setText("Exif.Image.Artist", origin.author);
    setText("Exif.Image.Copyright", origin.copyright);
    setText("Exif.Photo.LensModel", origin.lens);
    exif["Exif.Photo.ExifVersion"] = "48 50 51 49"; // 0231, the first with zones
    exif["Exif.Photo.PixelXDimension"] = static_cast<uint32_t>(size.width());
    exif["Exif.Photo.PixelYDimension"] = static_cast<uint32_t>(size.height());
    if (hasProfile) {
        exif["Exif.Photo.ColorSpace"] = kUncalibrated;
    }
    if (origin.taken.isValid()) {
        exif["Exif.Photo.DateTimeOriginal"]
            = origin.taken.toString(QStringLiteral("yyyy:MM:dd HH:mm:ss")).toStdString();
        setText("Exif.Photo.OffsetTimeOriginal", zoneOf(origin.taken));
    }
    if (origin.place) {
        addPlace(exif, *origin.place);
    }
    return exif;
}

} // namespace

PictureFacts factsOf(const PictureOrigin &origin, const QSize &size,
                     const StitchedPicture *panorama)
{
    PictureFacts facts;
    facts.iccProfile = origin.iccProfile;
    try {
        std::string packet;
        Exiv2::XmpParser::encode(packet, xmpOf(origin, panorama),
                                 Exiv2::XmpParser::useCompactFormat);
        facts.xmp = QByteArray::fromStdString(packet);
        Exiv2::Blob blob;
        Exiv2::ExifParser::encode(blob, Exiv2::littleEndian,
                                  exifOf(origin, size, !origin.iccProfile.isEmpty()));
        facts.exif = QByteArray(reinterpret_cast<const char *>(blob.data()),
                                static_cast<int>(blob.size()));
    } catch (const std::exception &) {
        // Without them the picture is the same.
    }
    return facts;
}

} // namespace PanoHost
