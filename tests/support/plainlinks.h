// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "shoot/linksearch.h"

#include <QString>

/**
 * The rules for links once more: one pair after the other, every term worked out anew for every
 * pair. What the search must find, and what it is measured against.
 */
namespace PlainLinks
{

[[nodiscard]] float halfField(float focalMm);

/** Outer positions of a double loop: all, or a sample. */
struct Outer {
    int first = 0;
    int step = 1;
};

[[nodiscard]] QVector<AuthorizedLink> neighbours(const QVector<PanoHead::Direction> &positions,
                                                 float halfField, const Outer &outer = {});
/** The same with sines, cosines and the limit worked out once per position. */
[[nodiscard]] QVector<AuthorizedLink>
neighboursHoisted(const QVector<PanoHead::Direction> &positions, float halfField,
                  const Outer &outer = {});
[[nodiscard]] QVector<AuthorizedLink> close(const QVector<PanoHead::PhotoDirection> &photos);

/** "2:0-1 1:0-2": type and indices of each link, in their order. */
[[nodiscard]] QString text(const QVector<AuthorizedLink> &links);
/** Empty when both lists are the same, otherwise where they part. */
[[nodiscard]] QString difference(const QVector<AuthorizedLink> &links,
                                 const QVector<AuthorizedLink> &expected);

} // namespace PlainLinks
