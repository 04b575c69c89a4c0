// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "hostlink/guarded.h"

#include <QList>
#include <QMutex>
#include <QQueue>
#include <QStringList>
#include <QThread>

class XIApplication;
class XIImageDef;

/**
 * Turns photo files into host image objects, one at a time, off the GUI thread.
 *
 * Each page owns one. All operations are for the GUI thread. The image objects belong to the
 * host; only pointers are kept. Connect `Loaded()` through a queued connection (the automatic
 * type does this for receivers on the GUI thread): the worker emits it while it holds the lock.
 */
class ReadingThread : public QThread
{
    Q_OBJECT

public:
    /** \p parent, which may be null, outlives the thread's use and receives its signals. */
    explicit ReadingThread(QObject *parent);
    /** Drops the work, waits for the photo in hand and emits nothing. */
    ~ReadingThread() override;

    /**
     * Forgets earlier images and reads \p files (full paths) in their order, each once. During a
     * run the image of the photo in hand still joins the new list; call `Clear()` first for a
     * clean one. Without a host nothing is read. A photo that cannot be read or kept is left out.
     */
    void Start(const QStringList &files);
    /** The images read so far, in reading order. */
    [[nodiscard]] QList<XIImageDef *> XIImageDefs();
    /** Whether the `Loaded()` delivered last is the last one of its work: the queue is empty, and
     * no further signal is on its way. */
    [[nodiscard]] bool isLastLoaded();

Q_SIGNALS:
    /** Each tenth image, the last of the queue, and the end of `Clear()`. */
    void Loaded();
    /** A run begins; emitted on the worker thread. */
    void Start();
    /** A run has ended; emitted on the worker thread. */
    void Done();

public Q_SLOTS:
    /**
     * Forgets everything. When it returns, the run has ended, list and queue are empty and
     * `Loaded()` has been emitted once. Waits as long as the host needs for the photo in hand.
     */
    void Clear();

protected:
    void run() override;

private:
    void waitForEnd();
    [[nodiscard]] bool takeNext(QString *file);
    void keep(XIImageDef *image);

    int m_delivered = 0; ///< `Loaded()` signals that have reached the GUI thread
    QMutex m_mutex; ///< guards everything below
    PanoHead::Guarded<int> m_told{ m_mutex, 0 }; ///< `Loaded()` signals emitted
    /** The run ends after the photo in hand, which is dropped. */
    PanoHead::Guarded<bool> m_stop{ m_mutex, true };
    PanoHead::Guarded<QQueue<QString>> m_queue{ m_mutex };
    PanoHead::Guarded<QList<XIImageDef *>> m_images{ m_mutex };
    /** The worker will look at the queue again. */
    PanoHead::Guarded<bool> m_takesWork{ m_mutex, false };
};
