// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/common/shotorder.h"

#include "plugin/xiimagedef.h"

#include <algorithm>

namespace PanoHead
{

bool continues(const QList<XIImageDef *> &images, const QList<XIImageDef *> &seen)
{
    return images.size() >= seen.size() && std::equal(seen.cbegin(), seen.cend(), images.cbegin());
}

const QList<XIImageDef *> &ShotOrder::update(const QList<XIImageDef *> &images)
{
    try {
        if (!continues(images, m_seen)) {
            forget();
        }
        take(images);
    } catch (...) {
        forget();
        throw;
    }
    return m_hasEqualTimes && m_equalTimes == EqualTimes::GiveUp ? m_seen : m_ordered;
}

void ShotOrder::take(const QList<XIImageDef *> &images)
{
    bool inOrder = true;
    for (int i = m_seen.size(); i < images.size(); ++i) {
        const Entry entry{ images.at(i)->ShotTime(), images.at(i) };
        inOrder = inOrder && (m_entries.empty() || m_entries.back().time <= entry.time);
        m_hasEqualTimes
            = m_hasEqualTimes || (!m_entries.empty() && m_entries.back().time == entry.time);
        m_entries.push_back(entry);
        if (inOrder) {
            m_ordered.append(entry.image);
        }
    }
    m_seen = images;
    if (!inOrder) {
        sort();
    }
}

void ShotOrder::sort()
{
    std::stable_sort(m_entries.begin(), m_entries.end(),
                     [](const Entry &a, const Entry &b) { return a.time < b.time; });
    const auto sameTime = [](const Entry &a, const Entry &b) { return a.time == b.time; };
    m_hasEqualTimes
        = std::adjacent_find(m_entries.cbegin(), m_entries.cend(), sameTime) != m_entries.cend();
    m_ordered.clear();
    m_ordered.reserve(static_cast<int>(m_entries.size()));
    for (const Entry &entry : m_entries) {
        m_ordered.append(entry.image);
    }
}

} // namespace PanoHead
