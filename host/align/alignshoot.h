// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/alignment.h"
#include "host/align/headmodel.h"
#include "host/align/solver.h"

#include <QPair>
#include <QVector>

#include <vector>

namespace PanoHost
{

/** How a head writes down where it points. */
enum class RecordKind {
    Angles,
    NoRoll, ///< nobody knows how the camera is rolled on it
    WholeDegrees, ///< like `NoRoll`, and fractions of a degree were cut off
    Grid, ///< steps and tilt are not recorded, only the order
};

/** As a project carries it: "angles", "noroll", "whole", "grid"; other words are "angles". */
[[nodiscard]] QString recordKindName(RecordKind kind);
[[nodiscard]] RecordKind recordKindNamed(const QString &name);

/** Pairs of numbers, each once, the smaller one first, in ascending order. */
using IndexPairs = std::vector<QPair<int, int>>;

/** Another order in which a grid may have been swept. */
struct GridOrder {
    QString name; ///< on the command line
    std::vector<Angles> directions; ///< one per position
};

/** What page and user want of an alignment. */
struct AlignPlan {
    RecordKind kind = RecordKind::Angles;
    bool detects = true; ///< looks for control points at all
    bool places = true; ///< moves photos; otherwise only points are found
    bool cleans = true; ///< leaves wrong points out; otherwise they are kept and marked
    bool trustsRecord = true; ///< otherwise the record is where the search begins, no more
    bool usesAllLevels = false; ///< of stacks, between positions
    IndexPairs positionPairs; ///< the only ones that may be tied; empty: those that overlap
    IndexPairs imagePairs; ///< the same by images; of a project that was aligned before
    QString gridOrder; ///< the order that the user stated; empty: no grid, or not known
    std::vector<GridOrder> otherOrders;
};

[[nodiscard]] AlignPlan planOf(const Panorama &panorama, bool ignoreExifRotation = false);
[[nodiscard]] AlignPlan planOf(const PtoFile &project);

/** The images of a project as views of a head. */
struct AlignShoot {
    HeadModel model;
    std::vector<int> viewOfImage; ///< hard-linked levels of a stack share one view
    std::vector<int> imageOfView; ///< the first that has it
    std::vector<std::vector<int>> positions; ///< images of each stack, the reference level first
};

[[nodiscard]] AlignShoot shootOf(const PtoFile &project);

/** The shoot if it was swept in \p order. */
[[nodiscard]] AlignShoot reordered(AlignShoot shoot, const GridOrder &order);

/** The images to be matched, by \p plan. */
[[nodiscard]] IndexPairs imagePairs(const AlignShoot &shoot, const AlignPlan &plan);

/** How far \p plan trusts the record. */
[[nodiscard]] SolveOptions trustOf(const AlignPlan &plan, const AlignOptions &options);

} // namespace PanoHost
