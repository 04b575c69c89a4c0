// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

/**
 * A counting semaphore by which a test holds a photo back and lets it go.
 *
 * Made of the standard library's parts, because a race detector sees through those and not through
 * the uninstrumented ones of Qt.
 */
class Gate
{
public:
    /** Lets \p count waiting or coming passes through. */
    void open(int count = 1)
    {
        const std::lock_guard lock(m_mutex);
        m_permits += count;
        m_changed.notify_all();
    }

    /** Blocks until a pass is there and takes it. */
    void pass()
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_permits > 0; });
        --m_permits;
    }

    /** As pass(), for at most \p limit; false when no pass came. */
    [[nodiscard]] bool passWithin(std::chrono::milliseconds limit)
    {
        std::unique_lock lock(m_mutex);
        if (!m_changed.wait_for(lock, limit, [this] { return m_permits > 0; })) {
            return false;
        }
        --m_permits;
        return true;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_permits = 0;
};
