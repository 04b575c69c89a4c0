// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/latestjob.h"

#include <new>
#include <utility>

namespace PanoHost
{

LatestJob::LatestJob(QObject *parent)
    : QObject(parent)
{
    connect(this, &LatestJob::answered, this, &LatestJob::tellAnswer, Qt::QueuedConnection);
}

LatestJob::~LatestJob()
{
    stop();
    {
        const std::lock_guard lock(m_mutex);
        m_ends = true;
        m_changed.notify_all();
    }
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

void LatestJob::start(Job job)
{
    const std::lock_guard lock(m_mutex);
    ++m_wanted;
    m_job = std::move(job);
    if (m_job && !m_thread.joinable()) {
        m_thread = std::thread([this] { work(); });
    }
    m_changed.notify_all();
}

void LatestJob::work()
{
    std::unique_lock lock(m_mutex);
    while (!m_ends) {
        if (!m_job) {
            m_changed.wait(lock);
            continue;
        }
        const Job job = std::exchange(m_job, {});
        const int number = m_wanted;
        lock.unlock();
        JobWatch watch;
        watch.interrupted = [this, number] { return m_wanted != number; };
        try {
            std::function<void()> answer = job(watch);
            {
                const std::lock_guard guard(m_mutex);
                m_answer = std::move(answer);
                m_answerNumber = number;
            }
            Q_EMIT answered();
        } catch (const CommandError &) { // NOLINT(bugprone-empty-catch): nobody waits for it
        } catch (const std::bad_alloc &) { // NOLINT(bugprone-empty-catch): the page says so
        }
        lock.lock();
    }
}

void LatestJob::tellAnswer()
{
    std::function<void()> answer;
    {
        const std::lock_guard lock(m_mutex);
        if (m_answerNumber == m_wanted) {
            answer = std::exchange(m_answer, {});
        }
    }
    if (answer) {
        answer();
    }
}

} // namespace PanoHost
