// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/radiancepicture.h"

#include "host/deliver/finalplace.h"
#include "host/deliver/outputname.h"
#include "host/deliver/partfolder.h"
#include "host/deliver/radiancefile.h"
#include "host/deliver/stitchedfile.h"
#include "host/model/said.h"

#include <algorithm>

namespace PanoHost
{

Result<QString> deliverRadiance(const DeliverJob &job, const JobWatch &watch)
{
    const QString wanted = outputName(job.output, QLatin1Char('.') + job.radianceSuffix);
    if (job.picture.depth != StitchedPicture::Depth::Radiance) {
        return Failure{ ExitCode::InputRefused, wanted,
                        Said::tr("this panorama's values are not light"),
                        Said::tr("needs --output hdr") };
    }
    const Result<VipsFile> opened = openStitched(job.picture);
    if (!opened) {
        return opened.error();
    }
    const Result<PartFolder> part
        = PartFolder::make(job.workFolder, QStringLiteral("radiance.part"));
    if (!part) {
        return part.error();
    }
    const VipsFile &source = opened.value();
    const QPoint corner = job.picture.onSphere;
    RadiancePicture sphere;
    sphere.size = job.picture.sphere;
    sphere.isSphere = true;
    sphere.row = [&source, &sphere, corner](int y, float *pixels) {
        constexpr int kBands = 4;
        std::fill_n(pixels, sphere.size.width() * kBands, 0.0F);
        const int row = y - corner.y();
        if (row < 0 || row >= source.size().height()) {
            return;
        }
        const auto *const from = source.row<float>(row);
        float *const to = pixels + static_cast<ptrdiff_t>(corner.x()) * kBands;
        for (int i = 0; i < source.size().width() * kBands; ++i) {
            to[i] = from[i - i % kBands + 3] > 0.0F ? from[i] : 0.0F;
        }
    };
    const QString path = part.value().path(QStringLiteral("panorama.") + job.radianceSuffix);
    const Result<QString> saved = job.radianceSuffix == QLatin1String("hdr")
        ? saveHdr(sphere, path, watch)
        : saveExr(sphere, job.origin, path, watch);
    return saved ? moveFile(saved.value(), wanted) : saved;
}

} // namespace PanoHost
