// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/result.h"
#include "host/model/vignetting.h"

#include <QRect>
#include <QString>
#include <QVector>

namespace PanoHost
{

/** A photo of a bracket, as libvips' own file (.v) of at least three bands. */
struct HdrLevel {
    QString path;
    /** What a value of 1, white, means as light. */
    double gain = 1.0;
};

/** How the values of photos become light. */
struct HdrCurve {
    bool isLinear = false; ///< they are; otherwise they have the curve of sRGB
    Vignetting vignetting; ///< is taken out
};

/**
 * Joins photos of the same size, taken in the same direction, to the light that they show, and
 * writes it as a TIFF file of 32-bit floats, red, green and blue. Where several levels show a spot
 * without clipping, each counts by the light it has gathered; where none does, the shortest
 * exposure counts.
 */
[[nodiscard]] Result<QString> mergeLevels(const QVector<HdrLevel> &levels, const HdrCurve &curve,
                                          const QString &tiffPath);

/**
 * Joins light that levels showed one by one, each warped onto the part \p place of a canvas of the
 * size \p canvas: as above, where alpha says that a level shows anything. Of four bands, 32-bit
 * floats, is what goes in (.v) and what comes out (TIFF).
 */
[[nodiscard]] Result<QString> mergeWarped(const QVector<HdrLevel> &levels, const QRect &place,
                                          const QSize &canvas, const QString &tiffPath);

} // namespace PanoHost
