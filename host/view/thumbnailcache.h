// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/view/drawlist.h"
#include "host/view/thumbnailloader.h"

#include <array>
#include <vector>

namespace PanoHost
{

/** The thumbnails of a shoot's frames, each in the sizes that were of use, within bounds. */
class ThumbnailCache
{
public:
    /** Bytes of all but the smallest ones, of which each frame keeps its own. */
    static constexpr qint64 kMostBytes = 96LL * 1024 * 1024;
    /** Frames that get large and middle-sized ones at a time; others get the next smaller size. */
    static constexpr int kMostLarge = 320;
    static constexpr int kMostMiddle = 3000;

    /** Forgets all; from now on there are \p frames frames. */
    void reset(int frames);
    void put(const LoadedThumbnail &loaded);
    /** What comes nearest to the size that \p patch asks for; null: nothing yet. */
    [[nodiscard]] QImage pictureFor(const Patch &patch) const;
    [[nodiscard]] bool isUnreadable(int frame) const
    {
        return m_frames[static_cast<size_t>(frame)].isUnreadable;
    }

    /** What \p list shows and is not there, the front ones first, then the smallest ones of all
     * frames. What it shows is kept longer than the rest. */
    [[nodiscard]] std::vector<WantedThumbnail> wantedFor(const DrawList &list,
                                                         const ShootScene &scene);
    [[nodiscard]] qint64 bytes() const { return m_bytes; }

private:
    struct Entry {
        std::array<QImage, kThumbnailLevels> levels;
        qint64 lastUse = 0;
        bool isUnreadable = false;
    };

    void trim();

    std::vector<Entry> m_frames;
    qint64 m_bytes = 0;
    qint64 m_use = 0;
};

} // namespace PanoHost
