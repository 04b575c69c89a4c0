// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/headfacts.h"

#include "model/shootdata.h"

#include <algorithm>

namespace PanoHead
{

QVector<NotedShot> notedShots(const QVector<ShootData> &shots)
{
    QVector<NotedShot> noted;
    noted.reserve(shots.size());
    for (const ShootData &shot : shots) {
        noted += { static_cast<double>(shot.yaw),
                   static_cast<double>(shot.pitch),
                   static_cast<double>(shot.roll),
                   0,
                   {} };
    }
    return noted;
}

bool HeadFacts::isRecord(const QString &path) const
{
    const QString ending = QString::fromLatin1(record);
    return !isGrid()
        && path.endsWith(ending.mid(ending.lastIndexOf(QLatin1Char('.'))), Qt::CaseInsensitive);
}

const HeadFacts *headFactsOf(const QString &name)
{
    const std::vector<const HeadFacts *> heads = allHeadFacts();
    const auto head = std::find_if(heads.begin(), heads.end(),
                                   [&name](const HeadFacts *row) { return row->name() == name; });
    return head == heads.end() ? nullptr : *head;
}

} // namespace PanoHead
