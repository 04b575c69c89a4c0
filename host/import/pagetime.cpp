// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/pagetime.h"

#include <ctime>

namespace PanoHost
{

namespace
{

struct ThreadState {
    std::chrono::nanoseconds spent{ 0 };
    int depth = 0; ///< of pages that work while another does
    std::chrono::nanoseconds start{ 0 }; ///< of the outermost
};
thread_local ThreadState threadState;

} // namespace

PageTime::PageTime()
{
    if (threadState.depth++ == 0) {
        threadState.start = now();
    }
}

PageTime::~PageTime()
{
    if (--threadState.depth == 0) {
        threadState.spent += now() - threadState.start;
    }
}

std::chrono::nanoseconds PageTime::spent()
{
    return threadState.spent
        + (threadState.depth > 0 ? now() - threadState.start : std::chrono::nanoseconds(0));
}

std::chrono::nanoseconds PageTime::now()
{
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

} // namespace PanoHost
