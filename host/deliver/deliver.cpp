// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/deliver.h"

#include "host/deliver/cube.h"
#include "host/deliver/finalplace.h"
#include "host/deliver/flatfile.h"
#include "host/deliver/flatpicture.h"
#include "host/deliver/outputname.h"
#include "host/deliver/radiancepicture.h"
#include "host/deliver/spherepage.h"
#include "host/deliver/zoomtiles.h"

#include <array>

namespace PanoHost
{
namespace
{

struct DeliveryRow {
    Delivery kind;
    Result<QString> (*make)(const DeliverJob &job, const JobWatch &watch);
};

/** One row per kind: the function that makes it. */
constexpr std::array<DeliveryRow, 6> kRows{ {
    { Delivery::Picture, deliverFlatPicture },
    { Delivery::Page, makeSpherePage },
    { Delivery::Zoom, makeZoomFolder },
    { Delivery::Radiance, deliverRadiance },
    { Delivery::Cube, deliverCube },
    { Delivery::Iiif, makeIiifFolder },
} };

/** Whether \p kind can go where it belongs. */
Result<QString> checkPlace(const DeliverJob &job, Delivery kind)
{
    switch (kind) {
    case Delivery::Picture:
        return checkFilePlace(job.output);
    case Delivery::Page:
        return checkFilePlace(outputName(job.output, QStringLiteral(".html")));
    case Delivery::Radiance:
        return checkFilePlace(outputName(job.output, QLatin1Char('.') + job.radianceSuffix));
    case Delivery::Zoom:
        return checkFolderPlace(outputName(job.output, QStringLiteral("_zoom")));
    case Delivery::Cube:
        return checkFolderPlace(outputName(job.output, QStringLiteral("_cube")));
    case Delivery::Iiif:
        break;
    }
    return checkFolderPlace(outputName(job.output, QStringLiteral("_iiif")));
}

} // namespace

Result<QString> checkPlaces(const DeliverJob &job)
{
    for (const Delivery kind : job.kinds) {
        if (Result<QString> place = checkPlace(job, kind); !place) {
            return place;
        }
    }
    return job.output;
}

Result<QString> checkSize(const QVector<Delivery> &kinds, const QString &output, const QSize &size)
{
    if (!kinds.contains(Delivery::Picture)) {
        return output;
    }
    Result<QString> checked = checkFlatSize(output, size);
    if (checked) {
        return checked;
    }
    Failure failure = checked.error();
    failure.code = ExitCode::InputRefused; // nothing has been done yet
    return failure;
}

Result<QStringList> deliver(const DeliverJob &job, const JobWatch &watch)
{
    QStringList made;
    for (const Delivery kind : job.kinds) {
        for (const DeliveryRow &row : kRows) {
            if (row.kind != kind) {
                continue;
            }
            const Result<QString> path = row.make(job, watch);
            if (!path) {
                return path.error();
            }
            made += path.value();
        }
    }
    return made;
}

} // namespace PanoHost
