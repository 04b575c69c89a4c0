// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/headmodel.h"
#include "host/model/jobwatch.h"
#include "host/model/vignetting.h"

#include <vector>

namespace PanoHost
{

/** The same spot in two photos, as a `TiePoint`, and how bright each shows it. */
struct LightPoint {
    TiePoint point;
    double lightInFirst = 0.0; ///< linear, 0: black, 1: white
    double lightInSecond = 0.0;
};

struct PhotometryOptions {
    /** What each photo's exposure is said to be, as binary logarithm of the light that it asks for:
     * one more is half as bright a photo. One per view; empty: all the same. */
    std::vector<double> recordedValues;
    double exposureStops = 0.15; ///< how far it may be off, standard deviation
    double vignettingShare = 0.5; ///< of each coefficient, standard deviation
    bool freesVignetting = true;
    double darkest = 0.02; ///< points beyond these say nothing
    double brightest = 0.95;
};

struct Photometry {
    std::vector<double> exposureValues; ///< one per view, as the recorded ones
    std::vector<Vignetting> vignetting; ///< one per lens
    int pointsUsed = 0;
    double sigmaStops = 0.0; ///< learnt: how exactly points agree
};

/**
 * Finds exposures and vignetting from the light of \p points that photos have in common, all photos
 * at once: what is most likely when exposures are nearly what was recorded. Photos without points
 * keep theirs. One thread; the same input gives the same answer. Throws `interruption()` when the
 * user wants to stop.
 */
[[nodiscard]] Photometry solvePhotometry(const std::vector<AlignView> &views,
                                         const std::vector<AlignLens> &lenses,
                                         const std::vector<LightPoint> &points,
                                         const PhotometryOptions &options,
                                         const JobWatch &watch = {});

} // namespace PanoHost
