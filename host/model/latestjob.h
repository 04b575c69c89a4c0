// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/jobwatch.h"

#include <QObject>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace PanoHost
{

/** Does one job after the other on a thread of its own; a new one takes the place of those before.
 */
class LatestJob : public QObject
{
    Q_OBJECT
public:
    /** What is done on the thread; what it answers is called on the thread of this object, unless
     * something else was started meanwhile. */
    using Job = std::function<std::function<void()>(const JobWatch &watch)>;

    explicit LatestJob(QObject *parent = nullptr);
    /** Waits until the job has heard that it is to stop. */
    ~LatestJob() override;

    void start(Job job);
    /** Nothing comes of what was started. */
    void stop() { start({}); }

Q_SIGNALS:
    /** From the thread of the jobs to that of this object: `m_answer` is new. */
    void answered();

private:
    void work();
    void tellAnswer();

    std::atomic<int> m_wanted{ 0 }; ///< number of the last job
    std::mutex m_mutex; ///< guards what follows
    std::condition_variable m_changed;
    Job m_job;
    std::function<void()> m_answer;
    int m_answerNumber = 0; ///< of its job
    bool m_ends = false;
    std::thread m_thread;
};

} // namespace PanoHost
