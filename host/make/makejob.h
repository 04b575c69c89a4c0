// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/alignment.h"
#include "host/deliver/deliver.h"
#include "host/import/importrequest.h"
#include "host/model/jobwatch.h"
#include "host/stitch/panoramastitch.h"

#include <functional>
#include <optional>

namespace PanoHost
{

class PanoHostApplication;

/** What becomes of placed photos. */
struct PictureWishes {
    QString path; ///< of the picture, absolute: ".jpg" or ".tif"
    /** Nothing: light where radiance is delivered, else as the page says; where that says nothing
     * brackets are fused. */
    std::optional<StitchOutput> output;
    StitchOptions stitch; ///< its `output` does not count
    /** Empty: the usual ones, picture and page, and of light itself the light too. */
    QVector<Delivery> kinds;
    int jpegQuality = 92;
    QString iiifAddress;
};

/** As on the command line: "picture", "html" and so on, one for each kind in their order. */
[[nodiscard]] QStringList deliveryWords();

/** From record and photos. */
struct MakeRequest {
    ImportRequest import;
    /** What a page has delivered already; of `import` only `ignoreExifRotation` counts then. */
    std::optional<Panorama> imported;
    QString rawConverter; ///< as `rawConverterNamed` takes it; empty: none
    AlignOptions align;
    PictureWishes picture;
};

/** From a project, Hugin's or ours, or from the description that an import has written. */
struct StitchRequest {
    QString input; ///< absolute; a name ending in ".pto" is a project's
    bool ignoresExifRotation = false; ///< of a description
    bool keepsWork = false; ///< leaves the work folder
    PictureWishes picture;
};

/** What the steps of a job do, each as in its own header. */
struct MakeSteps {
    std::function<Result<Panorama>(const ImportRequest &request, const JobWatch &watch)> import;
    std::function<Result<Alignment>(const Panorama &panorama, const PtoOptions &projectOptions,
                                    const AlignOptions &options, const JobWatch &watch)>
        align;
    std::function<Result<StitchNeeds>(const PtoFile &project, const StitchOptions &options)> needs;
    std::function<Result<QStringList>(const PtoFile &project, const StitchOptions &options,
                                      const QString &work)>
        commands;
    std::function<Result<StitchedPicture>(const PtoFile &project, const StitchOptions &options,
                                          const WorkFolder &work, const JobWatch &watch)>
        stitch;
    std::function<PictureOrigin(const PtoFile &project, const StitchedPicture &picture)> origin;
    std::function<Result<QStringList>(const DeliverJob &job, const JobWatch &watch)> deliver;
};

/** The real ones; \p app outlives them. */
[[nodiscard]] MakeSteps makeSteps(PanoHostApplication &app);

/** The folder in which a panorama at \p path is made: "NAME.work" beside it. */
[[nodiscard]] QString workFolderOf(const QString &path);

/**
 * Imports, aligns, stitches and delivers, step by step in the work folder. What is there from an
 * earlier run and made from the same is kept, and what was said of it is said again; so a run that
 * was stopped, in whatever way, is gone on from by the same request. The progress is that of all
 * steps. Answers what to open, in the order of the kinds.
 */
[[nodiscard]] Result<QStringList> makePanorama(const MakeRequest &request, const MakeSteps &steps,
                                               const JobWatch &watch);

/** The same from a project. The work folder goes at the end unless it is to be kept, or holds what
 * `makePanorama` keeps. */
[[nodiscard]] Result<QStringList> stitchPanorama(const StitchRequest &request,
                                                 const MakeSteps &steps, const JobWatch &watch);

/** What both would do, and nothing of it: says what a stitch takes and answers its commands.
 * Photos are where the record puts them. Writes nothing. */
[[nodiscard]] Result<QStringList> makeCommands(const MakeRequest &request, const MakeSteps &steps,
                                               const JobWatch &watch);
[[nodiscard]] Result<QStringList> stitchCommandsOf(const StitchRequest &request,
                                                   const MakeSteps &steps, const JobWatch &watch);

/** The output that \p wishes, page and photos come to; \p renderMode is the page's. */
[[nodiscard]] StitchOutput outputFor(const PictureWishes &wishes, int renderMode, bool hasBrackets);

} // namespace PanoHost
