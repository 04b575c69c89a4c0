// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

/** Marks a slot that writes to widgets as busy; the flag gets its former value back. */
class XNoEvent
{
public:
    explicit XNoEvent(bool &flag)
        : m_flag(flag)
        , m_before(flag)
    {
        m_flag = true;
    }
    ~XNoEvent() { m_flag = m_before; }
    XNoEvent(const XNoEvent &) = delete;
    XNoEvent &operator=(const XNoEvent &) = delete;

private:
    bool &m_flag;
    bool m_before;
};
