// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/plugin/photoreader.h"

#include <QFile>
#include <QMutexLocker>
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
    stop();
    m_pool.waitForDone();
}

void PhotoReader::setReadsPictures(bool reads)
{
    {
        const QMutexLocker lock(&m_mutex);
        if (m_readsPictures == reads) {
            return;
        }
        m_readsPictures = reads;
    }
    forget();
}

void PhotoReader::shareThumbnails(std::shared_ptr<const DesktopThumbnails> thumbnails)
{
    const QMutexLocker lock(&m_mutex);
    m_shared = std::move(thumbnails);
}

void PhotoReader::readAhead(const QStringList &paths)
{
    const QMutexLocker lock(&m_mutex);
    m_ahead = paths;
    m_next = 0;
    for (; m_workers < std::min(m_pool.maxThreadCount(), paths.size()); ++m_workers) {
        m_pool.start([this] { work(); });
    }
}

void PhotoReader::stop()
{
    const QMutexLocker lock(&m_mutex);
    m_ahead.clear();
}

PhotoReader::Answer PhotoReader::read(const QString &path)
{
    const Stamp stamp = Stamp::of(path);
    bool withPicture = false;
    std::shared_ptr<const DesktopThumbnails> shared;
    {
        const QMutexLocker lock(&m_mutex);
        auto known = m_entries.constFind(path);
        while (known != m_entries.cend() && known->answer == nullptr) {
            m_wasRead.wait(&m_mutex);
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
        const QMutexLocker lock(&m_mutex);
        if (answer == nullptr) {
            m_entries.remove(path); // memory ran out
        } else {
            m_entries.insert(path, { stamp, answer });
        }
        m_wasRead.wakeAll();
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
    stop();
    m_pool.waitForDone();
    const QMutexLocker lock(&m_mutex);
    m_entries.clear();
}

void PhotoReader::work()
{
    for (QString path = takeNext(); !path.isEmpty(); path = takeNext()) {
        try {
            (void)read(path);
        } catch (...) { // NOLINT(bugprone-empty-catch): who asks for the photo meets it again
        }
    }
}

/** Empty, and the worker ends, when nothing is left. */
QString PhotoReader::takeNext()
{
    const QMutexLocker lock(&m_mutex);
    if (m_next >= m_ahead.size()) {
        --m_workers;
        return {};
    }
    return m_ahead.at(m_next++);
}

} // namespace PanoHost
