// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QMutex>

#include <utility>

namespace PanoHead
{

/**
 * A value that only the holder of a mutex may touch. Builds with assertions check at every access
 * that the mutex is held; others cost nothing.
 */
template <typename T> class Guarded
{
public:
    /** \p mutex is not recursive and outlives this object. */
    explicit Guarded(QMutex &mutex, T value = T())
        : m_mutex(mutex)
        , m_value(std::move(value))
    {
    }
    Q_DISABLE_COPY(Guarded)

    [[nodiscard]] T &operator*()
    {
        Q_ASSERT_X(!m_mutex.tryLock(), "Guarded", "used without its lock");
        return m_value;
    }
    [[nodiscard]] T *operator->() { return &**this; }

private:
    QMutex &m_mutex;
    T m_value;
};

} // namespace PanoHead
