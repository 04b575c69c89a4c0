// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/core/photofile.h"

#include "host/core/panorama.h"
#include "host/core/safefile.h"

#include <QBuffer>
#include <QDateTime>
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
constexpr size_t kMostPreviewBytes = 64U * 1024 * 1024;
/** Manual lenses report no aperture; any fixed value keeps the differences of a shoot right. */
constexpr double kAssumedFNumber = 3.5;
constexpr double kAssumedIso = 100.0;

/** exiv2 reads XMP through code that is not thread-safe. */
QMutex &exivMutex()
{
    static QMutex mutex;
    return mutex;
}

struct Metadata {
    PhotoInfo info;
    QByteArray preview; ///< an encoded picture; empty when none is embedded or none was wanted
};

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
    // UTC, so that no change of the clocks makes an hour twice.
    QDateTime time = QDateTime::fromString(stamp, QStringLiteral("yyyy:MM:dd HH:mm:ss"));
    time.setTimeSpec(Qt::UTC);
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

/** The largest embedded preview that is no larger than the bound allows. */
QByteArray embeddedPreview(const Exiv2::Image &image)
{
    const Exiv2::PreviewManager previews(image);
    const Exiv2::PreviewPropertiesList list = previews.getPreviewProperties();
    for (auto entry = list.rbegin(); entry != list.rend(); ++entry) {
        if (entry->size_ > 0 && entry->size_ <= kMostPreviewBytes) {
            const Exiv2::PreviewImage preview = previews.getPreviewImage(*entry);
            return { reinterpret_cast<const char *>(preview.pData()), int(preview.size()) };
        }
    }
    return {};
}

/** What exiv2 knows about the file; the size only where it knows one. */
std::optional<Metadata> readMetadata(const QString &path, const QSize &stored, bool wantPreview)
{
    const QMutexLocker locker(&exivMutex());
    try {
        const auto image = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
        image->readMetadata();
        const Exiv2::ExifData &exif = image->exifData();
        Metadata metadata;
        metadata.info.storedSize
            = stored.isEmpty() ? QSize(image->pixelWidth(), image->pixelHeight()) : stored;
        metadata.info.orientation = orientationOf(exif);
        metadata.info.focal35mm = focal35mm(exif, metadata.info.storedSize);
        metadata.info.lens = lensOf(exif, metadata.info.focal35mm);
        metadata.info.exposureValue = exposureOf(exif);
        readTime(exif, metadata.info);
        if (wantPreview) {
            metadata.preview = embeddedPreview(*image);
        }
        return metadata;
    } catch (const std::exception &) {
        return {};
    }
}

/** Whether reading \p reader's picture stays within bounds. */
bool decodable(const QImageReader &reader, const QSize &size)
{
    const bool scalesWhileReading = reader.format() == "jpeg";
    return scalesWhileReading || qint64(size.width()) * size.height() * 4 <= kMostDecodedBytes;
}

QImage decodedThumbnail(QImageReader &reader)
{
    const QSize size = reader.size();
    if (!size.isEmpty()) {
        if (!decodable(reader, size)) {
            return {};
        }
        const QSize bound(kThumbnailSide, kThumbnailSide);
        const bool larger = size.width() > kThumbnailSide || size.height() > kThumbnailSide;
        if (larger) {
            reader.setScaledSize(size.scaled(bound, Qt::KeepAspectRatio).expandedTo({ 1, 1 }));
        }
    }
    reader.setAutoTransform(true);
    return reader.read();
}

QImage previewThumbnail(const QByteArray &preview, int orientation)
{
    QBuffer buffer;
    buffer.setData(preview);
    QImageReader reader(&buffer);
    const QImage picture = decodedThumbnail(reader);
    // Most previews leave the turn to the file around them.
    const bool turnedAlready = reader.transformation() != QImageIOHandler::TransformationNone;
    if (turnedAlready) {
        return picture;
    }
    QTransform turn;
    turn.rotate(clockwiseDegrees(orientation));
    return picture.transformed(turn);
}

/** Stands for a photo whose picture is too large, or of a kind that cannot be decoded here. */
QImage placeholder(const PhotoInfo &info)
{
    QSize size = info.storedSize.isEmpty() ? QSize(3, 2) : info.storedSize;
    if (clockwiseDegrees(info.orientation) % 180 != 0) {
        size.transpose();
    }
    QImage picture(
        size.scaled(kThumbnailSide, kThumbnailSide, Qt::KeepAspectRatio).expandedTo({ 1, 1 }),
        QImage::Format_RGB32);
    picture.fill(Qt::gray);
    return picture;
}

Failure unreadable(const QString &path, const QString &why)
{
    return { ExitCode::InputRefused, path, why, {} };
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
    const QSize stored = reader.canRead() ? reader.size() : QSize();
    const bool picture = !stored.isEmpty();
    std::optional<Metadata> metadata = readMetadata(path, stored, !picture);
    if (!metadata && !picture) {
        return unreadable(path, QStringLiteral("cannot read (not a photo?)"));
    }

    PhotoReading reading;
    reading.info = metadata ? metadata->info : PhotoInfo();
    reading.info.path = path;
    if (!metadata) {
        reading.info.storedSize = stored;
    }
    if (reading.info.storedSize.isEmpty()) {
        return unreadable(path, QStringLiteral("its size in pixels is not known"));
    }
    if (picture) {
        const bool fits = decodable(reader, stored);
        reading.thumbnail = decodedThumbnail(reader);
        if (fits && reading.thumbnail.isNull()) {
            return unreadable(path, QStringLiteral("cannot read (%1)").arg(reader.errorString()));
        }
    } else {
        reading.thumbnail = previewThumbnail(metadata->preview, reading.info.orientation);
    }
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
    const QSize stored = reader.canRead() ? reader.size() : QSize();
    const std::optional<Metadata> metadata = readMetadata(path, stored, false);
    PhotoInfo info = metadata ? metadata->info : PhotoInfo();
    info.path = path;
    if (!metadata) {
        info.storedSize = stored;
    }
    if (info.storedSize.isEmpty()) {
        return unreadable(path, QStringLiteral("cannot read (not a photo?)"));
    }
    return info;
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
    QDateTime time = QDateTime::fromString(text, Qt::ISODateWithMs);
    time.setTimeSpec(Qt::UTC);
    return time.isValid() ? time.toMSecsSinceEpoch() : 0;
}

} // namespace PanoHost
