// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "model/structuredpanoramaproperties.h"

#include <QHash>
#include <QObject>
#include <QPointer>

namespace PanoHost
{

/** How long the lists of a description are. */
struct DeliverySizes {
    int groups = 0;
    int links = 0;
    int yaw = 0;
    int pitch = 0;
    int roll = 0;
};

/** The list lengths of \p description. */
[[nodiscard]] DeliverySizes sizesOf(const StructuredPanoramaProperties &description);

/**
 * What the last hand-over added to \p description, when the one before it from the same page had
 * the sizes \p previous: the new groups, links and angles, and all other fields as they are.
 *
 * Pages append at each Next and never clear, and the links of a hand-over count its own positions
 * from 0; so the result is complete in itself. A list that is now shorter than before comes from
 * a page that started afresh: then the whole description is new.
 */
[[nodiscard]] StructuredPanoramaProperties
appendedSince(const StructuredPanoramaProperties &description, const DeliverySizes &previous);

/** Remembers the sizes of the last hand-over of each page. GUI thread. */
class DeliveryLog
{
public:
    /**
     * What \p page (any object that lives as long as the page does) has just added. A page that
     * was never seen before, or one made anew at the address of a deleted one, starts from zero.
     */
    [[nodiscard]] StructuredPanoramaProperties take(QObject *page,
                                                    const StructuredPanoramaProperties &delivered);

private:
    struct Entry {
        QPointer<QObject> page;
        DeliverySizes sizes;
    };
    QHash<QObject *, Entry> m_entries;
};

} // namespace PanoHost
