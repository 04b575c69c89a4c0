// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/make/makekeys.h"

#include "host/model/panoramajson.h"
#include "host/model/safefile.h"
#include "host/stitch/workfolder.h"

#include <QCoreApplication>

#include <type_traits>

namespace PanoHost
{
namespace
{

/** Values one after the other, each with its length: no value can look like two. */
class KeyText
{
public:
    explicit KeyText(const char *step)
    {
        *this << QByteArray(step) << QCoreApplication::applicationVersion();
    }

    KeyText &operator<<(const QByteArray &value)
    {
        m_text += QByteArray::number(value.size()) + ':' + value + '\n';
        return *this;
    }
    KeyText &operator<<(const QString &value) { return *this << value.toUtf8(); }
    KeyText &operator<<(double value)
    {
        constexpr int kAllDigits = 17;
        return *this << QByteArray::number(value, 'g', kAllDigits);
    }
    template <typename T> std::enable_if_t<std::is_integral_v<T>, KeyText &> operator<<(T value)
    {
        return *this << QByteArray::number(static_cast<qint64>(value));
    }
    template <typename T> std::enable_if_t<std::is_enum_v<T>, KeyText &> operator<<(T value)
    {
        return *this << static_cast<qint64>(value);
    }
    template <typename T> KeyText &operator<<(const std::optional<T> &value)
    {
        *this << value.has_value();
        return value ? *this << *value : *this;
    }
    KeyText &addFile(const QString &path) { return *this << path << stampOf(path); }
    KeyText &addFiles(const QStringList &paths)
    {
        *this << paths.size();
        for (const QString &path : paths) {
            addFile(path);
        }
        return *this;
    }

    [[nodiscard]] const QByteArray &text() const { return m_text; }

private:
    QByteArray m_text;
};

constexpr qint64 kMostRecordBytes = 1LL << 30;

/** What was made in a work folder tells by its key what it is, and by its stamp that it is whole.
 */
QByteArray keyOfMade(const QString &path)
{
    constexpr qint64 kMostKeyBytes = 4096;
    const Result<QByteArray> key = readRegularFile(path + QStringLiteral(".key"), kMostKeyBytes);
    return key ? key.value() : stampOf(path);
}

} // namespace

QByteArray importKey(const ImportRequest &request, const QString &library)
{
    KeyText key("import");
    key << request.head->name() << request.record;
    if (!request.record.isEmpty()) {
        const Result<QByteArray> record = readRegularFile(request.record, kMostRecordBytes);
        key << (record ? record.value() : QByteArray());
    }
    key.addFiles(request.photos);
    key << request.order << request.matchesPhotos << request.focalSource << request.focal35mm
        << request.lensSource << request.lens << request.clockwiseTurns << request.invertPitch
        << request.ignoreExifRotation << request.grid.has_value();
    if (request.grid) {
        key << request.grid->rows << request.grid->bracketCount << request.grid->ignoredCount
            << request.grid->mode << request.grid->wrap360 << request.grid->overlapPercent;
    }
    for (const ButtonState &button : request.buttons) {
        key << button.name << button.checked;
    }
    return key.addFile(library).text();
}

QByteArray importedKey(const Panorama &panorama)
{
    return (KeyText("imported") << panoramaToJson(panorama, {}))
        .addFiles(photoPaths(panorama))
        .text();
}

QByteArray alignKey(const QByteArray &panoramaJson, bool ignoresExifRotation,
                    const AlignOptions &options, const QStringList &photos)
{
    // The number of jobs changes nothing.
    return (KeyText("align") << panoramaJson << ignoresExifRotation << options.freesFocal
                             << options.freesA << options.freesB << options.freesC
                             << options.features << options.workSize << options.keepsPoints
                             << options.levels << options.photometry)
        .addFiles(photos)
        .text();
}

QByteArray deliveryKey(const DeliverJob &job, Delivery kind)
{
    const StitchedPicture &picture = job.picture;
    const PictureOrigin &origin = job.origin;
    KeyText key("deliver");
    key << kind << keyOfMade(picture.path) << picture.size.width() << picture.size.height()
        << picture.depth << picture.sphere.width() << picture.sphere.height()
        << picture.onSphere.x() << picture.onSphere.y() << picture.centreYawDegrees
        << picture.exposureValue << origin.iccProfile << origin.taken.toString(Qt::ISODateWithMs)
        << origin.place.has_value();
    if (origin.place) {
        key << origin.place->latitudeDegrees << origin.place->longitudeDegrees
            << origin.place->altitudeMetres;
    }
    key << origin.author << origin.copyright << origin.camera << origin.lens
        << origin.headingDegrees << job.title << job.output << job.jpegQuality << job.radianceSuffix
        << job.iiifAddress;
    return key.text();
}

} // namespace PanoHost
