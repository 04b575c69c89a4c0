// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "hostlink/readingthread.h"

#include "hostlink/hostapplication.h"
#include "hostlink/xiapplication.h"

#include <QMutexLocker>

#include <utility>

namespace
{

constexpr int kPhotosPerSignal = 10;
constexpr unsigned long kWaitMs = 100;

/** \p files, each once, in their order. */
QQueue<QString> withoutDuplicates(QStringList files)
{
    files.removeDuplicates();
    QQueue<QString> queue;
    queue.append(files);
    // The thread would copy a shared list when it takes the first file, and end the process when
    // there is no memory for that.
    queue.detach();
    return queue;
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
    disconnect(); // so that nobody hears of it
    Clear();
}

void ReadingThread::Start(const QStringList &files)
{
    if (PanoHead::findHost() == nullptr) {
        return;
    }
    // Before locking: it may take long for a record-size shoot.
    QQueue<QString> queue = withoutDuplicates(files);
    {
        const QMutexLocker lock(&m_mutex);
        m_images->clear();
        m_queue->swap(queue);
        *m_stop = false;
        // A thread that the system has refused to make takes no work.
        if (std::exchange(*m_takesWork, true) && isRunning()) {
            return;
        }
    }
    // An earlier run that will not look at the queue again may still be winding down;
    // QThread::start() would do nothing until it has ended.
    waitForEnd();
    start();
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

void ReadingThread::Clear()
{
    {
        const QMutexLocker lock(&m_mutex);
        m_images->clear();
        m_queue->clear();
        *m_stop = true;
        ++*m_told;
    }
    waitForEnd();
    Q_EMIT Loaded();
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
    Q_EMIT Start();
    QString file;
    while (takeNext(&file)) {
        try {
            keep(host == nullptr ? nullptr : host->CreateImageDef(file));
        } catch (...) { // NOLINT(bugprone-empty-catch): one photo is missing, whatever the reason
        }
    }
    Q_EMIT Done();
}

/** The run ends when there is none. */
bool ReadingThread::takeNext(QString *file)
{
    const QMutexLocker lock(&m_mutex);
    *m_takesWork = !m_queue->isEmpty();
    if (*m_takesWork) {
        *file = m_queue->dequeue();
    }
    return *m_takesWork;
}

/** \p image is null for a photo that the host cannot read. */
void ReadingThread::keep(XIImageDef *image)
{
    const QMutexLocker lock(&m_mutex);
    if (image == nullptr || *m_stop) {
        return;
    }
    m_images->append(image);
    if (m_images->size() % kPhotosPerSignal == 0 || m_queue->isEmpty()) {
        Q_EMIT Loaded();
        ++*m_told;
    }
}
