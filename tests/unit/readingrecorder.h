// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "hostlink/readingthread.h"
#include "tests/support/fakehost.h"
#include "tests/support/gate.h"

#include <QList>
#include <QStringList>

#include <mutex>

inline QStringList namesOf(const QList<XIImageDef *> &images)
{
    QStringList names;
    for (XIImageDef *image : images) {
        names.append(static_cast<FakeImage *>(image)->fileName());
    }
    return names;
}

/** A photo that stays in the host's hands until the test lets it go. */
inline FakePhoto heldBack(Gate *enter, Gate *leave)
{
    FakePhoto photo;
    photo.enter = enter;
    photo.leave = leave;
    return photo;
}

/**
 * Writes down the thread's signals where they are emitted, on the worker thread: the name, for
 * Loaded with the number of photos that the host has given out by then.
 */
class Recorder
{
public:
    explicit Recorder(ReadingThread *thread)
    {
        QObject::connect(
            thread, qOverload<>(&ReadingThread::Start), thread,
            [this] { append(QStringLiteral("Start")); }, Qt::DirectConnection);
        QObject::connect(
            thread, &ReadingThread::Done, thread, [this] { append(QStringLiteral("Done")); },
            Qt::DirectConnection);
        QObject::connect(
            thread, &ReadingThread::Loaded, thread,
            [this] { append(QStringLiteral("Loaded %1").arg(fakeHost().images().size())); },
            Qt::DirectConnection);
    }

    [[nodiscard]] QStringList signalsSoFar() const
    {
        const std::lock_guard lock(m_mutex);
        return m_signals;
    }

private:
    void append(const QString &entry)
    {
        const std::lock_guard lock(m_mutex);
        m_signals.append(entry);
    }

    mutable std::mutex m_mutex;
    QStringList m_signals;
};
