// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/hostilefiles.h"

QVector<QByteArray> oddNumbers()
{
    return { "",
             " ",
             "abc",
             "5abc",
             "0x10",
             "1_000",
             "5,5",
             "--5",
             "+5",
             " 5 ",
             "00012",
             "12.",
             ".5",
             "-0",
             "nan",
             "NaN",
             "-nan",
             "inf",
             "-inf",
             "INF",
             "infinity",
             "1e308",
             "1e309",
             "1e99999",
             "-1e308",
             "1e-308",
             "1e-45",
             "3.4028235e38",
             "-3.4028235e38",
             "3.5e38",
             "2147483647",
             "2147483648",
             "-2147483648",
             "99999999999",
             "18446744073709551616",
             "\xd9\xa5",
             "\xef\xbc\x95",
             "1e",
             "1e+",
             QByteArray(400, '9'),
             QByteArray(100'000, '9'),
             "0." + QByteArray(100'000, '0') + "1" };
}

QByteArray filledUp(const QByteArray &head, char filling, const QByteArray &tail, int size)
{
    return head + QByteArray(size - head.size() - tail.size(), filling) + tail;
}

QByteArray numbered(int count, const std::function<QByteArray(int)> &part)
{
    QByteArray text;
    for (int i = 0; i < count; ++i) {
        text += part(i);
    }
    return text;
}

void HostileFiles::add(const QByteArray &name, const QByteArray &content)
{
    m_files.append({ name, [content] { return content; }, false });
}

void HostileFiles::addLarge(const QByteArray &name, const std::function<QByteArray()> &content)
{
    m_files.append({ name, content, true });
}
