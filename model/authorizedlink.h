// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QTypeInfo>
#include <QVector>

/**
 * One pairing of shooting positions between which the host may look for control points.
 *
 * Host interface record: the fields and their order are fixed.
 */
struct AuthorizedLink {
    qint32 linkType = 0; ///< 0 unspecified, 1 below, 2 beside, 3 and 4 the grid's diagonals
    QVector<qint32>
        indices; ///< indices into `imageGroups`; two entries, the first one links to the second
};

// An int and one implicitly shared pointer: lists of a million links grow by memcpy.
Q_DECLARE_TYPEINFO(AuthorizedLink, Q_MOVABLE_TYPE);
