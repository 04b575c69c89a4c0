// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/deliver/pictureorigin.h"
#include "host/model/jobwatch.h"
#include "host/model/result.h"
#include "host/stitch/stitchedpicture.h"

#include <QStringList>
#include <QVector>

namespace PanoHost
{

/** What comes out of a stitched panorama; words of `--deliver` in this order. */
enum class Delivery {
    Picture, ///< "picture": equirectangular JPEG or TIFF
    Page, ///< "html": one file that any browser opens
    Zoom, ///< "zoom": a folder of tiles with its page
    Radiance, ///< "radiance": EXR or Radiance HDR
    Cube, ///< "cube": six faces
    Iiif, ///< "iiif": tiles for a IIIF 3 server of level 0
};

/** A panorama to be delivered beside each other's results. */
struct DeliverJob {
    StitchedPicture picture;
    PictureOrigin origin;
    QString title; ///< of pages
    QString output; ///< absolute; ".jpg" or ".tif"; of the others the name without its ending
    QVector<Delivery> kinds;
    int jpegQuality = 92;
    QString radianceSuffix = QStringLiteral("exr"); ///< or "hdr"
    QString iiifAddress; ///< where the folder will be reached, without its own name
    QString workFolder; ///< on the file system of the output
};

/** Whether all results can go where they belong: to be asked before hours are spent. Of \p job only
 * kinds and names are needed. */
[[nodiscard]] Result<QString> checkPlaces(const DeliverJob &job);
/** Refuses a picture of \p size at \p output that is larger than a JPEG can be. Answers \p output.
 */
[[nodiscard]] Result<QString> checkSize(const QVector<Delivery> &kinds, const QString &output,
                                        const QSize &size);

/** Makes them one after the other. Answers the final paths, in the order of the kinds: what to open
 * of each (a folder's page). What is finished stays when a later one fails. */
[[nodiscard]] Result<QStringList> deliver(const DeliverJob &job, const JobWatch &watch);

} // namespace PanoHost
