// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/interrupt.h"

#include "host/model/jobwatch.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace PanoHost
{

namespace
{

volatile std::sig_atomic_t signalSeen = 0;
std::array<int, 2> wakePipe{ { -1, -1 } };

void onSignal(int)
{
    if (signalSeen != 0) {
        _exit(static_cast<int>(ExitCode::Interrupted));
    }
    signalSeen = 1;
    const char wake = 0;
    // The answer is of no use in a signal handler: when the pipe is full, the loop wakes anyway.
    [[maybe_unused]] const ssize_t written = write(wakePipe[1], &wake, 1);
}

void setHandler(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
}

} // namespace

Interrupt::Interrupt(QObject *parent)
    : QObject(parent)
{
    if (pipe2(wakePipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    auto *notifier = new QSocketNotifier(wakePipe[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        notifier->setEnabled(false);
        Q_EMIT interrupted();
    });
    setHandler(onSignal);
    // A file that may not grow further is then an error like a full disk, not the end of us.
    std::signal(SIGXFSZ, SIG_IGN);
}

Interrupt::~Interrupt()
{
    if (wakePipe[0] < 0) {
        return;
    }
    setHandler(SIG_DFL);
    close(wakePipe[0]);
    close(wakePipe[1]);
    wakePipe = { { -1, -1 } };
}

bool Interrupt::requested()
{
    return signalSeen != 0;
}

void Interrupt::check()
{
    if (requested()) {
        throw CommandError(interruption());
    }
}

} // namespace PanoHost
