// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/messages.h"

#include <utility>
#include <variant>

namespace PanoHost
{

/**
 * A value or the reason why there is none.
 *
 * Ask `ok()` (or the object itself as a condition) first: `value()` of a failure and `error()` of
 * a success are programming errors.
 */
template <typename T> class [[nodiscard]] Result
{
public:
    Result(T value)
        : m_content(std::move(value))
    {
    }
    Result(Failure failure)
        : m_content(std::move(failure))
    {
    }

    [[nodiscard]] bool ok() const { return std::holds_alternative<T>(m_content); }
    explicit operator bool() const { return ok(); }

    [[nodiscard]] const T &value() const & { return std::get<T>(m_content); }
    [[nodiscard]] T &value() & { return std::get<T>(m_content); }
    [[nodiscard]] T &&value() && { return std::get<T>(std::move(m_content)); }
    [[nodiscard]] const Failure &error() const { return std::get<Failure>(m_content); }

private:
    std::variant<T, Failure> m_content;
};

} // namespace PanoHost
