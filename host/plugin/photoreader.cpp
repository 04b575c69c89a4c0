// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/plugin/photoreader.h"

#include <QFile>
#include <QScopeGuard>

#include <sys/stat.h>

namespace PanoHost
{

PhotoReader::Stamp PhotoReader::Stamp::of(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0) {
        return {};
    }
    const timespec &modified = status.st_mtim;
    return { modified.tv_sec * 1'000'000'000LL + modified.tv_nsec, status.st_size };
}

PhotoReader::PhotoReader(ThumbnailStore &store)
    : m_store(store)
{
}

PhotoReader::~PhotoReader()
{
    {
        const std::lock_guard lock(m_mutex);
        m_ahead.clear();
        m_ends = true;
        m_changed.notify_all();
    }
    for (std::thread &worker : m_workers) {
        worker.join();
    }
}

void PhotoReader::setReadsPictures(bool reads)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_readsPictures == reads) {
            return;
        }
        m_readsPictures = reads;
    }
    forget();
}

void PhotoReader::shareThumbnails(std::shared_ptr<const DesktopThumbnails> thumbnails)
{
    const std::lock_guard lock(m_mutex);
    m_shared = std::move(thumbnails);
}

void PhotoReader::readAhead(const QStringList &paths)
{
    const std::lock_guard lock(m_mutex);
    m_ahead = paths;
    m_next = 0;
    while (m_workers.size() < std::thread::hardware_concurrency()) {
        m_workers.emplace_back([this] { work(); });
    }
    m_changed.notify_all();
}

void PhotoReader::stop()
{
    const std::lock_guard lock(m_mutex);
    m_ahead.clear();
}

PhotoReader::Answer PhotoReader::read(const QString &path)
{
    const Stamp stamp = Stamp::of(path);
    bool withPicture = false;
    std::shared_ptr<const DesktopThumbnails> shared;
    {
        std::unique_lock lock(m_mutex);
        auto known = m_entries.constFind(path);
        while (known != m_entries.cend() && known->answer == nullptr) {
            m_changed.wait(lock);
            known = m_entries.constFind(path);
        }
        if (known != m_entries.cend() && known->stamp == stamp) {
            return *known->answer;
        }
        m_entries.insert(path, { stamp, nullptr });
        withPicture = m_readsPictures;
        shared = m_shared;
    }
    std::shared_ptr<const Answer> answer;
    const auto tell = qScopeGuard([&] {
        const std::lock_guard lock(m_mutex);
        if (answer == nullptr) {
            m_entries.remove(path); // memory ran out
        } else {
            m_entries.insert(path, { stamp, answer });
        }
        m_changed.notify_all();
    });
    answer = std::make_shared<const Answer>(readNow(path, withPicture, shared.get()));
    return *answer;
}

PhotoReader::Answer PhotoReader::readNow(const QString &path, bool withPicture,
                                         const DesktopThumbnails *shared) const
{
    if (!withPicture) {
        const Result<PhotoInfo> info = readPhotoInfo(path);
        if (!info) {
            return info.error();
        }
        return std::make_shared<const PhotoData>(m_store, PhotoReading{ info.value(), {} });
    }
    const Result<PhotoReading> reading = readPhoto(path, shared);
    if (!reading) {
        return reading.error();
    }
    return std::make_shared<const PhotoData>(m_store, reading.value());
}

void PhotoReader::forget()
{
    std::unique_lock lock(m_mutex);
    m_ahead.clear();
    m_changed.wait(lock, [this] { return m_busy == 0; });
    m_entries.clear();
}

void PhotoReader::work()
{
    std::unique_lock lock(m_mutex);
    while (!m_ends) {
        if (m_next >= m_ahead.size()) {
            m_changed.wait(lock);
            continue;
        }
        const QString path = m_ahead.at(m_next++);
        ++m_busy;
        lock.unlock();
        try {
            (void)read(path);
        } catch (...) { // NOLINT(bugprone-empty-catch): who asks for the photo meets it again
        }
        lock.lock();
        --m_busy;
        m_changed.notify_all();
    }
}

} // namespace PanoHost
