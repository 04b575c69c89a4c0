// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/deliver.h"

#include "host/deliver/cube.h"
#include "host/deliver/flatpicture.h"
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

} // namespace

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
