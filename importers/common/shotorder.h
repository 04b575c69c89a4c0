// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

#include <vector>

class XIImageDef;

namespace PanoHead
{

/** What photos with the same capture time do to the chronological order. */
enum class EqualTimes {
    KeepReadingOrder, ///< they stand in reading order among themselves
    GiveUp, ///< the whole list stays in reading order
};

/** Whether \p images begins with all of \p seen: photos have only been added. */
[[nodiscard]] bool continues(const QList<XIImageDef *> &images, const QList<XIImageDef *> &seen);

/**
 * Photos by their `ShotTime()`; none is lost. They arrive in small numbers behind those already
 * known; only the new ones are asked, and only a photo that is older than one before costs a sort.
 */
class ShotOrder
{
public:
    explicit ShotOrder(EqualTimes equalTimes)
        : m_equalTimes(equalTimes)
    {
    }

    /** \p images, which stand in reading order, in chronological order. Without memory for the
     * answer it throws std::bad_alloc and knows no photos. */
    const QList<XIImageDef *> &update(const QList<XIImageDef *> &images);
    /** The photos known so far may be gone. */
    void forget() { *this = ShotOrder(m_equalTimes); }

private:
    struct Entry {
        long time;
        XIImageDef *image;
    };

    void take(const QList<XIImageDef *> &images);
    void sort();

    EqualTimes m_equalTimes;
    QList<XIImageDef *> m_seen; // reading order
    std::vector<Entry> m_entries; // chronological
    bool m_hasEqualTimes = false;
    QList<XIImageDef *> m_ordered; // the answer
};

} // namespace PanoHead
