// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace PanoHost
{

/**
 * While one lives, its thread reads zeros where a mapped file was cut off or its medium was pulled
 * out, instead of ending the process. Decoders map files of their own accord.
 */
class LostPageGuard
{
public:
    LostPageGuard();
    ~LostPageGuard();
    LostPageGuard(const LostPageGuard &) = delete;
    LostPageGuard &operator=(const LostPageGuard &) = delete;

    /** Prepares the process; once, before any thread is started. */
    static void install();

    /** Whether zeros stood in for anything so far. */
    [[nodiscard]] bool lostAny() const;

private:
    int m_before;
};

} // namespace PanoHost
