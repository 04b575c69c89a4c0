// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

/** While it lives, what is allocated may never be freed. */
class LeaksOfOthers
{
public:
#if defined(__SANITIZE_ADDRESS__)
    LeaksOfOthers()
    {
        __lsan_disable();
    }
    ~LeaksOfOthers()
    {
        __lsan_enable();
    }
#else
    LeaksOfOthers() = default;
    ~LeaksOfOthers() { }
#endif
    LeaksOfOthers(const LeaksOfOthers &) = delete;
    LeaksOfOthers &operator=(const LeaksOfOthers &) = delete;
};
