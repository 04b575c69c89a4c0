// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/photofile.h"

#include <QVector>

namespace PanoHost
{

/** What one source says about the lens. */
struct KnownLens {
    double focal35mm = 0.0; ///< 0: not known
    LensModel lens = LensModel::NotChosen; ///< `NotChosen`: not known
    int withoutFocal = 0; ///< photos that do not name a focal length
};

/** The mean focal length of the photos that name one, and the lens of the last that names one. */
[[nodiscard]] KnownLens knownLensOf(const QVector<PhotoInfo> &photos);

/** "standard", "fisheye" or "not known". */
[[nodiscard]] QString lensText(LensModel lens);

/** "24 mm". */
[[nodiscard]] QString millimetres(double focal35mm);

} // namespace PanoHost
