// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "shoot/mismatch.h"

#include <QString>

class MerlinToSPP;

namespace PanoHead
{

struct ShootState;

// What the pages for records in the Papywizard schema do with generator and state.

/**
 * Parses the record at \p path and measures it. On failure the shot count is -1 and the extents
 * stay as they are; false.
 */
bool readRecord(MerlinToSPP &generator, ShootState &state, const QString &path);

/** Back to "nothing chosen". What the generator has appended to its description stays. */
void forgetShoot(MerlinToSPP &generator, ShootState &state);

/** Takes focal length and lens type over from the photos and answers what to preset from both. */
[[nodiscard]] LensFacts adoptPhotos(ShootState &state, const MerlinToSPP &generator,
                                    const LensFacts &photos);

/** Title, location and comment on a line each, for the record's tool tip. Show it as plain text
 * only. */
[[nodiscard]] QString headerText(const MerlinToSPP &generator);

[[nodiscard]] Mismatch mismatchOf(const MerlinToSPP &generator, const ShootState &state);

} // namespace PanoHead
