// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/pictureorigin.h"

#include "host/model/exivimage.h"
#include "host/model/lostpageguard.h"
#include "host/model/messages.h"
#include "host/model/photodevice.h"
#include "host/model/photoexif.h"
#include "host/model/safefile.h"

#include <QtMath>

#include <exiv2/exiv2.hpp>

#include <algorithm>
#include <cmath>

namespace PanoHost
{
namespace
{

/** Photos whose headers are read, at most. */
constexpr int kLookedAt = 5;
/** A compass says nothing of photos that look up or down more steeply. */
constexpr double kSteepestDegrees = 60.0;
constexpr int kLongestText = 500;
constexpr long kLargestProfileBytes = 8 << 20;

/** What one photo says. */
struct PhotoOrigin {
    PictureOrigin said; ///< its heading: where this photo looks
    bool isRead = false;
};

/** \p text as others can show it. */
QString cleaned(const QString &text)
{
    return onOneLine(text).simplified().left(kLongestText);
}

QString cleaned(const std::string &bytes)
{
    const QByteArray text = QByteArray::fromStdString(bytes).replace('\0', ' ');
    const QString utf8 = QString::fromUtf8(text);
    // Older programs write what their language's code page has.
    const bool isUtf8 = !utf8.contains(QChar(QChar::ReplacementCharacter));
    return cleaned(isUtf8 ? utf8 : QString::fromLatin1(text));
}

QString text(const Exiv2::ExifData &exif, const char *key)
{
    const auto entry = exif.findKey(Exiv2::ExifKey(key));
    return entry == exif.end() ? QString() : cleaned(entry->toString());
}

QString text(const Exiv2::XmpData &xmp, const char *key)
{
    const auto entry = xmp.findKey(Exiv2::XmpKey(key));
    return entry == xmp.end() || entry->count() < 1 ? QString() : cleaned(entry->toString(0));
}

/** XMP's text in the default language, without the language's name. */
QString defaultText(const Exiv2::XmpData &xmp, const char *key)
{
    const QString value = text(xmp, key);
    return value.startsWith(QLatin1String("lang=")) ? value.section(QLatin1Char(' '), 1) : value;
}

/** Component \p at of an entry of rational numbers. */
std::optional<double> number(const Exiv2::ExifData &exif, const char *key, int at = 0)
{
    const auto entry = exif.findKey(Exiv2::ExifKey(key));
    if (entry == exif.end() || at >= entry->count()) {
        return {};
    }
    const Exiv2::Rational rational = entry->toRational(at);
    // Taken apart here: the library's own conversion may stop at a denominator of 0. Its numbers
    // are signed, those of EXIF are not.
    const auto over = static_cast<uint32_t>(rational.second);
    return over == 0 ? std::nullopt
                     : std::optional(double(static_cast<uint32_t>(rational.first)) / over);
}

/** Degrees, minutes and seconds; negative where \p reference is \p negative. */
std::optional<double> angle(const Exiv2::ExifData &exif, const char *key, const char *reference,
                            QChar negative, double largest)
{
    const auto degrees = number(exif, key);
    const QString half = text(exif, reference).toUpper();
    if (!degrees || half.isEmpty()) {
        return {};
    }
    const double value = *degrees + number(exif, key, 1).value_or(0.0) / 60.0
        + number(exif, key, 2).value_or(0.0) / 3600.0;
    return value > largest ? std::nullopt
                           : std::optional(half.startsWith(negative) ? -value : value);
}

std::optional<Place> placeOf(const Exiv2::ExifData &exif)
{
    const auto latitude = angle(exif, "Exif.GPSInfo.GPSLatitude", "Exif.GPSInfo.GPSLatitudeRef",
                                QLatin1Char('S'), 90.0);
    const auto longitude = angle(exif, "Exif.GPSInfo.GPSLongitude", "Exif.GPSInfo.GPSLongitudeRef",
                                 QLatin1Char('W'), 180.0);
    if (!latitude || !longitude) {
        return {};
    }
    Place place{ *latitude, *longitude, number(exif, "Exif.GPSInfo.GPSAltitude") };
    const auto reference = exif.findKey(Exiv2::ExifKey("Exif.GPSInfo.GPSAltitudeRef"));
    if (place.altitudeMetres && reference != exif.end() && reference->count() > 0
        && reference->toLong() == 1) {
        place.altitudeMetres = -*place.altitudeMetres; // below the sea
    }
    return place;
}

std::optional<double> headingOf(const Exiv2::ExifData &exif)
{
    const auto heading = number(exif, "Exif.GPSInfo.GPSImgDirection");
    return heading && *heading <= 360.0 ? heading : std::nullopt;
}

/** With the zone where the photo names it: "+02:00". */
QDateTime timeOf(const Exiv2::ExifData &exif, const QString &timeText)
{
    QDateTime time = QDateTime::fromString(timeText, Qt::ISODateWithMs);
    time.setTimeSpec(Qt::UTC);
    const QString zone = text(exif, "Exif.Photo.OffsetTimeOriginal");
    const QTime offset = QTime::fromString(zone.mid(1), QStringLiteral("hh:mm"));
    if (time.isValid() && offset.isValid()
        && (zone[0] == QLatin1Char('+') || zone[0] == QLatin1Char('-'))) {
        const int seconds = QTime(0, 0).secsTo(offset);
        time.setOffsetFromUtc(zone[0] == QLatin1Char('-') ? -seconds : seconds);
    }
    return time;
}

/** Many models begin with their maker's name, or with the first word of it. */
QString cameraOf(const Exiv2::ExifData &exif)
{
    const QString make = text(exif, "Exif.Image.Make");
    const QString model = text(exif, "Exif.Image.Model");
    const QString first = make.section(QLatin1Char(' '), 0, 0);
    return model.startsWith(first, Qt::CaseInsensitive)
        ? model
        : (make + QLatin1Char(' ') + model).trimmed();
}

/** Empty unless it is a profile of RGB colours. */
QByteArray profileOf(Exiv2::Image &image)
{
    constexpr int kHeaderBytes = 128;
    const Exiv2::DataBuf *const data = image.iccProfileDefined() ? image.iccProfile() : nullptr;
    if (data == nullptr || data->size_ < kHeaderBytes || data->size_ > kLargestProfileBytes) {
        return {};
    }
    const QByteArray profile(reinterpret_cast<const char *>(data->pData_),
                             static_cast<int>(data->size_));
    return profile.mid(16, 4) == "RGB " && profile.mid(36, 4) == "acsp" ? profile : QByteArray();
}

PhotoOrigin read(const QString &path)
{
    const LostPageGuard guard;
    auto opened = openRegularFile(path);
    if (!opened) {
        return {};
    }
    PhotoDevice device(std::move(opened).value());
    const auto image = readExivImage(device);
    if (!image) {
        return {};
    }
    try {
        const Exiv2::ExifData &exif = image->exifData();
        const Exiv2::XmpData &xmp = image->xmpData();
        const PhotoInfo info = photoInfo(*image);
        PictureOrigin said;
        said.iccProfile = profileOf(*image);
        said.taken = timeOf(exif, info.timeText);
        said.place = placeOf(exif);
        said.author = text(exif, "Exif.Image.Artist");
        said.copyright = text(exif, "Exif.Image.Copyright");
        if (said.author.isEmpty()) {
            said.author = text(xmp, "Xmp.dc.creator");
        }
        if (said.copyright.isEmpty()) {
            said.copyright = defaultText(xmp, "Xmp.dc.rights");
        }
        said.camera = cameraOf(exif);
        said.lens = cleaned(info.lensName);
        said.headingDegrees = headingOf(exif);
        return guard.lostAny() ? PhotoOrigin{} : PhotoOrigin{ said, true };
    } catch (const std::exception &) {
        return {};
    }
}

/** Takes from \p next what is not known yet. */
template <typename T> void complete(T &known, const T &next)
{
    if (known == T()) {
        known = next;
    }
}

} // namespace

PictureOrigin originOf(const QVector<PhotoView> &photos, double centreYawDegrees)
{
    PictureOrigin origin;
    double north = 0.0;
    double east = 0.0;
    int compasses = 0;
    bool sameProfile = true;
    bool isFirst = true;
    const int looks = std::min(kLookedAt, photos.size());
    for (int i = 0; i < looks; ++i) {
        const int index
            = looks < 2 ? 0 : static_cast<int>(qint64{ photos.size() - 1 } * i / (looks - 1));
        const PhotoView &photo = photos[index];
        const auto [said, isRead] = read(photo.path);
        if (!isRead) {
            continue;
        }
        if (index == 0) {
            origin.taken = said.taken;
        }
        sameProfile = sameProfile && (isFirst || said.iccProfile == origin.iccProfile);
        isFirst = false;
        complete(origin.iccProfile, said.iccProfile);
        complete(origin.author, said.author);
        complete(origin.copyright, said.copyright);
        complete(origin.camera, said.camera);
        complete(origin.lens, said.lens);
        if (!origin.place) {
            origin.place = said.place;
        }
        if (said.headingDegrees && std::abs(photo.pitchDegrees) <= kSteepestDegrees) {
            const double middle
                = qDegreesToRadians(*said.headingDegrees - photo.yawDegrees + centreYawDegrees);
            north += std::cos(middle);
            east += std::sin(middle);
            ++compasses;
        }
    }
    if (!sameProfile) {
        origin.iccProfile.clear();
    }
    // Compasses of cameras are coarse: the mean of all that know, unless they contradict each
    // other.
    if (std::hypot(north, east) > 0.5 * compasses) {
        const double degrees = qRadiansToDegrees(std::atan2(east, north));
        origin.headingDegrees = degrees < 0.0 ? degrees + 360.0 : degrees;
    }
    return origin;
}

} // namespace PanoHost
