// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/result.h"

#include <QImage>
#include <QSize>

#include <array>
#include <cstdint>
#include <vector>

namespace PanoHost
{

/** A photo as its features are looked for: 8-bit luminance, reduced. */
struct GreyPicture {
    QImage picture; ///< Format_Grayscale8, as stored (not turned)
    double xScale = 1.0; ///< its pixels per stored pixel
    double yScale = 1.0;
};

/**
 * Reads the photo \p path, at most \p longestSide pixels wide, reduced while it is decoded as far
 * as that keeps its pixels where they are. Refuses what `readPhoto` refuses, and a photo that is
 * not of \p storedSize. Any thread.
 */
[[nodiscard]] Result<GreyPicture> readGreyPicture(const QString &path, const QSize &storedSize,
                                                  int widest);

/** Spots of a photo that can be found again in another one; at most 300 KB. */
struct FeatureSet {
    using Descriptor = std::array<std::uint8_t, 128>;
    struct Place {
        float x = 0.0F; ///< stored pixels, (0, 0) is the middle of the first
        float y = 0.0F;
    };
    std::vector<Place> places;
    std::vector<Descriptor> descriptors; ///< root-SIFT, in 1/512
    std::vector<std::uint16_t> lights; ///< mean linear light around each, 65535: white

    [[nodiscard]] int count() const { return static_cast<int>(places.size()); }
};

struct FeatureOptions {
    int most = 2112; ///< of a photo, spread over 12 x 8 cells
};

/** The strongest features of each cell of \p picture. Any thread; the same answer each time. */
[[nodiscard]] FeatureSet featuresOf(const GreyPicture &picture, const FeatureOptions &options = {});

} // namespace PanoHost
