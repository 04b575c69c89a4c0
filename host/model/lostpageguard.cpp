// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/lostpageguard.h"

#include <csignal>
#include <cstdint>

#include <sys/mman.h>
#include <unistd.h>

namespace PanoHost
{

namespace
{

struct ThreadState {
    int guards = 0;
    int lostPages = 0;
};
thread_local volatile ThreadState threadState;

std::uintptr_t pageBytes = 0;
struct sigaction previousAction;

void onBusError(int, siginfo_t *info, void *)
{
    if (threadState.guards > 0 && info->si_code == BUS_ADRERR) {
        // NOLINTNEXTLINE(performance-no-int-to-ptr): the page that the address lies in
        void *const page = reinterpret_cast<void *>(reinterpret_cast<std::uintptr_t>(info->si_addr)
                                                    / pageBytes * pageBytes);
        if (::mmap(page, pageBytes, PROT_READ, MAP_FIXED | MAP_PRIVATE | MAP_ANONYMOUS, -1, 0)
            == page) {
            threadState.lostPages = threadState.lostPages + 1;
            return;
        }
    }
    // The instruction runs again, into whatever happens without this handler.
    ::sigaction(SIGBUS, &previousAction, nullptr);
}

} // namespace

LostPageGuard::LostPageGuard()
    : m_before(threadState.lostPages)
{
    threadState.guards = threadState.guards + 1;
}

LostPageGuard::~LostPageGuard()
{
    threadState.guards = threadState.guards - 1;
}

void LostPageGuard::install()
{
    if (pageBytes != 0) {
        return;
    }
    pageBytes = std::uintptr_t(::sysconf(_SC_PAGESIZE));
    struct sigaction action = {};
    action.sa_sigaction = onBusError;
    action.sa_flags = SA_SIGINFO;
    ::sigaction(SIGBUS, &action, &previousAction);
}

bool LostPageGuard::lostAny() const
{
    return threadState.lostPages != m_before;
}

} // namespace PanoHost
