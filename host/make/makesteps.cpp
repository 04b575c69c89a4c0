// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/importjob.h"
#include "host/make/damagedphotos.h"
#include "host/make/makejob.h"
#include "host/stitch/stitchneeds.h"

namespace PanoHost
{

MakeSteps makeSteps(PanoHostApplication &app)
{
    MakeSteps steps;
    steps.import = [&app](const ImportRequest &request, const JobWatch &watch) {
        Result<Panorama> panorama = importShoot(app, request, watch);
        if (panorama) {
            warnOfDamage(panorama.value(), watch);
        }
        return panorama;
    };
    steps.align = [](const Panorama &panorama, const PtoOptions &projectOptions,
                     const AlignOptions &options, const JobWatch &watch) {
        return align(panorama, projectOptions, options, watch);
    };
    steps.needs = [](const PtoFile &project, const StitchOptions &options) {
        return needsOf(project, options);
    };
    steps.commands = &stitchCommands;
    steps.stitch = &stitchProject;
    steps.origin = [](const PtoFile &project, const StitchedPicture &picture) {
        QVector<PhotoView> views;
        for (const PtoImage &image : project.images()) {
            views.append({ image.path, image.angles.yaw, image.angles.pitch });
        }
        return originOf(views, picture.centreYawDegrees);
    };
    steps.deliver = &deliver;
    return steps;
}

} // namespace PanoHost
