// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QImage>

namespace PanoHost
{

/** How well a picture agrees with what it should be. */
struct Agreement {
    double psnrDecibels = 0.0; ///< over the covered pixels; infinite when they are all equal
    double coveredShare = 0.0; ///< pixels that are not transparent, 0 to 1
};

/**
 * Peak signal-to-noise ratio of \p picture against \p truth, over red, green and blue. Pixels of
 * \p picture that are not fully opaque count as not covered; with none covered the ratio is 0.
 * Pictures of different sizes agree in nothing: both figures are 0.
 */
[[nodiscard]] Agreement agreementOf(const QImage &picture, const QImage &truth);

} // namespace PanoHost
