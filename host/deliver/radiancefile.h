// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/deliver/pictureorigin.h"
#include "host/model/jobwatch.h"
#include "host/model/result.h"

#include <QSize>
#include <QString>

#include <functional>

namespace PanoHost
{

/** A picture of light in sRGB's primaries that need not be anywhere as a whole. */
struct RadiancePicture {
    QSize size;
    /** Sets row \p y: red, green, blue and alpha of each pixel, all 0 where nothing is. Called from
     * several threads. */
    std::function<void(int y, float *pixels)> row;
    bool isSphere = false; ///< the whole sphere, equirectangular
};

/** Writes an OpenEXR file of 32-bit floats, row by row. Answers \p path. */
[[nodiscard]] Result<QString> saveExr(const RadiancePicture &picture, const PictureOrigin &origin,
                                      const QString &path, const JobWatch &watch);

/** Writes a Radiance file: 8 bits a colour with a common exponent, no alpha. Answers \p path. */
[[nodiscard]] Result<QString> saveHdr(const RadiancePicture &picture, const QString &path,
                                      const JobWatch &watch);

} // namespace PanoHost
