// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "shoot/photofacts.h"

namespace PanoHead
{

/** How the photos can differ from the record. */
enum class Mismatch {
    None,
    Bracketing, ///< the photo count is not a multiple of the bracket count
    Count, ///< as many photos as recorded shots are needed
    FocalLength, ///< more than a tenth apart
    LensType,
};

/** One side of the comparison. */
struct ShootFacts {
    int count = -1; ///< recorded shots or chosen photos; below 1: nothing there yet
    LensFacts lens;
};

/** Focal length of a record that names none. */
constexpr double kNoRecordedFocal = -1.0;

/** Whether \p photos come in whole brackets; a bracket count below 1 is no bracketing. */
[[nodiscard]] bool fillsBrackets(int photos, int bracketCount);

/**
 * The last of the tests in the order of `Mismatch` that finds a difference; only that one is
 * shown. None as long as record or photos are missing.
 */
[[nodiscard]] Mismatch lastMismatch(const ShootFacts &record, int bracketCount,
                                    const ShootFacts &photos);

} // namespace PanoHead
