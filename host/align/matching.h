// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/features.h"
#include "host/align/geometry.h"

#include <QPair>

#include <cstdint>
#include <vector>

namespace PanoHost
{

/** How exactly the prediction is believed. Pixels are stored ones; the window is more than 0. */
struct MatchRules {
    double windowPixels = 0.0; ///< a feature's partner lies this near to where it is predicted
    double consensusPixels = 0.0; ///< partners agree with one rotation within this
    double gateDegrees = 0.0; ///< that rotation leaves the predicted one by no more; 0: by any
    int mostPoints = 80; ///< kept, spread over the overlap
    /** Features this near to each other are the same spot: they do not make a match unsure. */
    double sameSpotPixels = 3.0;
};

/** The rules of the first look, from the record alone, for a photo through \p lens. */
[[nodiscard]] MatchRules firstLook(const AlignLens &lens);
/** The rules of the second look, from a solved model. */
[[nodiscard]] MatchRules secondLook(const AlignLens &lens);

/** The rules where nothing is expected: anywhere in the other photo, by any rotation. */
[[nodiscard]] MatchRules anyLook(const AlignLens &lens);

/** A photo's features and how it came by them. */
struct MatchSide {
    const FeatureSet &features;
    const AlignLens &lens;
};

/** Indices of features that show the same spot, and the rotation that they agree on. */
struct PairMatches {
    std::vector<QPair<int, int>>
        pairs; ///< no spot twice, in no particular order; empty: no consensus
    Eigen::Matrix3d rotation
        = Eigen::Matrix3d::Identity(); ///< rays of the first to rays of the second
};

/**
 * Finds spots of \p first again in \p second, where \p predicted expects them: it turns rays of the
 * first camera into rays of the second. Windows and consensus are measured in pixels of the second.
 * Draws are made from \p seed. Any thread; the same answer each time.
 */
[[nodiscard]] PairMatches matchPair(const MatchSide &first, const MatchSide &second,
                                    const Eigen::Matrix3d &predicted, const MatchRules &rules,
                                    std::uint32_t seed);

/**
 * The pairs of views, the smaller index first, in order, whose frames overlap by at least
 * \p leastShare of the narrower one's. Found over an index of directions, in a time that grows with
 * the number of pairs.
 * \param rotations camera to world, and \p lenses one for each of them
 */
[[nodiscard]] std::vector<QPair<int, int>>
overlappingPairs(const std::vector<Eigen::Matrix3d> &rotations,
                 const std::vector<const AlignLens *> &lenses, double leastShare = 0.03);

} // namespace PanoHost
