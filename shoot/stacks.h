// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QVector>

struct ShootData;
struct StructuredPanoramaProperties;

namespace PanoHead
{

/**
 * Appends one stack per position, of \p bracketCount photos side by side in \p images. Photos left
 * over behind the last whole stack are ignored. A count below 1 is no bracketing.
 */
void appendStacks(StructuredPanoramaProperties &description, const QStringList &images,
                  int bracketCount);

/**
 * Appends the links between neighbouring stacks of \p photoCount photos, as far as \p shots, one
 * per photo, reach. A stack points where its first shot points. As `appendNeighbourLinks`, for
 * photos of \p focalMm (35 mm equivalent).
 */
void appendStackLinks(StructuredPanoramaProperties &description, const QVector<ShootData> &shots,
                      int photoCount, int bracketCount, float focalMm);

} // namespace PanoHead
