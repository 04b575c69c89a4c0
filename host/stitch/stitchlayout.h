// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/ptofile.h"
#include "host/stitch/panoramastitch.h"

#include <QRect>
#include <QVector>

namespace PanoHost
{

/** A project as it is stitched: where everything lies, in pixels. */
struct StitchLayout {
    explicit StitchLayout(PtoFile file)
        : project(std::move(file))
    {
    }

    PtoFile project; ///< turned as wished
    QSize canvas; ///< of the size wished
    double horizontalFovDegrees = 360.0; ///< of the canvas
    double yawCentreDegrees = 0.0; ///< of the head, in the canvas's middle
    QRect area; ///< of the canvas: the picture
    double exposure = 0.0; ///< how bright the panorama becomes, EV
    QVector<QVector<int>> stacks; ///< images of each position that are used, the reference first

    [[nodiscard]] bool isFullTurn() const { return horizontalFovDegrees >= 360.0; }
    [[nodiscard]] QSize sphere() const;
    /** The panorama line of a project for nona that gets as bright as a photo of \p value. */
    [[nodiscard]] QByteArray panoramaLine(double value) const;
    /** About where on the canvas \p image lies: at most what nona makes of it. */
    [[nodiscard]] QRect boundsOf(int image) const;
    /** The exposure value of \p image, or else of the panorama. */
    [[nodiscard]] double exposureOf(int image) const;
};

/** Refuses sizes that make no picture. */
[[nodiscard]] Result<StitchLayout> layOut(const PtoFile &project, const StitchOptions &options);

} // namespace PanoHost
