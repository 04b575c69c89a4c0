// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/parallel.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace PanoHost
{

namespace
{

/** The rows of one call, handed out one by one. */
class Rows
{
public:
    Rows(int count, const std::function<void(int row)> &work)
        : m_count(count)
        , m_work(work)
    {
    }

    /** Does rows until there are none left. */
    void work()
    {
        for (int row = m_next++; row < m_count; row = m_next++) {
            tryTo([&] { m_work(row); });
            const std::lock_guard<std::mutex> lock(m_mutex);
            ++m_done;
            if (hasEnded()) {
                m_end.notify_one();
            }
        }
    }

    /** Calls \p watch, at least once, until all rows are done or none is to be begun any more. */
    void watch(const std::function<void(int done)> &watch)
    {
        constexpr std::chrono::milliseconds kPause(100);
        std::unique_lock<std::mutex> lock(m_mutex);
        do {
            const int done = m_done;
            lock.unlock();
            tryTo([&] { watch(done); });
            lock.lock();
        } while (!m_end.wait_for(lock, kPause, [this] { return hasEnded(); }));
    }

    void rethrow() const
    {
        if (m_thrown) {
            std::rethrow_exception(m_thrown);
        }
    }

private:
    /** Under the mutex. */
    [[nodiscard]] bool hasEnded() const { return m_done == m_count || m_thrown; }

    template <typename Step> void tryTo(Step step)
    {
        try {
            step();
        } catch (...) {
            m_next = m_count;
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_thrown = m_thrown ? m_thrown : std::current_exception();
        }
    }

    const int m_count;
    const std::function<void(int row)> &m_work;
    std::atomic<int> m_next{ 0 };
    std::mutex m_mutex;
    std::condition_variable m_end;
    int m_done = 0;
    std::exception_ptr m_thrown; ///< the first
};

} // namespace

int threadCount(int jobs)
{
    return jobs > 0 ? jobs : static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
}

void forEachRow(int rows, const std::function<void(int row)> &work, int jobs,
                const std::function<void(int done)> &watch)
{
    Rows all(rows, work);
    std::vector<std::thread> helpers;
    for (int i = watch ? 0 : 1; i < std::min(threadCount(jobs), rows); ++i) {
        helpers.emplace_back([&] { all.work(); });
    }
    if (watch) {
        all.watch(watch);
    } else {
        all.work();
    }
    for (std::thread &helper : helpers) {
        helper.join();
    }
    all.rethrow();
}

} // namespace PanoHost
