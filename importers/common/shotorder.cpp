// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/common/shotorder.h"

#include "plugin/xiimagedef.h"

#include <QVector>

#include <algorithm>

namespace PanoHead
{

QList<XIImageDef *> byShotTime(const QList<XIImageDef *> &images, EqualTimes equalTimes)
{
    struct Entry {
        long time;
        XIImageDef *image;
    };
    QVector<Entry> entries;
    entries.reserve(images.size());
    for (XIImageDef *image : images) {
        entries.append({ image->ShotTime(), image });
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [](const Entry &a, const Entry &b) { return a.time < b.time; });
    const auto sameTime = [](const Entry &a, const Entry &b) { return a.time == b.time; };
    if (equalTimes == EqualTimes::GiveUp
        && std::adjacent_find(entries.cbegin(), entries.cend(), sameTime) != entries.cend()) {
        return images;
    }
    QList<XIImageDef *> ordered;
    ordered.reserve(entries.size());
    for (const Entry &entry : entries) {
        ordered.append(entry.image);
    }
    return ordered;
}

} // namespace PanoHead
