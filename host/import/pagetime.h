// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <chrono>

namespace PanoHost
{

/** While one lives, a plug-in's page works for the host. */
class PageTime
{
public:
    PageTime();
    ~PageTime();
    PageTime(const PageTime &) = delete;
    PageTime &operator=(const PageTime &) = delete;

    /** The processor time that pages have taken so far on this thread. */
    [[nodiscard]] static std::chrono::nanoseconds spent();
    /** The processor time of this thread. */
    [[nodiscard]] static std::chrono::nanoseconds now();
};

} // namespace PanoHost
