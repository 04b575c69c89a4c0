// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/photofile.h"

#include "host/model/panorama.h"
#include "host/model/safefile.h"

#include <QBuffer>
#include <QDateTime>
#include <QFileInfo>
#include <QImageReader>
#include <QMutex>
#include <QMutexLocker>

#include <exiv2/exiv2.hpp>

#include <algorithm>
#include <cmath>

namespace PanoHost
{

namespace
{

/** Formats that cannot be scaled while they are decoded are decoded up to this size only. */
constexpr qint64 kMostDecodedBytes = 384LL * 1024 * 1024;
/** Embedded previews are JPEGs; a larger one is no preview. */
constexpr size_t kMostPreviewBytes = size_t{ 64 } * 1024 * 1024;
/** Manual lenses report no aperture; any fixed value keeps the differences of a shoot right. */
constexpr double kAssumedFNumber = 3.5;
constexpr double kAssumedIso = 100.0;

/** exiv2 reads XMP through code that is not thread-safe. */
QMutex &exivMutex()
{
    static QMutex mutex;
    return mutex;
}

/** Opens a file for exiv2, which takes names like "-" or "http:" as sources of its own kind. */
Exiv2::Image::AutoPtr openImage(const QString &path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    return Exiv2::ImageFactory::open(QFile::encodeName(absolute).toStdString());
}

/** A positive, finite number of the EXIF data, or 0. */
double positiveNumber(const Exiv2::ExifData &exif, const char *key)
{
    const auto entry = exif.findKey(Exiv2::ExifKey(key));
    if (entry == exif.end() || entry->count() < 1) {
        return 0.0;
    }
    // A zero denominator is a signal to exiv2's own conversion on some platforms.
    const Exiv2::Rational rational = entry->toRational(0);
    if (rational.second == 0) {
        return 0.0;
    }
    const double number = double(rational.first) / rational.second;
    return std::isfinite(number) && number > 0.0 ? number : 0.0;
}

/** A signed number of the EXIF data (APEX values may be negative), when there is one. */
std::optional<double> signedNumber(const Exiv2::ExifData &exif, const char *key)
{
    const auto entry = exif.findKey(Exiv2::ExifKey(key));
    if (entry == exif.end() || entry->count() < 1) {
        return {};
    }
    const Exiv2::Rational rational = entry->toRational(0);
    if (rational.second == 0) {
        return {};
    }
    return double(rational.first) / rational.second;
}

QString text(const Exiv2::ExifData &exif, const char *key)
{
    const auto entry = exif.findKey(Exiv2::ExifKey(key));
    if (entry == exif.end()) {
        return {};
    }
    // ASCII entries end in a zero byte, which is no part of the text.
    return QString::fromStdString(entry->toString()).remove(QChar(0)).trimmed();
}

/** Millimetres per unit of the focal plane resolution. */
double focalPlaneUnitMm(const Exiv2::ExifData &exif)
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

double focalFromSensor(const Exiv2::ExifData &exif, const QSize &stored)
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

double focal35mm(const Exiv2::ExifData &exif, const QSize &stored)
{
    const double given = positiveNumber(exif, "Exif.Photo.FocalLengthIn35mmFilm");
    return given > 0.0 ? given : focalFromSensor(exif, stored);
}

std::optional<double> exposureOf(const Exiv2::ExifData &exif)
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

LensModel lensOf(const Exiv2::ExifData &exif, double focal)
{
    QString name = text(exif, "Exif.Photo.LensModel");
    const auto makerNote = Exiv2::lensName(exif);
    if (makerNote != exif.end()) {
        name += QLatin1Char(' ') + QString::fromStdString(makerNote->print(&exif));
    }
    name = name.simplified().toLower();
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

void readTime(const Exiv2::ExifData &exif, PhotoInfo &info)
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
    // UTC, so that no change of the clocks skips an hour or makes one twice.
    QDateTime time(QDate::fromString(stamp.left(10), QStringLiteral("yyyy:MM:dd")),
                   QTime::fromString(stamp.mid(11), QStringLiteral("HH:mm:ss")), Qt::UTC);
    if (!time.isValid()) {
        return;
    }
    bool digits = false;
    const int ms = fraction.leftJustified(3, QLatin1Char('0'), true).toInt(&digits);
    info.timeText = time.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss"));
    if (digits && !fraction.isEmpty() && ms >= 0) {
        time = time.addMSecs(ms);
        info.timeText += QStringLiteral(".%1").arg(ms, 3, 10, QLatin1Char('0'));
    }
    info.timeMs = time.toMSecsSinceEpoch();
}

int orientationOf(const Exiv2::ExifData &exif)
{
    const double number = positiveNumber(exif, "Exif.Image.Orientation");
    return number >= 1.0 && number <= 8.0 ? int(number) : 1;
}

struct Metadata {
    PhotoInfo info;
    bool raw = false; ///< the photo itself is for RAW converters; decoders find a preview at best
};

/** RAW files have a type of their own, or are TIFF files that begin with a smaller picture. */
bool isRaw(const Exiv2::Image &image)
{
    const QByteArray type = QByteArray::fromStdString(image.mimeType());
    if (type == "image/tiff") {
        const double first = positiveNumber(image.exifData(), "Exif.Image.ImageWidth");
        return first > 0.0 && first < image.pixelWidth();
    }
    return type.startsWith("image/x-") && type != "image/x-ms-bmp" && type != "image/x-exv";
}

/** What exiv2 knows about the file, when it knows the format. */
std::optional<Metadata> readMetadata(const QString &path)
{
    const QMutexLocker locker(&exivMutex());
    try {
        const auto image = openImage(path);
        image->readMetadata();
        const Exiv2::ExifData &exif = image->exifData();
        Metadata metadata;
        metadata.raw = isRaw(*image);
        PhotoInfo &info = metadata.info;
        info.storedSize = QSize(image->pixelWidth(), image->pixelHeight());
        info.orientation = orientationOf(exif);
        info.focal35mm = focal35mm(exif, info.storedSize);
        info.lens = lensOf(exif, info.focal35mm);
        info.exposureValue = exposureOf(exif);
        readTime(exif, info);
        return metadata;
    } catch (const std::exception &) {
        return {};
    }
}

/** The largest embedded preview of bounded size; empty when there is none. */
QByteArray embeddedPreview(const QString &path)
{
    const QMutexLocker locker(&exivMutex());
    try {
        const auto image = openImage(path);
        image->readMetadata();
        const Exiv2::PreviewManager previews(*image);
        const Exiv2::PreviewPropertiesList list = previews.getPreviewProperties();
        for (auto entry = list.rbegin(); entry != list.rend(); ++entry) {
            if (entry->size_ > 0 && entry->size_ <= kMostPreviewBytes) {
                const Exiv2::PreviewImage preview = previews.getPreviewImage(*entry);
                return { reinterpret_cast<const char *>(preview.pData()), int(preview.size()) };
            }
        }
    } catch (const std::exception &) {
    }
    return {};
}

/** Whether the decoder of \p format is made for photos (and reads nothing but the file). */
bool isPhotoFormat(const QByteArray &format)
{
    static const QByteArrayList formats{ "jpeg", "jpg",  "png", "tiff", "tif",
                                         "webp", "bmp",  "ppm", "pgm",  "heif",
                                         "heic", "avif", "jp2", "exr",  "hdr" };
    return formats.contains(format);
}

/** The next marker of a JPEG stream, as decoders find it: past garbage and fill bytes; 0: none. */
int nextJpegMarker(QIODevice &device)
{
    char byte = 0;
    bool prefixed = false;
    while (device.getChar(&byte)) {
        const auto code = static_cast<unsigned char>(byte);
        if (prefixed && code != 0xFF && code != 0x00) {
            return code;
        }
        prefixed = code == 0xFF;
    }
    return 0;
}

/**
 * Whether a decoder must hold all coefficients of a JPEG stream at once, however small the wanted
 * picture is: progressive ones, and those with a scan per component. Keeps the device's position.
 */
bool needsAllCoefficients(QIODevice &device)
{
    const qint64 before = device.pos();
    device.seek(0);
    int components = 0;
    bool all = false;
    while (const int marker = nextJpegMarker(device)) {
        const bool bare = marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
        if (bare) {
            continue;
        }
        const QByteArray head = device.peek(8).leftJustified(8, 0);
        const bool frame
            = (marker & 0xF0) == 0xC0 && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
        if (frame) {
            components = static_cast<unsigned char>(head[7]);
            all = (marker & 3) == 2;
        }
        if (all || marker == 0xDA || marker == 0xD9) {
            all = all || static_cast<unsigned char>(head[2]) < components;
            break;
        }
        const int length
            = (static_cast<unsigned char>(head[0]) << 8) | static_cast<unsigned char>(head[1]);
        if (!device.seek(device.pos() + std::max(length, 2))) {
            break;
        }
    }
    device.seek(before);
    return all;
}

/** Whether decoding a picture of \p size pixels from \p reader stays within bounds. */
bool decodable(const QImageReader &reader, const QSize &size)
{
    const qint64 pixels = qint64(size.width()) * size.height();
    if (reader.format() != "jpeg") {
        return pixels * 4 <= kMostDecodedBytes;
    }
    // Up to four components of 16-bit coefficients; others are reduced while they are decoded.
    const bool whole = needsAllCoefficients(*reader.device());
    return (whole ? pixels * 8 : pixels / 64 * 4) <= kMostDecodedBytes;
}

/** The size of the thumbnail for a picture of \p size. */
QSize thumbnailSize(const QSize &size)
{
    const int longer = std::max(size.width(), size.height());
    if (longer <= kThumbnailSide) {
        return size;
    }
    const double scale = double(kThumbnailSide) / longer;
    return QSize(qRound(size.width() * scale), qRound(size.height() * scale)).expandedTo({ 1, 1 });
}

/** The picture of \p reader at thumbnail size, turned as the picture itself says. */
QImage decodedThumbnail(QImageReader &reader)
{
    const QSize size = reader.size();
    if (size.isEmpty() || !decodable(reader, size)) {
        return {};
    }
    if (thumbnailSize(size) != size) {
        reader.setScaledSize(thumbnailSize(size));
    }
    reader.setAutoTransform(true);
    return reader.read();
}

/** The thumbnail from the preview that the file embeds; null when there is none. */
QImage previewThumbnail(const QString &path, int orientation)
{
    QBuffer buffer;
    buffer.setData(embeddedPreview(path));
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    if (!isPhotoFormat(reader.format())) {
        return {};
    }
    QImage picture = decodedThumbnail(reader);
    if (reader.transformation() != QImageIOHandler::TransformationNone) {
        return picture;
    }
    // Most previews leave the turn to the file around them.
    QTransform turn;
    turn.rotate(clockwiseDegrees(orientation));
    return picture.transformed(turn);
}

/** Stands for a photo whose picture is too large, or of a kind that cannot be decoded here. */
QImage placeholder(const PhotoInfo &info)
{
    QSize size = info.storedSize;
    if (clockwiseDegrees(info.orientation) % 180 != 0) {
        size.transpose();
    }
    QImage picture(thumbnailSize(size), QImage::Format_RGB32);
    picture.fill(Qt::gray);
    return picture;
}

Failure unreadable(const QString &path)
{
    return { ExitCode::InputRefused, path, QStringLiteral("cannot read (not a photo?)"), {} };
}

struct Header {
    PhotoInfo info;
    bool pictureIsPhoto = false; ///< what the image reader decodes is the photo itself
};

Header readHeader(const QString &path, const QImageReader &reader)
{
    const std::optional<Metadata> metadata = readMetadata(path);
    Header header;
    header.info = metadata ? metadata->info : PhotoInfo();
    header.info.path = path;
    const bool raw = metadata && metadata->raw;
    const QSize decoded = !raw && isPhotoFormat(reader.format()) ? reader.size() : QSize();
    header.pictureIsPhoto = !decoded.isEmpty();
    if (header.pictureIsPhoto) {
        header.info.storedSize = decoded;
    }
    return header;
}

} // namespace

void initializePhotoReading()
{
    Exiv2::XmpParser::initialize();
#ifdef EXV_ENABLE_BMFF
    Exiv2::enableBMFF();
#endif
    Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
}

Result<PhotoReading> readPhoto(const QString &path)
{
    const auto opened = openRegularFile(path);
    if (!opened) {
        return opened.error();
    }
    QImageReader reader(opened.value().get());
    const Header header = readHeader(path, reader);
    if (header.info.storedSize.isEmpty()) {
        return unreadable(path);
    }
    PhotoReading reading{ header.info, {} };
    if (header.pictureIsPhoto && decodable(reader, header.info.storedSize)) {
        reading.thumbnail = decodedThumbnail(reader);
        if (reading.thumbnail.isNull()) {
            return unreadable(path);
        }
        return reading;
    }
    reading.thumbnail = previewThumbnail(path, reading.info.orientation);
    if (reading.thumbnail.isNull()) {
        reading.thumbnail = placeholder(reading.info);
    }
    return reading;
}

Result<PhotoInfo> readPhotoInfo(const QString &path)
{
    const auto opened = openRegularFile(path);
    if (!opened) {
        return opened.error();
    }
    QImageReader reader(opened.value().get());
    const Header header = readHeader(path, reader);
    if (header.info.storedSize.isEmpty()) {
        return unreadable(path);
    }
    return header.info;
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
