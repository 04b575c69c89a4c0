// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/headmodel.h"
#include "host/model/jobwatch.h"

#include <vector>

namespace PanoHost
{

/** How far the record is trusted at first, and what else may change. Standard deviations. */
struct SolveOptions {
    Angles play{ 0.35, 0.35, 0.2 }; ///< of each photo around the record, degrees
    bool learnsPlay = true; ///< the head's real play takes the place of `play` once it is known
    double stackDegrees = 0.02; ///< of a level around its stack
    /** Recorded yaws and pitches are whole degrees, cut off toward zero: corrections away from zero
     * by up to one degree are free (half of one is where photos without points go), others are
     * trusted as `play` says. */
    bool cutOff = false;
    bool freesFocal = true;
    bool freesA = false;
    bool freesB = false;
    bool freesC = false;
    double focalShare = 0.03; ///< of the focal length
    /** What the lenses are trusted to be, one per lens of the model; empty: as the model has them.
     * A second solve names the first one's here, so that its own answer does not become the record.
     */
    std::vector<AlignLens> recordedLenses;
    double mountPitchDegrees = 1.0; ///< 20 where nobody has recorded the tilt
    double mountRollDegrees = 1.5;
    bool freesScales = false; ///< of grids whose steps nobody has recorded
    double scaleShare = 0.3;
    double lossPixels = 1.0; ///< residuals from here on count less; learnt from the points on
};

struct SolveResult {
    /** Residual of each point, pixels of its second photo; infinite where the lens does not see it.
     */
    std::vector<double> residuals;
    double sigmaPixels
        = 0.0; ///< the learnt scale of the residuals; beyond 4 of them a point is wrong
    /** The head's, learnt from the photos that are tied down, standard deviation; as given when it
     * was not. */
    Angles play;
    bool playKnown = false;
};

/**
 * Fits \p model to \p points, all photos at once: the most likely answer when corrections, lens,
 * mount and scales are as far off as \p options say and points are mostly right. Photos without
 * points stay where record, mount and scales put them. One thread; the same input gives the same
 * answer. Throws `interruption()` when the user wants to stop.
 */
[[nodiscard]] SolveResult solve(HeadModel &model, const std::vector<TiePoint> &points,
                                const SolveOptions &options, const JobWatch &watch = {});

} // namespace PanoHost
