// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <QObject>
#include <QPixmap>

#include <atomic>
#include <list>
#include <memory>

namespace PanoHost
{

class HostImage;

/** How much memory the thumbnails of all photos together may take, bytes. */
struct ThumbnailLimits {
    qint64 plain = 64LL * 1024 * 1024; ///< thumbnails as they are, of the first photos
    qint64 encoded = 256LL * 1024 * 1024; ///< compressed thumbnails, kept for all others
    qint64 kept = 96LL * 1024 * 1024; ///< pixmaps that stay from one event-loop turn to the next
    qint64 full = 160LL * 1024 * 1024; ///< from here on new pixmaps are made small
    qint64 most = 288LL * 1024 * 1024; ///< from here on there are no new pixmaps
};

/** A thumbnail as the store keeps it: in one form or the other, or not at all. */
struct KeptThumbnail {
    QImage plain;
    QByteArray encoded;

    [[nodiscard]] bool isNull() const { return plain.isNull() && encoded.isEmpty(); }
    [[nodiscard]] QImage picture() const;
};

/**
 * Keeps all thumbnails together within `ThumbnailLimits`.
 *
 * Each photo's thumbnail is kept, compressed unless there is plenty of room; pixmaps are made when
 * they are asked for and the least recently used ones are dropped, but only between event-loop
 * turns: a pointer answered by `HostImage::Thumbnail` stays good until the caller returns to the
 * event loop.
 */
class ThumbnailStore : public QObject
{
    Q_OBJECT
public:
    explicit ThumbnailStore(ThumbnailLimits limits = {}, QObject *parent = nullptr);
    ~ThumbnailStore() override;

    /**
     * Keeps \p thumbnail, the smaller the less room is left; null when there is none at all. Any
     * thread. The bytes count until `release`.
     */
    [[nodiscard]] KeptThumbnail keep(const QImage &thumbnail);
    /** \p kept, as answered by `keep`, is no longer needed. Any thread. */
    void release(const KeptThumbnail &kept);

    /** The pixmap of \p image, made if need be; null when memory is short. GUI thread. */
    [[nodiscard]] QPixmap *pixmap(HostImage &image);
    /** \p image goes away. GUI thread. */
    void forget(HostImage &image);

    [[nodiscard]] qint64 keptBytes() const { return m_plainBytes + m_encodedBytes; }
    [[nodiscard]] qint64 pixmapBytes() const { return m_pixmapBytes; }

private:
    void trim();
    void drop(HostImage &image);

    const ThumbnailLimits m_limits;
    std::atomic<qint64> m_plainBytes{ 0 };
    std::atomic<qint64> m_encodedBytes{ 0 };
    qint64 m_pixmapBytes = 0;
    std::list<HostImage *> m_recent; ///< those with a pixmap, least recently used first
    bool m_trimPending = false;
};

} // namespace PanoHost
