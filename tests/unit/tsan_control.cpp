// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT

// Two threads count together. With the argument "locked" both hold the mutex while they count, with
// "unlocked" only one does: the race detector must be silent about the first and must report the
// second, or its silence about the other tests means nothing.

#include <QMutex>
#include <QMutexLocker>
#include <QThread>

#include <atomic>
#include <cstdio>
#include <cstring>

namespace
{

struct Tally {
    QMutex mutex;
    int count = 0;
    // Relaxed: it tells that the other thread has counted, without ordering anything.
    std::atomic<bool> counted{ false };
};

class Counter : public QThread
{
public:
    explicit Counter(Tally *tally)
        : m_tally(tally)
    {
    }

protected:
    void run() override
    {
        const QMutexLocker lock(&m_tally->mutex);
        ++m_tally->count;
        m_tally->counted.store(true, std::memory_order_relaxed);
    }

private:
    Tally *m_tally;
};

} // namespace

int main(int argc, char *argv[])
{
    const bool locked = argc > 1 && std::strcmp(argv[1], "locked") == 0;
    Tally tally;
    Counter counter(&tally);
    counter.start();
    while (!tally.counted.load(std::memory_order_relaxed)) {
        QThread::yieldCurrentThread();
    }
    if (locked) {
        const QMutexLocker lock(&tally.mutex);
        ++tally.count;
    } else {
        ++tally.count;
    }
    counter.wait();
    std::printf("counted\n");
    return 0;
}
