// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "hostlink/guarded.h"
#include "tests/support/testprogram.h"

#include <QMutexLocker>
#include <QTest>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using PanoHead::Guarded;

namespace
{

/** The signal that ends a process which runs \p work; 0: none. */
template <typename Work> int endsBySignal(const Work &work)
{
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGABRT, SIG_DFL);
        qInstallMessageHandler(nullptr); // QtTest's would count a failure of its own
        work();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}

} // namespace

/** Built with assertions. */
class TestGuarded : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theHolderOfTheLockMayUseTheValue();
    void aUseWithoutTheLockIsReported();
};

void TestGuarded::theHolderOfTheLockMayUseTheValue()
{
    QMutex mutex;
    Guarded<int> value(mutex, 5);
    const QMutexLocker lock(&mutex);
    *value += 2;
    QCOMPARE(*value, 7);
}

void TestGuarded::aUseWithoutTheLockIsReported()
{
    QMutex mutex;
    Guarded<int> value(mutex, 5);
    QCOMPARE(endsBySignal([&value] { *value = 6; }), SIGABRT);
    QCOMPARE(endsBySignal([&value, &mutex] {
                 const QMutexLocker lock(&mutex);
                 *value = 6;
             }),
             0);
}

TEST_CLASS(TestGuarded, QCoreApplication)
#include "tst_guarded.moc"
