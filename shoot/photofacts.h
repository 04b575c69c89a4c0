// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

namespace PanoHead
{

/** A focal length with a lens type, from the photos or from a record. */
struct LensFacts {
    double focalMm = 0.0; ///< 35 mm equivalent; 0 or below when unknown
    int lensType = 0; ///< a `LensModel` value
};

/** What to preset: the photos' facts when they know the focal length, otherwise the record's. */
[[nodiscard]] LensFacts presetLens(const LensFacts &photos, const LensFacts &record);

} // namespace PanoHead
