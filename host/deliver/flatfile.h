// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/deliver/picturefacts.h"
#include "host/model/jobwatch.h"
#include "host/model/result.h"

#include <QSize>
#include <QString>

namespace PanoHost
{

/** A picture of 8 or 16 bits in libvips' own format: red, green, blue, alpha. */
struct FlatPicture {
    QString path;
    QSize size;
    StitchedPicture::Depth depth = StitchedPicture::Depth::Bits8;
    PictureFacts facts;
};

/** What both refuse before any work: JPEGs hold at most 65,535 pixels to a side. Answers \p name.
 */
[[nodiscard]] Result<QString> checkFlatSize(const QString &name, const QSize &size);

/**
 * \p picture as \p name in \p folder, an empty place on the disk that it is on: by the name's
 * ending a JPEG of \p quality, black where nothing is, or a tiled TIFF with smaller versions of
 * itself, transparent there. Answers the path of a complete file.
 */
[[nodiscard]] Result<QString> saveFlat(const FlatPicture &picture, const QString &folder,
                                       const QString &name, int quality, const JobWatch &watch);

} // namespace PanoHost
