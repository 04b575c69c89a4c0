// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/delivery.h"

namespace PanoHost
{

DeliverySizes sizesOf(const StructuredPanoramaProperties &description)
{
    return { description.imageGroups.size(), description.authorizedLinks.size(),
             description.yaw.size(), description.pitch.size(), description.roll.size() };
}

StructuredPanoramaProperties appendedSince(const StructuredPanoramaProperties &description,
                                           const DeliverySizes &previous)
{
    const DeliverySizes now = sizesOf(description);
    const bool startedAfresh = now.groups < previous.groups || now.links < previous.links
        || now.yaw < previous.yaw || now.pitch < previous.pitch || now.roll < previous.roll;
    if (startedAfresh) {
        return description;
    }
    StructuredPanoramaProperties added = description;
    added.imageGroups = description.imageGroups.mid(previous.groups);
    added.authorizedLinks = description.authorizedLinks.mid(previous.links);
    added.yaw = description.yaw.mid(previous.yaw);
    added.pitch = description.pitch.mid(previous.pitch);
    added.roll = description.roll.mid(previous.roll);
    return added;
}

StructuredPanoramaProperties DeliveryLog::take(QObject *page,
                                               const StructuredPanoramaProperties &delivered)
{
    Entry &entry = m_entries[page];
    if (entry.page.isNull()) {
        entry = { page, {} };
    }
    StructuredPanoramaProperties added = appendedSince(delivered, entry.sizes);
    entry.sizes = sizesOf(delivered);
    return added;
}

} // namespace PanoHost
