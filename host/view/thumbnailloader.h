// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/photofile.h"

#include <QImage>
#include <QObject>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace PanoHost
{

/** Answers a photo with its upright thumbnail; nothing when it cannot be read. Any thread. */
using PhotoSource = std::function<std::optional<PhotoReading>(const QString &path)>;

/** \p upright, which EXIF \p orientation has turned, as the photo is stored. */
[[nodiscard]] QImage storedPicture(const QImage &upright, int orientation);

/** Sizes that thumbnails are kept in, the longer side in pixels. */
constexpr int kThumbnailSides[] = { 16, 64, 256 };
constexpr int kThumbnailLevels = 3;

/** A photo of which a thumbnail is wanted, of one of the sizes. */
struct WantedThumbnail {
    int frame = 0;
    QString path;
    int level = 0;
};

/** It and the smallest one, as stored, 32 bits; null for photos that cannot be read. */
struct LoadedThumbnail {
    int frame = 0;
    int level = 0;
    QImage picture;
    QImage smallest;
};

/** Reads thumbnails on threads of its own. */
class ThumbnailLoader : public QObject
{
    Q_OBJECT
public:
    explicit ThumbnailLoader(QObject *parent = nullptr);
    /** Waits for the photos that are being read. */
    ~ThumbnailLoader() override;

    /** Where photos come from; at first they are read from their files. */
    void setSource(const PhotoSource &source);
    /** What to read next, in this order, in place of what was wanted before. */
    void want(const std::vector<WantedThumbnail> &wanted);
    /** Nothing that was wanted so far arrives any more. */
    void forget();
    /** What has arrived since the last call. */
    [[nodiscard]] std::vector<LoadedThumbnail> take();

Q_SIGNALS:
    /** There is something to take; once until it is taken. */
    void loaded();

private:
    void work();

    std::mutex m_mutex; ///< guards what follows
    std::condition_variable m_changed;
    PhotoSource m_source;
    std::vector<WantedThumbnail> m_wanted; ///< the next one is the last
    std::vector<LoadedThumbnail> m_loaded;
    int m_shoot = 0; ///< what began for an earlier one is thrown away
    bool m_ends = false;
    std::vector<std::thread> m_workers;
};

} // namespace PanoHost
