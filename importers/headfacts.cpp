// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/headfacts.h"

#include <algorithm>

namespace PanoHead
{

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
