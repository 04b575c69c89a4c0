// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "hostlink/readingthread.h"

#include "hostlink/hostapplication.h"
#include "hostlink/xiapplication.h"

#include <QHash>
#include <QMutexLocker>

#include <new>
#include <utility>
#include <vector>

namespace
{

constexpr int kPhotosPerSignal = 10;
constexpr unsigned long kWaitMs = 100;

/**
 * \p files, each once, in their order. A flat table of their numbers finds the known ones, small
 * enough for a processor's cache: sets of strings keep a node for each, which a shoot of record
 * size scatters all over the memory.
 */
QQueue<QString> withoutDuplicates(const QStringList &files)
{
    constexpr int kFree = -1;
    const auto count = static_cast<std::size_t>(files.size());
    std::size_t places = 16;
    while (2 * places < 3 * count) {
        places *= 2;
    }
    std::vector<int> table(places, kFree);
    std::vector<uint> hashes;
    hashes.reserve(count);
    QQueue<QString> queue;
    queue.reserve(files.size());
    for (int number = 0; number < files.size(); ++number) {
        const QString &file = files.at(number);
        const uint hash = qHash(file, static_cast<uint>(qGlobalQHashSeed()));
        hashes.push_back(hash);
        std::size_t place = hash % places;
        while (table[place] != kFree
               && (hashes[static_cast<std::size_t>(table[place])] != hash
                   || files.at(table[place]) != file)) {
            place = (place + 1) % places;
        }
        if (table[place] == kFree) {
            table[place] = number;
            queue.enqueue(file);
        }
    }
    return queue;
}

/** Null for a photo that the host cannot read; an exception or no host at all counts as that. */
XIImageDef *readPhoto(XIApplication *host, const QString &file)
{
    if (host == nullptr) {
        return nullptr; // it was there when the thread was started
    }
    try {
        return host->CreateImageDef(file);
    } catch (...) {
        return nullptr;
    }
}

/** Whether there was memory for \p step. */
template <typename Step> bool isWithinMemory(const Step &step)
{
    try {
        step();
    } catch (const std::bad_alloc &) {
        return false;
    }
    return true;
}

} // namespace

ReadingThread::ReadingThread(QObject *parent)
    : QThread(parent)
{
    // The first connection of all, delivered with the page's own: its slots find the count right.
    connect(this, &ReadingThread::Loaded, parent != nullptr ? parent : this,
            [this] { ++m_delivered; });
    waitForEnd();
}

ReadingThread::~ReadingThread()
{
    disconnect();
    stop();
}

void ReadingThread::Start(const QStringList &files)
{
    // Both are done before locking: they may take long for a record-size shoot.
    QQueue<QString> queue;
    const bool isQueued = isWithinMemory([&] { queue = withoutDuplicates(files); });
    const bool hasHost = PanoHead::findHost() != nullptr;
    {
        const QMutexLocker lock(&m_mutex);
        forget();
        if (!hasHost) {
            return;
        }
        if (isQueued) {
            m_queue->swap(queue);
            *m_stop = false;
            if (std::exchange(*m_takesWork, true)) {
                return;
            }
        }
    }
    if (!isQueued || !launch()) {
        giveUp();
    }
}

bool ReadingThread::launch()
{
    // An earlier run that will not look at the queue again may still be winding down;
    // QThread::start() would do nothing until it has ended.
    wait();
    start();
    if (isRunning() || isFinished()) {
        return true;
    }
    const QMutexLocker lock(&m_mutex);
    *m_takesWork = false;
    return false;
}

void ReadingThread::giveUp()
{
    {
        const QMutexLocker lock(&m_mutex);
        forget();
        *m_stop = true;
        *m_isShort = true;
        ++*m_told;
    }
    Q_EMIT Loaded();
}

QList<XIImageDef *> ReadingThread::XIImageDefs()
{
    const QMutexLocker lock(&m_mutex);
    return *m_images;
}

bool ReadingThread::isLastLoaded()
{
    const QMutexLocker lock(&m_mutex);
    return m_queue->isEmpty() && m_delivered >= *m_told;
}

bool ReadingThread::takeShortage()
{
    const QMutexLocker lock(&m_mutex);
    return std::exchange(*m_isShort, false);
}

void ReadingThread::Clear()
{
    stop();
    {
        const QMutexLocker lock(&m_mutex);
        ++*m_told;
    }
    Q_EMIT Loaded();
}

void ReadingThread::stop()
{
    {
        const QMutexLocker lock(&m_mutex);
        forget();
        *m_stop = true;
    }
    waitForEnd();
}

/** Everything but whether a run is on. The lock is held. */
void ReadingThread::forget()
{
    m_images->clear();
    m_queue->clear();
    *m_owesLoaded = false;
    *m_isShort = false;
}

void ReadingThread::waitForEnd()
{
    while (isRunning()) {
        wait(kWaitMs);
    }
}

void ReadingThread::run()
{
    XIApplication *host = PanoHead::findHost();
    // A receiver on another thread costs memory; one that does not get this misses no photo.
    isWithinMemory([this] { Q_EMIT Start(); });
    QString file;
    for (Work work = takeNext(&file); work != Work::None; work = takeNext(&file)) {
        if (work == Work::Photo) {
            keep(readPhoto(host, file));
        } else {
            msleep(kWaitMs);
        }
    }
    isWithinMemory([this] { Q_EMIT Done(); });
}

ReadingThread::Work ReadingThread::takeNext(QString *file)
{
    const QMutexLocker lock(&m_mutex);
    if (*m_owesLoaded && !*m_stop) {
        tellLoaded();
    }
    if (*m_stop || (m_queue->isEmpty() && !*m_owesLoaded)) {
        *m_takesWork = false;
        return Work::None;
    }
    if (m_queue->isEmpty()) {
        return Work::Pause;
    }
    *file = m_queue->dequeue();
    return Work::Photo;
}

void ReadingThread::keep(XIImageDef *image)
{
    const QMutexLocker lock(&m_mutex);
    if (image == nullptr || *m_stop) {
        return;
    }
    if (!isWithinMemory([&] { m_images->append(image); })) {
        // The photos chosen cannot all be had any more; more of them would only cost more memory.
        m_queue->clear();
        *m_isShort = true;
    }
    if (m_images->size() % kPhotosPerSignal == 0 || m_queue->isEmpty()) {
        tellLoaded();
    }
}

/** The lock is held. */
void ReadingThread::tellLoaded()
{
    *m_owesLoaded = !isWithinMemory([this] { Q_EMIT Loaded(); });
    if (!*m_owesLoaded) {
        ++*m_told;
    }
}
