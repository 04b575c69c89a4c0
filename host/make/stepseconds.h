// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/deliver/deliver.h"
#include "host/make/overallprogress.h"

#include <QSize>
#include <QVector>

namespace PanoHost
{

class PtoFile;

// Seconds that steps take on a machine of two processors; what is off is corrected on the way.
// Sizes in pixels; no kinds: the usual ones.

[[nodiscard]] double alignSeconds(int photos, double megapixelsOfAll);
[[nodiscard]] double stitchSeconds(double megapixelsOfAll, const QSize &canvas);
[[nodiscard]] double deliverSeconds(int kinds, const QSize &picture);

/** How many of \p kinds there are, or would be. */
[[nodiscard]] int usualCount(const QVector<Delivery> &kinds);
/** Of all photos together. */
[[nodiscard]] double megapixelsOf(const PtoFile &project);

/** Stitching and delivering. */
[[nodiscard]] QVector<OverallProgress::Step>
stitchingSteps(double photoMegapixels, const QSize &canvas, const QVector<Delivery> &kinds);

/** From the record on, of photos whose sizes are not known yet. */
[[nodiscard]] QVector<OverallProgress::Step> allSteps(int photos, bool hasRawFiles,
                                                      const QVector<Delivery> &kinds);

} // namespace PanoHost
