// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/jobwatch.h"
#include "host/model/ptofile.h"
#include "host/model/result.h"
#include "host/stitch/stitchedpicture.h"
#include "host/stitch/workfolder.h"

#include <QStringList>

#include <optional>

namespace PanoHost
{

/** What becomes of brackets. */
enum class StitchOutput {
    Ldr, ///< "ldr": only the reference level of each is used
    Fused, ///< "fused": each becomes one photo that shows its lights and shadows
    Hdr, ///< "hdr": each becomes one photo of the light itself
};

enum class Blender {
    Internal, ///< "internal": verdandi, quick, keeps the photos as sharp as they are
    Enblend, ///< "enblend": hides seams between photos of different brightness
};

/** How large a panorama becomes. */
struct StitchSize {
    enum class Unit { Full, Percent, Width };
    Unit unit = Unit::Full; ///< full: as the project says
    double value = 0.0; ///< percent of the full width, or pixels of the whole canvas
};

struct StitchOptions {
    StitchOutput output = StitchOutput::Ldr;
    Blender blender = Blender::Internal;
    StitchSize size;
    bool crops = true; ///< to what photos cover
    std::optional<double> centreYawDegrees; ///< of the head, in the panorama's middle
    bool levels = false; ///< turned as a whole until the horizon is level
    bool isLinear = false; ///< the photos' values are light, without any curve
    int jobs = 0; ///< photos warped at a time; 0: as many as there are processors
};

/** What a stitch takes, before it begins. */
struct StitchNeeds {
    QSize canvas; ///< whole, pixels
    QSize picture; ///< what is left of it
    qint64 diskBytes = 0; ///< in the work folder, beside what is there already
    qint64 memoryBytes = 0; ///< of the hungriest step
};

/** What a project needs to become a panorama. Opens no photo. */
[[nodiscard]] Result<StitchNeeds> needsOf(const PtoFile &project, const StitchOptions &options);

/** A script that does in the folder \p work what `stitchProject` does there; what no other program
 * can do is a comment in it. */
[[nodiscard]] Result<QStringList> stitchCommands(const PtoFile &project,
                                                 const StitchOptions &options, const QString &work);

/**
 * Warps the photos, joins brackets and blends all in \p work, step by step; what is there already
 * and made from the same is not made again. Refuses, before anything is made, when disk or memory
 * do not suffice, with figures and cures.
 */
[[nodiscard]] Result<StitchedPicture> stitchProject(const PtoFile &project,
                                                    const StitchOptions &options,
                                                    const WorkFolder &work, const JobWatch &watch);

} // namespace PanoHost
