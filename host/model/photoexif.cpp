// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/photoexif.h"

#include "host/model/panorama.h"

#include <QDateTime>
#include <QStringList>

#include <exiv2/exiv2.hpp>

#include <algorithm>
#include <cmath>
#include <string>
#include <unordered_map>

namespace PanoHost
{

namespace
{

/** Manual lenses report no aperture; any fixed value keeps the differences of a shoot right. */
constexpr double kAssumedFNumber = 3.5;
constexpr double kAssumedIso = 100.0;

/** The entries of EXIF data by their keys: the library's own search is slower than reading a file.
 */
class Entries
{
public:
    explicit Entries(const Exiv2::ExifData &exif)
    {
        for (const Exiv2::Exifdatum &entry : exif) {
            const std::string group = entry.groupName();
            if (group == "Image" || group == "Photo") {
                m_entries.emplace(entry.key(), &entry); // the first of a key counts
            } else if (group != "GPSInfo" && group != "Iop" && group != "Thumbnail") {
                m_makerNote = true;
            }
        }
    }

    /** Null when there is no \p key. */
    [[nodiscard]] const Exiv2::Exifdatum *find(const char *key) const
    {
        const auto found = m_entries.find(key);
        return found == m_entries.end() ? nullptr : found->second;
    }
    /** Whether there are entries that only the maker of the camera defines. */
    [[nodiscard]] bool hasMakerNote() const { return m_makerNote; }

private:
    std::unordered_map<std::string, const Exiv2::Exifdatum *> m_entries;
    bool m_makerNote = false;
};

/** A number of the EXIF data (APEX values may be negative), when there is one. */
std::optional<double> signedNumber(const Entries &exif, const char *key)
{
    const Exiv2::Exifdatum *const entry = exif.find(key);
    if (entry == nullptr || entry->count() < 1) {
        return {};
    }
    // A zero denominator is a signal to exiv2's own conversion on some platforms.
    const Exiv2::Rational rational = entry->toRational(0);
    if (rational.second == 0) {
        return {};
    }
    return double(rational.first) / rational.second;
}

/** A positive number of the EXIF data, or 0. */
double positiveNumber(const Entries &exif, const char *key)
{
    return std::max(signedNumber(exif, key).value_or(0.0), 0.0);
}

QString text(const Entries &exif, const char *key)
{
    const Exiv2::Exifdatum *const entry = exif.find(key);
    if (entry == nullptr) {
        return {};
    }
    // ASCII entries end in a zero byte, which is no part of the text.
    return QString::fromStdString(entry->toString()).remove(QChar(0)).trimmed();
}

/** Millimetres per unit of the focal plane resolution. */
double focalPlaneUnitMm(const Entries &exif)
{
    switch (int(positiveNumber(exif, "Exif.Photo.FocalPlaneResolutionUnit"))) {
    case 3:
        return 10.0;
    case 4:
        return 1.0;
    case 5:
        return 0.001;
    default:
        return 25.4;
    }
}

double focalFromSensor(const Entries &exif, const QSize &stored)
{
    const double focalMm = positiveNumber(exif, "Exif.Photo.FocalLength");
    const double across = positiveNumber(exif, "Exif.Photo.FocalPlaneXResolution");
    const double down = positiveNumber(exif, "Exif.Photo.FocalPlaneYResolution");
    if (focalMm == 0.0 || across == 0.0 || down == 0.0) {
        return 0.0;
    }
    // The resolution counts the pixels the camera took, which a reduced copy still names.
    double width = positiveNumber(exif, "Exif.Photo.PixelXDimension");
    double height = positiveNumber(exif, "Exif.Photo.PixelYDimension");
    if (width == 0.0 || height == 0.0) {
        width = stored.width();
        height = stored.height();
    }
    const double unitMm = focalPlaneUnitMm(exif);
    const double diagonalMm = std::hypot(width / across, height / down) * unitMm;
    const bool plausible = diagonalMm > 2.0 && diagonalMm < 250.0;
    return plausible ? focalMm * kFullFrameDiagonalMm / diagonalMm : 0.0;
}

double focal35mm(const Entries &exif, const QSize &stored)
{
    const double given = positiveNumber(exif, "Exif.Photo.FocalLengthIn35mmFilm");
    return given > 0.0 ? given : focalFromSensor(exif, stored);
}

std::optional<double> exposureOf(const Entries &exif)
{
    double seconds = positiveNumber(exif, "Exif.Photo.ExposureTime");
    if (seconds == 0.0) {
        const auto speed = signedNumber(exif, "Exif.Photo.ShutterSpeedValue");
        seconds = speed ? std::exp2(-*speed) : 0.0;
    }
    if (seconds <= 0.0 || !std::isfinite(seconds)) {
        return {};
    }
    double fNumber = positiveNumber(exif, "Exif.Photo.FNumber");
    if (fNumber == 0.0) {
        const double aperture = positiveNumber(exif, "Exif.Photo.ApertureValue");
        fNumber = aperture > 0.0 ? std::exp2(aperture / 2.0) : kAssumedFNumber;
    }
    double iso = positiveNumber(exif, "Exif.Photo.ISOSpeedRatings");
    if (iso == 0.0) {
        iso = positiveNumber(exif, "Exif.Photo.RecommendedExposureIndex");
    }
    return exposureValue(fNumber, seconds, iso > 0.0 ? iso : kAssumedIso);
}

QString lensNameOf(const Entries &exif, const Exiv2::ExifData &all)
{
    QString name = text(exif, "Exif.Photo.LensModel");
    const auto makerNote = exif.hasMakerNote() ? Exiv2::lensName(all) : all.end();
    if (makerNote != all.end()) {
        name += QLatin1Char(' ') + QString::fromStdString(makerNote->print(&all));
    }
    return name.simplified();
}

QString cameraOf(const Entries &exif)
{
    QStringList words;
    for (const char *const key :
         { "Exif.Image.Make", "Exif.Image.Model", "Exif.Photo.BodySerialNumber" }) {
        const QString word = text(exif, key).simplified();
        if (!word.isEmpty()) {
            words += word;
        }
    }
    return words.join(QLatin1Char(' '));
}

LensModel lensOf(const QString &lensName, double focal)
{
    const QString name = lensName.toLower();
    for (const char *const word : { "fisheye", "fish-eye", "fish eye" }) {
        if (name.contains(QLatin1String(word))) {
            return LensModel::Fisheye;
        }
    }
    // Below this many lenses are fisheyes that do not say so.
    constexpr double kShortestStandardMm = 14.0;
    const bool named = !name.isEmpty() && !name.startsWith(QLatin1Char('('));
    return named && focal >= kShortestStandardMm ? LensModel::Standard : LensModel::NotChosen;
}

/** The time that "2024:05:01 10:00:00" names; without Qt's formats, slower than all else here. */
QDateTime clockTime(const QString &stamp)
{
    const QLatin1String shape("0000:00:00?00:00:00");
    if (stamp.size() != shape.size()) {
        return {};
    }
    for (int i = 0; i < shape.size(); ++i) {
        const bool digit = stamp[i] >= QLatin1Char('0') && stamp[i] <= QLatin1Char('9');
        const char expected = shape.data()[i];
        if (expected == '0' ? !digit : expected == ':' && stamp[i] != QLatin1Char(':')) {
            return {};
        }
    }
    const auto number = [&stamp](int at, int digits) { return stamp.midRef(at, digits).toInt(); };
    const QTime time(number(11, 2), number(14, 2), number(17, 2));
    // UTC, so that no change of the clocks skips an hour or makes one twice. A date alone would
    // be taken for its midnight.
    return time.isValid() ? QDateTime({ number(0, 4), number(5, 2), number(8, 2) }, time, Qt::UTC)
                          : QDateTime();
}

void readTime(const Entries &exif, PhotoInfo &info)
{
    QString stamp = text(exif, "Exif.Photo.DateTimeOriginal");
    QString fraction = text(exif, "Exif.Photo.SubSecTimeOriginal");
    if (stamp.isEmpty()) {
        stamp = text(exif, "Exif.Photo.DateTimeDigitized");
        fraction = text(exif, "Exif.Photo.SubSecTimeDigitized");
    }
    if (stamp.isEmpty()) {
        stamp = text(exif, "Exif.Image.DateTime");
        fraction = text(exif, "Exif.Photo.SubSecTime");
    }
    QDateTime time = clockTime(stamp);
    if (!time.isValid()) {
        return;
    }
    bool digits = false;
    const int ms = fraction.leftJustified(3, QLatin1Char('0'), true).toInt(&digits);
    info.timeText = stamp.left(10).replace(QLatin1Char(':'), QLatin1Char('-')) + QLatin1Char('T')
        + stamp.mid(11);
    if (digits && !fraction.isEmpty() && ms >= 0) {
        time = time.addMSecs(ms);
        info.timeText += QStringLiteral(".%1").arg(ms, 3, 10, QLatin1Char('0'));
    }
    info.timeMs = time.toMSecsSinceEpoch();
}

bool saysPanorama(const Exiv2::XmpData &xmp)
{
    return std::any_of(xmp.begin(), xmp.end(), [](const Exiv2::Xmpdatum &entry) {
        return entry.groupName() == "GPano"
            || (entry.key() == "Xmp.xmp.CreatorTool" && entry.toString() == kOwnSoftware);
    });
}

int orientationOf(const Entries &exif)
{
    const double number = positiveNumber(exif, "Exif.Image.Orientation");
    return number >= 1.0 && number <= 8.0 ? int(number) : 1;
}

} // namespace

PhotoInfo photoInfo(const Exiv2::Image &image)
{
    const Entries exif(image.exifData());
    PhotoInfo info;
    info.storedSize = QSize(image.pixelWidth(), image.pixelHeight());
    info.orientation = orientationOf(exif);
    info.focal35mm = focal35mm(exif, info.storedSize);
    info.lensName = lensNameOf(exif, image.exifData());
    info.lens = lensOf(info.lensName, info.focal35mm);
    info.camera = cameraOf(exif);
    info.exposureValue = exposureOf(exif);
    readTime(exif, info);
    info.hasAutomaticBalance = signedNumber(exif, "Exif.Photo.WhiteBalance") == 0.0;
    info.isRaw = isRaw(image);
    info.isPanorama = isPanorama(image);
    return info;
}

bool isRaw(const Exiv2::Image &image)
{
    // They have a type of their own, or are TIFF files of a sensor's values, or such that begin
    // with a smaller picture.
    const QByteArray type = QByteArray::fromStdString(image.mimeType());
    if (type == "image/tiff") {
        constexpr double kMosaic = 32803.0;
        constexpr double kLinearRaw = 34892.0;
        const Entries exif(image.exifData());
        const double kind = positiveNumber(exif, "Exif.Image.PhotometricInterpretation");
        const double first = positiveNumber(exif, "Exif.Image.ImageWidth");
        return kind == kMosaic || kind == kLinearRaw || (first > 0.0 && first < image.pixelWidth());
    }
    return type.startsWith("image/x-") && type != "image/x-ms-bmp" && type != "image/x-exv";
}

bool isPanorama(const Exiv2::Image &image)
{
    return saysPanorama(image.xmpData());
}

bool isPanorama(const QByteArray &xmpPacket)
{
    try {
        Exiv2::XmpData xmp;
        return Exiv2::XmpParser::decode(xmp, xmpPacket.toStdString()) == 0 && saysPanorama(xmp);
    } catch (const std::exception &) {
        return false;
    }
}

bool isPictureWithin(const Exiv2::Image &image, qint64 bytes)
{
    const Exiv2::ExifData &exif = image.exifData();
    const auto entry = [&exif](const char *key) { return exif.findKey(Exiv2::ExifKey(key)); };
    for (const auto &[offsets, counts] :
         { std::pair{ entry("Exif.Image.StripOffsets"), entry("Exif.Image.StripByteCounts") },
           std::pair{ entry("Exif.Image.TileOffsets"), entry("Exif.Image.TileByteCounts") } }) {
        if (offsets == exif.end() || counts == exif.end()) {
            continue;
        }
        for (long i = 0; i < std::min(offsets->count(), counts->count()); ++i) {
            if (qint64{ offsets->toLong(i) } + counts->toLong(i) > bytes) {
                return false;
            }
        }
    }
    return true;
}

double exposureValue(double fNumber, double seconds, double iso)
{
    return std::log2(fNumber * fNumber / seconds) - std::log2(iso / 100.0);
}

int clockwiseDegrees(int orientation)
{
    switch (orientation) {
    case 3:
    case 4:
        return 180;
    case 5:
    case 6:
        return 90;
    case 7:
    case 8:
        return 270;
    default:
        return 0;
    }
}

qint64 timeMsFromText(const QString &text)
{
    // Without a zone Qt takes it for local time, in which some hours do not exist.
    const QDateTime time = QDateTime::fromString(text + QLatin1Char('Z'), Qt::ISODateWithMs);
    return time.isValid() ? time.toMSecsSinceEpoch() : 0;
}

} // namespace PanoHost
