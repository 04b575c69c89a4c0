// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

class XIImageDef;

namespace PanoHead
{

/** A focal length with a lens type, from the photos or from a record. */
struct LensFacts {
    double focalMm = 0.0; ///< 35 mm equivalent; 0 or below when unknown
    int lensType = 0; ///< a `LensModel` value
};

/**
 * Mean focal length of the photos and the lens type of the last one. Answers of the host that make
 * no sense (a focal length that is not finite, an unknown lens type) are passed over.
 *
 * Photos arrive in small numbers behind those already known; only the new ones are asked.
 */
class LensTally
{
public:
    /** The facts of \p images. */
    LensFacts update(const QList<XIImageDef *> &images);
    /** The photos known so far may be gone. */
    void forget() { *this = LensTally(); }

private:
    void add(XIImageDef *image);

    QList<XIImageDef *> m_seen;
    double m_focalSum = 0.0;
    int m_focalCount = 0;
    int m_lensType = 0;
};

/** What to preset: the photos' facts when they know the focal length, otherwise the record's. */
[[nodiscard]] LensFacts presetLens(const LensFacts &photos, const LensFacts &record);

} // namespace PanoHead
