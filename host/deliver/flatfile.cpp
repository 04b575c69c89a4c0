// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/flatfile.h"

#include "host/deliver/vips.h"
#include "host/deliver/vipswriter.h"
#include "host/model/safefile.h"
#include "host/model/said.h"
#include "host/model/tifffile.h"
#include "host/stitch/toolrun.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>

namespace PanoHost
{
namespace
{

constexpr int kLargestJpegSide = 65535;
bool isJpeg(const QString &name)
{
    return name.endsWith(QLatin1String(".jpg"), Qt::CaseInsensitive)
        || name.endsWith(QLatin1String(".jpeg"), Qt::CaseInsensitive);
}

/** A JPEG segment; what is longer than one takes cannot be told. */
QByteArray segment(char marker, const QByteArray &name, const QByteArray &content)
{
    constexpr int kLongest = 65533;
    const int length = name.size() + content.size();
    if (content.isEmpty() || length > kLongest) {
        return {};
    }
    const quint16 counted = qToBigEndian(static_cast<quint16>(length + 2));
    return QByteArray("\xff") + marker + QByteArray(reinterpret_cast<const char *>(&counted), 2)
        + name + content;
}

/** Everything that a JPEG says before its picture. */
QByteArray segmentsOf(const PictureFacts &facts)
{
    constexpr char kApp1 = '\xe1';
    constexpr char kApp2 = '\xe2';
    constexpr int kProfileBytes = 65000; // of each segment
    constexpr int kMostSegments = 255;
    QByteArray all = segment(kApp1, QByteArray("Exif\0\0", 6), facts.exif)
        + segment(kApp1, QByteArray("http://ns.adobe.com/xap/1.0/\0", 29), facts.xmp);
    const int count = (facts.iccProfile.size() + kProfileBytes - 1) / kProfileBytes;
    for (int i = 0; i < count && count <= kMostSegments; ++i) {
        const QByteArray numbers{ QByteArray(1, static_cast<char>(i + 1))
                                  + static_cast<char>(count) };
        all += segment(kApp2, QByteArray("ICC_PROFILE\0", 12) + numbers,
                       facts.iccProfile.mid(i * kProfileBytes, kProfileBytes));
    }
    return all;
}

bool isCompleteJpeg(const QString &path, const QSize &size)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || QImageReader(&file, "jpeg").size() != size) {
        return false;
    }
    constexpr qint64 kEndBytes = 2;
    return file.seek(file.size() - kEndBytes) && file.read(kEndBytes) == "\xff\xd9";
}

Failure cutOff(const QString &folder)
{
    return orLackOfRoom({ ExitCode::ToolFailed, QStringLiteral("vips"),
                          Said::tr("it left a file that is not complete"),
                          Said::tr("is the disk full? make room and try again") },
                        folder);
}

/** Copies the JPEG \p plain with \p segments in front. */
Result<QString> addSegments(const QString &plain, const QString &path, const QByteArray &segments)
{
    constexpr qint64 kChunk = 1 << 20;
    constexpr qint64 kStartBytes = 2; // the marker that every JPEG begins with
    QFile from(plain);
    QFile to(path);
    bool isSound
        = from.open(QIODevice::ReadOnly) && to.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    const auto add = [&](const QByteArray &bytes) { isSound = isSound && writeAll(to, bytes); };
    add(from.read(kStartBytes));
    add(segments);
    while (isSound && !from.atEnd()) {
        add(from.read(kChunk));
    }
    if (isSound && from.error() == QFileDevice::NoError) {
        return path;
    }
    return Failure{ ExitCode::ToolFailed, path,
                    Said::tr("cannot be written (%1)").arg(to.errorString()),
                    Said::tr("make room there and try again") };
}

/**
 * Has vips make \p name from \p picture, and say \p facts in it as far as it can; \p options as it
 * reads them: "Q=90,strip".
 */
Result<QString> convert(const FlatPicture &picture, const PictureFacts &facts,
                        const QString &folder, const QString &name, const QString &options,
                        const JobWatch &watch)
{
    // One pixel below the picture: what is made of two pictures says what the first one says.
    VipsWriter below(QDir(folder).filePath(QStringLiteral("facts.v")), QSize(1, 1), picture.depth);
    below.add(QByteArray(picture.depth == StitchedPicture::Depth::Bits16 ? 8 : 4, '\0'));
    Result<QString> written = below.finish(facts.xmp, facts.iccProfile);
    if (!written) {
        return written;
    }
    Result<QString> ran
        = runVips({ QStringLiteral("insert"), vipsName(written.value(), folder),
                    vipsName(picture.path, folder), QStringLiteral("%1[%2]").arg(name, options),
                    QStringLiteral("0"), QStringLiteral("0"), QStringLiteral("--expand") },
                  folder, watch);
    QFile::remove(written.value());
    return ran;
}

Result<QString> saveJpeg(const FlatPicture &picture, const QString &folder, const QString &name,
                         int quality, const JobWatch &watch)
{
    const QString plain = QStringLiteral("plain.jpg");
    // From quality 90 on vips keeps colours as fine as brightness.
    if (Result<QString> made
        = convert(picture, {}, folder, plain, QStringLiteral("Q=%1,strip").arg(quality), watch);
        !made) {
        return made;
    }
    const QString plainPath = QDir(folder).filePath(plain);
    if (!isCompleteJpeg(plainPath, picture.size)) {
        return cutOff(folder);
    }
    Result<QString> saved
        = addSegments(plainPath, QDir(folder).filePath(name), segmentsOf(picture.facts));
    QFile::remove(plainPath);
    return saved;
}

Result<QString> saveTiff(const FlatPicture &picture, const QString &folder, const QString &name,
                         const JobWatch &watch)
{
    QString options = QStringLiteral("tile,tile-width=256,tile-height=256,pyramid,"
                                     "compression=deflate,predictor=horizontal");
    // Its smaller versions add a third. What cannot be packed must not end beyond 4 GB.
    constexpr double kLargest = 4.2e9;
    const double bytes = 4.0 / 3.0 * (picture.depth == StitchedPicture::Depth::Bits16 ? 8 : 4)
        * picture.size.width() * picture.size.height();
    if (bytes > kLargest) {
        options += QStringLiteral(",bigtiff");
    }
    if (Result<QString> made = convert(picture, picture.facts, folder, name, options, watch);
        !made) {
        return made;
    }
    QFile file(QDir(folder).filePath(name));
    if (!file.open(QIODevice::ReadOnly) || !isCompleteTiff(file, picture.size)) {
        return cutOff(folder);
    }
    return file.fileName();
}

} // namespace

Result<QString> checkFlatSize(const QString &name, const QSize &size)
{
    if (isJpeg(name) && std::max(size.width(), size.height()) > kLargestJpegSide) {
        return Failure{ ExitCode::InputRefused, name,
                        Said::tr("the panorama has %1 x %2 pixels, and JPEG files at most %3 "
                                 "to a side")
                            .arg(size.width())
                            .arg(size.height())
                            .arg(kLargestJpegSide),
                        Said::tr("name it .tif, or make it smaller with --size") };
    }
    return name;
}

Result<QString> saveFlat(const FlatPicture &picture, const QString &folder, const QString &name,
                         int quality, const JobWatch &watch)
{
    if (Result<QString> size = checkFlatSize(name, picture.size); !size) {
        return size;
    }
    return isJpeg(name) ? saveJpeg(picture, folder, name, quality, watch)
                        : saveTiff(picture, folder, name, watch);
}

} // namespace PanoHost
