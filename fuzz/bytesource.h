// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

/** Makes values of a fuzzer's input; zeros when it is used up. */
class ByteSource
{
public:
    ByteSource(const uint8_t *data, size_t size)
        : m_data(data)
        , m_size(size)
    {
    }

    [[nodiscard]] size_t size() const { return m_size; }

    /** Any value of \p T, also those that are not finite. */
    template <typename T> T take()
    {
        T value{};
        const size_t count = std::min(sizeof value, m_size);
        std::memcpy(&value, m_data, count);
        m_data += count;
        m_size -= count;
        return value;
    }

    /** \p first to \p last. */
    int between(int first, int last) { return first + take<uint16_t>() % (last - first + 1); }

    /** A count of up to 15, or now and then of up to \p most. */
    int count(int most)
    {
        const int kind = between(0, 15);
        return between(0, kind == 0 ? most : std::min(most, 15));
    }

    /** An angle in degrees: mostly an ordinary one, sometimes any float at all. */
    float angle()
    {
        const auto kind = take<uint8_t>();
        return kind < 16 ? take<float>() : static_cast<float>(take<int16_t>()) / 64.0F;
    }

private:
    const uint8_t *m_data;
    size_t m_size;
};
