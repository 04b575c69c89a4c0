// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/flatpicture.h"

#include "host/deliver/finalplace.h"
#include "host/deliver/flatfile.h"
#include "host/deliver/partfolder.h"
#include "host/deliver/screenpicture.h"

#include <QFileInfo>

namespace PanoHost
{

Result<QString> deliverFlatPicture(const DeliverJob &job, const JobWatch &watch)
{
    const QFileInfo output(job.output);
    if (const Result<QString> size = checkFlatSize(output.fileName(), job.picture.size); !size) {
        return Failure{ size.error().code, job.output, size.error().why, size.error().tryThis };
    }
    const Result<PartFolder> part
        = PartFolder::make(job.workFolder, QStringLiteral("picture.part"));
    if (!part) {
        return part.error();
    }
    const QString &folder = part.value().path();
    FlatPicture picture{ job.picture.path, job.picture.size, job.picture.depth, {} };
    PictureOrigin origin = job.origin;
    if (job.picture.depth == StitchedPicture::Depth::Radiance) {
        Result<QString> screen = screenPicture(job.picture, {}, folder, watch);
        if (!screen) {
            return screen;
        }
        picture.path = screen.value();
        picture.depth = StitchedPicture::Depth::Bits8;
        origin.iccProfile.clear(); // the photos' colours are no longer these
    }
    picture.facts = factsOf(origin, picture.size, &job.picture);
    const Result<QString> saved
        = saveFlat(picture, folder, QStringLiteral("panorama.") + output.suffix().toLower(),
                   job.jpegQuality, watch);
    return saved ? moveFile(saved.value(), job.output) : saved;
}

} // namespace PanoHost
