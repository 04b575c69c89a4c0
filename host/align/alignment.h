// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/alignmentreport.h"
#include "host/model/jobwatch.h"
#include "host/model/panorama.h"
#include "host/model/ptofile.h"
#include "host/model/ptoproject.h"

#include <optional>

namespace PanoHost
{

/** What the user may say about an alignment. */
struct AlignOptions {
    bool freesFocal = true;
    bool freesA = false;
    bool freesB = true;
    bool freesC = false;
    int features = 2112; ///< at most, of a photo
    int workSize = 1600; ///< features are looked for in pictures at most this wide, pixels
    int jobs = 0; ///< photos worked on at a time; 0: as many as there are processors
    bool keepsPoints = false; ///< the control points that the project holds already stay, and count
    std::optional<bool> levels; ///< upright as a whole; nothing: where the head's tilt is not known
    bool photometry = true;
};

/** An aligned project and what was learnt. */
struct Alignment {
    PtoFile project;
    AlignmentReport report;
};

/**
 * Looks for control points in the photos of \p panorama, as its description wants it, and places
 * the photos: the record stays the most likely answer wherever pictures say nothing. No project is
 * read or written. The same input gives the same answer, whatever `jobs` is.
 *
 * Refuses what `projectOf` refuses, and photos none of which can be read.
 */
[[nodiscard]] Result<Alignment> align(const Panorama &panorama, const PtoOptions &projectOptions,
                                      const AlignOptions &options, const JobWatch &watch);

/**
 * The same for a project, ours or Hugin's own. Its recorded angles count, or else the angles it
 * has; pairs are those that have control points in a project that was aligned before, or else those
 * that overlap.
 */
[[nodiscard]] Result<Alignment> align(const PtoFile &project, const AlignOptions &options,
                                      const JobWatch &watch);

} // namespace PanoHost
