// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/desktopthumbnails.h"

#include "host/model/safefile.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QMutexLocker>
#include <QStandardPaths>
#include <QStorageInfo>
#include <QTemporaryFile>
#include <QtEndian>

#include <algorithm>
#include <cstdio>

#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace PanoHost
{

namespace
{

constexpr int kSide = 256; // of the size that the desktop calls "large"
constexpr qint64 kMostFileBytes = 1024LL * 1024; // uncompressed, such a picture takes a quarter
// A file name of 4,096 bytes, all of them escaped, and the other texts. Compressed text can become
// a thousand times as long.
constexpr qint64 kMostTextBytes = 16LL * 1024;
constexpr int kSignatureBytes = 8;
constexpr int kChunkFrameBytes = 12; // length, type and checksum around a chunk's data

/** The URI of \p path with the same characters escaped as the desktop's programs do. */
QByteArray uriOf(const QString &path)
{
    const QString clean = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    return "file://" + QFile::encodeName(clean).toPercentEncoding("/!$&'()*+,:=@");
}

quint32 bigEndian(const QByteArray &bytes, qint64 offset)
{
    return qFromBigEndian<quint32>(bytes.constData() + offset);
}

/** Whether the texts of \p png are short. Decoders keep all of them, unpacked. */
bool hasModestTexts(const QByteArray &png)
{
    qint64 texts = 0;
    qint64 offset = kSignatureBytes;
    while (offset + kChunkFrameBytes <= png.size()) {
        const qint64 length = bigEndian(png, offset);
        const QByteArray type = png.mid(static_cast<int>(offset) + 4, 4);
        if (type == "tEXt" || type == "zTXt" || type == "iTXt") {
            texts += length;
        }
        offset += length + kChunkFrameBytes;
    }
    return texts <= kMostTextBytes;
}

/** The picture in \p png, null when it is none of a thumbnail's size. */
QImage decoded(QByteArray png)
{
    if (!hasModestTexts(png)) {
        return {};
    }
    QBuffer buffer(&png);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "png");
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    const bool fits = !size.isEmpty() && std::max(size.width(), size.height()) <= kSide;
    return fits ? reader.read() : QImage();
}

/** The bare pixels of \p picture. Texts of the photo, or of its thumbnail, are not to go on. */
QImage withoutTexts(const QImage &picture)
{
    const QImage pixels = picture.convertToFormat(picture.hasAlphaChannel() ? QImage::Format_ARGB32
                                                                            : QImage::Format_RGB32);
    // Around the same bytes, which live as long as this copy of the handle to them.
    return { pixels.constBits(), pixels.width(),
             pixels.height(),    pixels.bytesPerLine(),
             pixels.format(),    [](void *kept) { delete static_cast<QImage *>(kept); },
             new QImage(pixels) };
}

QByteArray bigEndianBytes(quint32 number)
{
    QByteArray bytes(4, Qt::Uninitialized);
    qToBigEndian(number, bytes.data());
    return bytes;
}

/** The checksum of PNG chunks (CRC-32 of ISO 3309). */
quint32 checksum(const QByteArray &bytes)
{
    quint32 sum = ~0U;
    for (const char byte : bytes) {
        sum ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            sum = (sum >> 1) ^ ((sum & 1) != 0 ? 0xEDB88320U : 0U);
        }
    }
    return ~sum;
}

QByteArray textChunk(const char *key, const QByteArray &text)
{
    const QByteArray content = QByteArray("tEXt") + key + '\0' + text;
    return bigEndianBytes(static_cast<quint32>(content.size() - 4)) + content
        + bigEndianBytes(checksum(content));
}

/**
 * \p picture as PNG with \p texts behind its header. Qt packs long texts, and programs that only
 * look a thumbnail's photo up do not unpack them.
 */
QByteArray encoded(const QImage &picture, const QByteArray &texts)
{
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    constexpr int kHeaderBytes = 13;
    constexpr int kQuality = 80; // a quarter of the usual time for a tenth more bytes
    if (!withoutTexts(picture).save(&buffer, "PNG", kQuality)) {
        return {};
    }
    return png.insert(kSignatureBytes + kHeaderBytes + kChunkFrameBytes, texts);
}

/** Makes \p path, and what is missing above it, a folder that is the user's alone. */
bool makePrivateFolder(const QString &path)
{
    const QFileInfo info(path);
    if (info.isDir() || info.isRoot()) {
        return info.isDir();
    }
    constexpr mode_t kUserOnly = 0700;
    return makePrivateFolder(info.absolutePath())
        && (::mkdir(QFile::encodeName(path).constData(), kUserOnly) == 0
            || QFileInfo(path).isDir()); // another program was faster
}

/** Whether the drive behind \p device ("/dev/sdb1") can be taken out. */
bool isRemovable(const QByteArray &device)
{
    struct stat status = {};
    if (::stat(device.constData(), &status) != 0 || !S_ISBLK(status.st_mode)) {
        return false;
    }
    const QString drive = QFileInfo(QStringLiteral("/sys/dev/block/%1:%2")
                                        .arg(QString::number(major(status.st_rdev)),
                                             QString::number(minor(status.st_rdev))))
                              .canonicalFilePath();
    // A partition's folder lies in that of its drive.
    for (const char *const flag : { "/removable", "/../removable" }) {
        const auto content = readRegularFile(drive + QLatin1String(flag), kSide);
        if (content && content.value().trimmed() == "1") {
            return true;
        }
    }
    return drive.contains(QLatin1String("/usb"));
}

bool isUnder(const QString &path, const QString &folder)
{
    return path == folder || path.startsWith(folder + QLatin1Char('/'));
}

} // namespace

bool isOwnPlace(const Mount &mount)
{
    static const QByteArrayList foreign{ "vfat", "exfat", "ntfs", "ntfs3", "iso9660", "udf",
                                         "hfs",  "nfs",   "nfs4", "cifs",  "smb3",    "smbfs",
                                         "afs",  "9p",    "ceph", "davfs", "hfsplus" };
    for (const char *const folder : { "/media", "/run/media", "/mnt" }) {
        if (isUnder(mount.point, QLatin1String(folder))) {
            return false;
        }
    }
    return !mount.readOnly && !mount.removable && !mount.fileSystem.startsWith("fuse")
        && !foreign.contains(mount.fileSystem);
}

DesktopThumbnails::DesktopThumbnails(Places places, QString folder)
    : m_places(places)
    , m_folder(std::move(folder))
{
}

QString DesktopThumbnails::defaultFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)
        + QStringLiteral("/thumbnails");
}

QString DesktopThumbnails::fileFor(const QByteArray &uri) const
{
    const QByteArray name = QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex();
    return QStringLiteral("%1/large/%2.png").arg(m_folder, QString::fromLatin1(name));
}

std::optional<QImage> DesktopThumbnails::find(const QString &path, const QDateTime &modified,
                                              qint64 bytes) const
{
    const QByteArray uri = uriOf(path);
    const auto png = readRegularFile(fileFor(uri), kMostFileBytes);
    if (!png || !modified.isValid()) {
        return {};
    }
    const QImage picture = decoded(png.value());
    const QString size = picture.text(QStringLiteral("Thumb::Size"));
    if (picture.isNull() || picture.text(QStringLiteral("Thumb::URI")) != QString::fromLatin1(uri)
        || picture.text(QStringLiteral("Thumb::MTime"))
            != QString::number(modified.toSecsSinceEpoch())
        || (!size.isEmpty() && size != QString::number(bytes))) {
        return {};
    }
    return withoutTexts(picture);
}

void DesktopThumbnails::keep(const QString &path, const QDateTime &modified, qint64 bytes,
                             const QImage &upright) const
{
    if (upright.isNull() || std::max(upright.width(), upright.height()) > kSide
        || !modified.isValid() || !mayKeepFor(path)) {
        return;
    }
    const QByteArray uri = uriOf(path);
    const QString target = fileFor(uri);
    const QString folder = QFileInfo(target).absolutePath();
    const QByteArray png
        = encoded(upright,
                  textChunk("Thumb::URI", uri)
                      + textChunk("Thumb::MTime", QByteArray::number(modified.toSecsSinceEpoch()))
                      + textChunk("Thumb::Size", QByteArray::number(bytes))
                      + textChunk("Software", "panohost"));
    if (png.isEmpty() || !makePrivateFolder(folder)) {
        return;
    }
    // Not synchronized with the disk, which takes longer than making the thumbnail: what a loss of
    // power damages is not read.
    QTemporaryFile file(folder + QStringLiteral("/panohost-XXXXXX"));
    if (file.open() && file.write(png) == png.size() && file.flush()
        && std::rename(QFile::encodeName(file.fileName()).constData(),
                       QFile::encodeName(target).constData())
            == 0) {
        file.setAutoRemove(false);
    }
}

bool DesktopThumbnails::mayKeepFor(const QString &path) const
{
    const QFileInfo info(path);
    const QString thumbnails = QFileInfo(m_folder).canonicalFilePath();
    if (!thumbnails.isEmpty() && isUnder(info.canonicalFilePath(), thumbnails)) {
        return false;
    }
    if (m_places == Places::Every) {
        return true;
    }
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0) {
        return false;
    }
    const QMutexLocker locker(&m_mutex);
    const auto known = m_ownDevices.constFind(status.st_dev);
    if (known != m_ownDevices.constEnd()) {
        return *known;
    }
    const QStorageInfo storage(path);
    const bool own = storage.isValid()
        && isOwnPlace({ storage.rootPath(), storage.fileSystemType(), storage.isReadOnly(),
                        isRemovable(storage.device()) });
    m_ownDevices.insert(status.st_dev, own);
    return own;
}

} // namespace PanoHost
