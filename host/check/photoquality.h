// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/check/findings.h"
#include "host/check/knownlens.h"
#include "host/model/angles.h"
#include "host/model/jobwatch.h"
#include "host/model/photofile.h"

#include <QVector>

namespace PanoHost
{

/** A photo and the shot that it belongs to. */
struct ShotPhoto {
    PhotoInfo photo;
    int shot = 0; ///< of the record, from 0
    int position = 0; ///< photos of one follow each other
    int level = 0; ///< which exposure of the position
    Angles recorded; ///< where the head pointed
    double turnDegrees = 0.0; ///< of the stored pixels, clockwise about the lens's axis
};

/** What the pictures of a shoot say of themselves. */
struct PhotoQuality {
    /** One for each fault, in the order of the shots, with its photo and shot; topics "bad",
     * "blurred", "exposure" and "moved". */
    QVector<Finding> faults;
    int compared = 0; ///< photos that show something of what a neighbour shows
};

/**
 * Looks for photos that should be taken again: damaged ones; those that are less sharp than what
 * their neighbours show of the same, at the same level; whose exposure is another than that of the
 * others of their level, or that are black or white where their neighbours are not; and those that
 * were turned since the photo before them at the same position. What shows no detail is never said
 * to be blurred. Opens each picture once, some at a time as memory allows, on \p jobs threads (0:
 * one for each processor). Throws `interruption()`.
 */
[[nodiscard]] PhotoQuality qualityOf(const QVector<ShotPhoto> &photos, const KnownLens &lens,
                                     const JobWatch &watch = {}, int jobs = 0);

} // namespace PanoHost
