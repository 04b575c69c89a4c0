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

qint64 bytesOf(const QPixmap &pixmap)
{
    return qint64(pixmap.width()) * pixmap.height() * pixmap.depth() / 8;
}

} // namespace

ThumbnailStore::ThumbnailStore(ThumbnailLimits limits, QObject *parent)
    : QObject(parent)
    , m_limits(limits)
{
}

ThumbnailStore::~ThumbnailStore() = default;

QByteArray ThumbnailStore::encode(const QImage &thumbnail)
{
    if (thumbnail.isNull()) {
        return {};
    }
    const bool plenty = m_encodedBytes < m_limits.encoded / 2;
    QByteArray bytes = plenty ? compressed(thumbnail, 85) : compressed(small(thumbnail), 70);
    bytes.squeeze();
    if (m_encodedBytes.fetch_add(bytes.size()) + bytes.size() > m_limits.encoded) {
        m_encodedBytes -= bytes.size();
        return {};
    }
    return bytes;
}

void ThumbnailStore::release(const QByteArray &encoded)
{
    m_encodedBytes -= encoded.size();
}

QPixmap *ThumbnailStore::pixmap(HostImage &image)
{
    if (image.m_pixmap) {
        m_recent.splice(m_recent.end(), m_recent, image.m_recentEntry);
        return image.m_pixmap.get();
    }
    if (image.encodedThumbnail().isEmpty() || m_pixmapBytes >= m_limits.most) {
        return nullptr;
    }
    QImage decoded = QImage::fromData(image.encodedThumbnail(), "JPG");
    if (m_pixmapBytes >= m_limits.full) {
        decoded = small(decoded);
    }
    image.m_pixmap = std::make_unique<QPixmap>(QPixmap::fromImage(std::move(decoded)));
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
