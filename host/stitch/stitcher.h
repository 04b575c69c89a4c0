// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/stitch/toolrun.h"

#include <QImage>
#include <QVector>

namespace PanoHost
{

/** A Hugin project to be stitched as it is, without any optimisation. */
struct StitchJob {
    QString projectPath;
    QSize canvas; ///< the whole panorama that the project describes, pixels
    bool fullTurn = true; ///< its left and right edges meet
    /** The project's images to use, counted from 0: the reference exposures of brackets. */
    QVector<int> images;
};

/**
 * Warps the photos with nona and blends them with verdandi, in a temporary folder that is gone
 * afterwards. Answers a picture of the size of the canvas, transparent where no photo reaches.
 */
[[nodiscard]] Result<QImage> stitch(const StitchJob &job, const JobWatch &watch);

} // namespace PanoHost
