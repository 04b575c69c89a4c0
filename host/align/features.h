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
    /** Its pixels per stored pixel; the upper left corners of both are the same point. */
    double xScale = 1.0;
    double yScale = 1.0;
    double whiteShare = 0.0; ///< of its pixels: nobody knows how bright they truly were
};

/**
 * Reads the photo \p path, at most \p widest pixels wide, as reduced as it can be while it is
 * decoded. Refuses what cannot be read, RAW files, and a photo that is not of \p storedSize. Any
 * thread.
 */
[[nodiscard]] Result<GreyPicture> readGreyPicture(const QString &path, const QSize &storedSize,
                                                  int widest);

/** \p picture at most \p widest pixels wide. */
[[nodiscard]] GreyPicture reduced(const GreyPicture &picture, int widest);

/** Spots of a photo that can be found again in another one; 138 bytes each. */
struct FeatureSet {
    /** Root-SIFT in units of 1 / 512: square roots of the shares of the gradients' directions, so
     * that two of them are the more alike the larger their scalar product is, at most 1. */
    using Descriptor = std::array<std::uint8_t, 128>;
    struct Place {
        float x = 0.0F; ///< stored pixels, (0, 0) is the middle of the first
        float y = 0.0F;
    };
    std::vector<Place> places;
    std::vector<Descriptor> descriptors;
    std::vector<std::uint16_t> lights; ///< mean linear light around each, 65535: white

    [[nodiscard]] int count() const { return static_cast<int>(places.size()); }
};

struct FeatureOptions {
    int most = 2112; ///< of a photo, spread over 12 x 8 cells: less than 300 KB
};

/**
 * The strongest features of each cell of \p picture; none where it has no texture. The same spot
 * may be there several times, with descriptors of its own for each of its main directions. Any
 * thread, some at a time as memory allows; the same answer each time.
 */
[[nodiscard]] FeatureSet featuresOf(const GreyPicture &picture, const FeatureOptions &options = {});

/** How much neighbouring pixels differ, mean square of the second differences: the more, the
 * sharper the picture is, compared with others of the same view. */
[[nodiscard]] double sharpnessOf(const GreyPicture &picture);

} // namespace PanoHost
