// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/import/importrequest.h"
#include "host/model/photofile.h"

namespace PanoHost
{

/** What one source says about the lens. */
struct KnownLens {
    double focal35mm = 0.0; ///< 0: not known
    LensModel lens = LensModel::NotChosen; ///< `NotChosen`: not known
    int withoutFocal = 0; ///< photos that do not name a focal length
};

/** The focal length and lens that an import uses. */
struct LensChoice {
    double focal35mm = 0.0;
    LensModel lens = LensModel::Standard;
    QStringList warnings;
};

/** The mean focal length of the photos that name one, and the lens of the last that names one. */
[[nodiscard]] KnownLens knownLensOf(const QVector<PhotoInfo> &photos);

/**
 * Chooses between what the user gave, the photos and the record: without a wish the photos win
 * where they say something. Throws when the wanted source does not know the focal length.
 */
[[nodiscard]] LensChoice chooseLens(const ImportRequest &request, const KnownLens &photos,
                                    const KnownLens &record);

/**
 * For pages that take the focal length from the photos: a warning when the photos differ notably,
 * as after zooming, and the user has not given one.
 */
[[nodiscard]] QStringList focalSpreadWarnings(const ImportRequest &request,
                                              const QVector<PhotoInfo> &photos);

} // namespace PanoHost
