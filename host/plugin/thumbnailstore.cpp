// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/plugin/thumbnailstore.h"

#include "host/plugin/hostimage.h"

#include <QBuffer>

namespace PanoHost
{

namespace
{

constexpr int kSmallSide = 48;

QByteArray compressed(const QImage &image, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", quality);
    return bytes;
}

QImage small(const QImage &image)
{
    return image.scaled(kSmallSide, kSmallSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

/** Adds \p bytes to \p sum unless that would go beyond \p most. */
bool reserve(std::atomic<qint64> &sum, qint64 bytes, qint64 most)
{
    const bool fits = sum.fetch_add(bytes) + bytes <= most;
    if (!fits) {
        sum -= bytes;
    }
    return fits;
}

qint64 bytesOf(const QPixmap &pixmap)
{
    return qint64(pixmap.width()) * pixmap.height() * pixmap.depth() / 8;
}

} // namespace

QImage KeptThumbnail::picture() const
{
    return plain.isNull() ? QImage::fromData(encoded, "JPG") : plain;
}

ThumbnailStore::ThumbnailStore(ThumbnailLimits limits, QObject *parent)
    : QObject(parent)
    , m_limits(limits)
{
}

ThumbnailStore::~ThumbnailStore() = default;

KeptThumbnail ThumbnailStore::keep(const QImage &thumbnail)
{
    if (thumbnail.isNull()) {
        return {};
    }
    const QImage plain = thumbnail.convertToFormat(QImage::Format_RGB32);
    if (reserve(m_plainBytes, plain.sizeInBytes(), m_limits.plain)) {
        return { plain, {} };
    }
    const bool plenty = m_encodedBytes < m_limits.encoded / 2;
    QByteArray bytes = plenty ? compressed(plain, 85) : compressed(small(plain), 70);
    bytes.squeeze();
    return reserve(m_encodedBytes, bytes.size(), m_limits.encoded) ? KeptThumbnail{ {}, bytes }
                                                                   : KeptThumbnail();
}

void ThumbnailStore::release(const KeptThumbnail &kept)
{
    m_plainBytes -= kept.plain.sizeInBytes();
    m_encodedBytes -= kept.encoded.size();
}

QPixmap *ThumbnailStore::pixmap(HostImage &image)
{
    if (image.m_pixmap) {
        m_recent.splice(m_recent.end(), m_recent, image.m_recentEntry);
        return image.m_pixmap.get();
    }
    if (image.keptThumbnail().isNull() || m_pixmapBytes >= m_limits.most) {
        return nullptr;
    }
    QImage picture = image.keptThumbnail().picture();
    if (m_pixmapBytes >= m_limits.full) {
        picture = small(picture);
    }
    image.m_pixmap = std::make_unique<QPixmap>(QPixmap::fromImage(std::move(picture)));
    image.m_recentEntry = m_recent.insert(m_recent.end(), &image);
    m_pixmapBytes += bytesOf(*image.m_pixmap);
    if (m_pixmapBytes > m_limits.kept && !m_trimPending) {
        m_trimPending = true;
        QMetaObject::invokeMethod(
            this, [this] { trim(); }, Qt::QueuedConnection);
    }
    return image.m_pixmap.get();
}

void ThumbnailStore::forget(HostImage &image)
{
    if (image.m_pixmap) {
        drop(image);
    }
}

void ThumbnailStore::trim()
{
    m_trimPending = false;
    while (m_pixmapBytes > m_limits.kept) {
        drop(*m_recent.front());
    }
}

void ThumbnailStore::drop(HostImage &image)
{
    m_pixmapBytes -= bytesOf(*image.m_pixmap);
    m_recent.erase(image.m_recentEntry);
    image.m_pixmap.reset();
}

} // namespace PanoHost
