// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/check/knownlens.h"
#include "host/import/importrequest.h"

namespace PanoHost
{

/** The focal length and lens that an import uses. */
struct LensChoice {
    double focal35mm = 0.0;
    LensModel lens = LensModel::Standard;
    QStringList warnings;
};

/** The lens that an import would use, as far as it is known; a focal length of 0: it is not. */
[[nodiscard]] KnownLens lensInUse(const ImportRequest &request, const KnownLens &photos,
                                  const KnownLens &record);

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
