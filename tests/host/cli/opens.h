// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFile>
#include <QStringList>
#include <QVector>

#include <array>
#include <map>
#include <sys/inotify.h>
#include <unistd.h>

/** Counts how often each of some files is opened, by whomever. */
class Opens
{
public:
    explicit Opens(const QStringList &paths)
    {
        // Events that are alike and follow each other are one: with those between they are not.
        for (const QString &path : paths) {
            const int watch = inotify_add_watch(m_events, QFile::encodeName(path).constData(),
                                                IN_OPEN | IN_ACCESS | IN_CLOSE);
            m_counts[watch] = 0;
        }
    }
    ~Opens() { close(m_events); }
    Q_DISABLE_COPY(Opens)

    /** Of one file each. */
    [[nodiscard]] QVector<int> counts()
    {
        alignas(inotify_event) std::array<char, 1 << 16> buffer{};
        for (ssize_t size = 0; (size = read(m_events, buffer.data(), buffer.size())) > 0;) {
            for (ssize_t at = 0; at < size;) {
                const auto *event = reinterpret_cast<const inotify_event *>(buffer.data() + at);
                m_counts[event->wd] += (event->mask & IN_OPEN) != 0 ? 1 : 0;
                at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
            }
        }
        QVector<int> counts;
        for (const auto &[watch, count] : m_counts) {
            counts += count;
        }
        return counts;
    }

private:
    const int m_events = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    std::map<int, int> m_counts;
};
