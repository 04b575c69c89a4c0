// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/view/thumbnailcache.h"

#include <algorithm>
#include <limits>

namespace PanoHost
{

namespace
{

/** A thumbnail may be drawn half as large again before a larger one is worth its room. */
constexpr float kStretch = 1.5F;

int levelFor(float side)
{
    int level = 0;
    while (level + 1 < kThumbnailLevels
           && side > kStretch * static_cast<float>(kThumbnailSides[level])) {
        ++level;
    }
    return level;
}

} // namespace

void ThumbnailCache::reset(int frames)
{
    m_frames.assign(static_cast<size_t>(frames), {});
    m_bytes = 0;
}

void ThumbnailCache::put(const LoadedThumbnail &loaded)
{
    Entry &entry = m_frames[static_cast<size_t>(loaded.frame)];
    if (loaded.picture.isNull()) {
        entry.isUnreadable = true;
        return;
    }
    entry.levels[0] = loaded.smallest;
    if (loaded.level > 0) {
        QImage &kept = entry.levels[static_cast<size_t>(loaded.level)];
        m_bytes += loaded.picture.sizeInBytes() - kept.sizeInBytes();
        kept = loaded.picture;
        entry.lastUse = std::max(entry.lastUse, m_use);
        trim();
    }
}

QImage ThumbnailCache::pictureFor(const Patch &patch) const
{
    const Entry &entry = m_frames[static_cast<size_t>(patch.frame)];
    const int wanted = levelFor(patch.side);
    // Sharper than needed is better than blurred.
    for (int level = wanted; level < kThumbnailLevels; ++level) {
        if (!entry.levels[static_cast<size_t>(level)].isNull()) {
            return entry.levels[static_cast<size_t>(level)];
        }
    }
    for (int level = wanted; level-- > 0;) {
        if (!entry.levels[static_cast<size_t>(level)].isNull()) {
            return entry.levels[static_cast<size_t>(level)];
        }
    }
    return {};
}

std::vector<WantedThumbnail> ThumbnailCache::wantedFor(const DrawList &list,
                                                       const ShootScene &scene)
{
    ++m_use;
    std::vector<WantedThumbnail> wanted;
    std::vector<bool> isSeen(m_frames.size(), false);
    std::array<int, kThumbnailLevels> room{ std::numeric_limits<int>::max(), kMostMiddle,
                                            kMostLarge };
    for (auto patch = list.patches.crbegin(); patch != list.patches.crend(); ++patch) {
        const auto frame = static_cast<size_t>(patch->frame);
        Entry &entry = m_frames[frame];
        if (isSeen[frame] || entry.isUnreadable) {
            continue;
        }
        isSeen[frame] = true;
        entry.lastUse = m_use;
        int level = levelFor(patch->side);
        while (room[static_cast<size_t>(level)] == 0) {
            --level;
        }
        --room[static_cast<size_t>(level)];
        const bool isThere = std::any_of(entry.levels.cbegin() + level, entry.levels.cend(),
                                         [](const QImage &picture) { return !picture.isNull(); });
        if (!isThere) {
            wanted.push_back({ patch->frame, scene.frames.at(patch->frame).path, level });
        }
    }
    for (size_t frame = 0; frame < m_frames.size(); ++frame) {
        if (!isSeen[frame] && !m_frames[frame].isUnreadable && m_frames[frame].levels[0].isNull()) {
            const int number = static_cast<int>(frame);
            wanted.push_back({ number, scene.frames.at(number).path, 0 });
        }
    }
    return wanted;
}

void ThumbnailCache::trim()
{
    if (m_bytes <= kMostBytes) {
        return;
    }
    std::vector<Entry *> oldest;
    for (Entry &entry : m_frames) {
        if (entry.lastUse < m_use && (!entry.levels[1].isNull() || !entry.levels[2].isNull())) {
            oldest.push_back(&entry);
        }
    }
    std::sort(oldest.begin(), oldest.end(),
              [](const Entry *a, const Entry *b) { return a->lastUse < b->lastUse; });
    // Some more than needed, so that this is rare.
    for (Entry *entry : oldest) {
        if (m_bytes <= kMostBytes * 3 / 4) {
            break;
        }
        for (const size_t level : { size_t(1), size_t(2) }) {
            m_bytes -= entry->levels[level].sizeInBytes();
            entry->levels[level] = {};
        }
    }
}

} // namespace PanoHost
