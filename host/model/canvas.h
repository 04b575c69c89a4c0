// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/coverage.h"

#include <QByteArray>
#include <QRect>

#include <string_view>

namespace PanoHost
{

/** The picture that a project asks for, and its part that photos cover. */
struct Canvas {
    QSize size; ///< the whole panorama, pixels
    QRect crop; ///< the part of it that is covered; null: all
    double horizontalFovDegrees = 360.0;
    double yawCentreDegrees = 0.0; ///< to be subtracted from every yaw; 0 for full turns
};

/** The smallest even picture around \p frames, one at least. It is \p width pixels wide; 0: as
 * large as the centre of the photo whose focal length is \p focalPixels. */
[[nodiscard]] Canvas canvasAround(const QVector<Frame> &frames, double focalPixels, int width);

/** The values of a project's panorama line. */
[[nodiscard]] QByteArray fovText(const Canvas &canvas);
[[nodiscard]] QByteArray cropText(const Canvas &canvas);
/** The rectangle that `cropText` has written; null for other texts. */
[[nodiscard]] QRect cropOf(std::string_view text);

} // namespace PanoHost
