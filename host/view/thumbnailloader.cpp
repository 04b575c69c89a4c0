// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/view/thumbnailloader.h"

#include "host/model/parallel.h"

#include <algorithm>

namespace PanoHost
{

namespace
{

std::optional<PhotoReading> readingOf(const QString &path)
{
    Result<PhotoReading> reading = readPhoto(path);
    return reading ? std::optional<PhotoReading>(reading.value()) : std::nullopt;
}

QImage scaledTo(const QImage &picture, int side)
{
    const bool isLarger = std::max(picture.width(), picture.height()) > side;
    const QImage scaled = isLarger
        ? picture.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation)
        : picture;
    return scaled.convertToFormat(QImage::Format_RGB32);
}

} // namespace

QImage storedPicture(const QImage &upright, int orientation)
{
    QTransform back;
    switch (orientation) {
    case 2:
        back.scale(-1.0, 1.0);
        break;
    case 3:
        back.rotate(180.0);
        break;
    case 4:
        back.scale(1.0, -1.0);
        break;
    case 5:
        back = QTransform(0.0, 1.0, 1.0, 0.0, 0.0, 0.0);
        break;
    case 6:
        back.rotate(-90.0);
        break;
    case 7:
        back = QTransform(0.0, -1.0, -1.0, 0.0, 0.0, 0.0);
        break;
    case 8:
        back.rotate(90.0);
        break;
    default:
        return upright;
    }
    return upright.transformed(back);
}

ThumbnailLoader::ThumbnailLoader(QObject *parent)
    : QObject(parent)
    , m_source(readingOf)
{
}

ThumbnailLoader::~ThumbnailLoader()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_ends = true;
    }
    m_changed.notify_all();
    for (std::thread &worker : m_workers) {
        worker.join();
    }
}

void ThumbnailLoader::setSource(const PhotoSource &source)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_source = source;
}

void ThumbnailLoader::want(const std::vector<WantedThumbnail> &wanted)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_wanted.assign(wanted.crbegin(), wanted.crend());
    }
    if (m_workers.empty() && !wanted.empty()) {
        for (int i = threadCount(0); i > 0; --i) {
            m_workers.emplace_back([this] { work(); });
        }
    }
    m_changed.notify_all();
}

void ThumbnailLoader::forget()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_wanted.clear();
    m_loaded.clear();
    ++m_shoot;
}

std::vector<LoadedThumbnail> ThumbnailLoader::take()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return std::exchange(m_loaded, {});
}

void ThumbnailLoader::work()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (true) {
        m_changed.wait(lock, [this] { return m_ends || !m_wanted.empty(); });
        if (m_ends) {
            return;
        }
        const WantedThumbnail wanted = m_wanted.back();
        m_wanted.pop_back();
        const PhotoSource source = m_source;
        const int shoot = m_shoot;
        lock.unlock();

        LoadedThumbnail loaded{ wanted.frame, wanted.level, {}, {} };
        if (const auto reading = source(wanted.path)) {
            const QImage stored = storedPicture(reading->thumbnail, reading->info.orientation);
            loaded.picture = scaledTo(stored, kThumbnailSides[wanted.level]);
            loaded.smallest = scaledTo(loaded.picture, kThumbnailSides[0]);
        }

        lock.lock();
        if (shoot == m_shoot && !m_ends) {
            m_loaded.push_back(loaded);
            if (m_loaded.size() == 1) {
                QMetaObject::invokeMethod(this, &ThumbnailLoader::loaded, Qt::QueuedConnection);
            }
        }
    }
}

} // namespace PanoHost
