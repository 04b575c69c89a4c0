// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/stitch/stitchlayout.h"

#include <QStringList>

namespace PanoHost
{

/** A photo, or the light of a bracket, on its way onto the canvas. Names are of the work folder. */
struct StitchWarp {
    int image = 0; ///< whose place it takes
    QString source; ///< what is warped
    QString project; ///< of this one image, for nona
    QByteArray projectText;
    QString warped; ///< what comes out
};

/** The levels of a bracket that become light. */
struct StitchLight {
    QVector<int> images; ///< the reference first
    QString joined; ///< what comes out
};

/** Warped light of a bracket whose photos have angles of their own, on its way to one picture. */
struct StitchJoin {
    QVector<int> warps;
    QString joined; ///< what comes out
};

/** Photos of one exposure, all around, or light. */
struct StitchLayer {
    QVector<int> warps;
    QVector<int> joins;
    QString blended; ///< what comes out
};

/** Everything that is done, in order. */
struct StitchPlan {
    StitchPlan(StitchLayout laidOut, const StitchOptions &wishes)
        : layout(std::move(laidOut))
        , options(wishes)
    {
    }

    StitchLayout layout;
    StitchOptions options;
    StitchedPicture::Depth depth = StitchedPicture::Depth::Bits8;
    QVector<QString> photos; ///< a name for each image, whatever it is called; empty: not used
    QVector<StitchLight> lights; ///< become light before they are warped, one for each warp
    QVector<StitchWarp> warps;
    QVector<StitchJoin> joins;
    QVector<StitchLayer> layers; ///< what is blended; more than one: those are fused
    /** Light is warped in numbers from 0 to 1: this much smaller, a power of two. */
    double lightScale = 1.0;

    [[nodiscard]] bool isFused() const { return layers.size() > 1; }
    [[nodiscard]] int bytesPerPixel() const; ///< with alpha
    /** The light that white means at \p image, 1 being white in the panorama. */
    [[nodiscard]] double gainOf(int image) const;
    /** Everything that becomes part of \p layer, by name. */
    [[nodiscard]] QStringList partsOf(const StitchLayer &layer) const;
};

/** Refuses what `layOut` refuses. Opens the first photo to see how deep its colours are. */
[[nodiscard]] Result<StitchPlan> planStitch(const PtoFile &project, const StitchOptions &options);

/** Bits of each colour in a photo, by the head of its file; 8 where that does not say. */
[[nodiscard]] int bitsOf(const QString &photo);

/** What the tools are told; names as they are, relative to the work folder. */
[[nodiscard]] QStringList warpArguments(const StitchWarp &warp, const QString &stem);
[[nodiscard]] QStringList blendArguments(const StitchPlan &plan, const StitchLayer &layer,
                                         const QString &out);
[[nodiscard]] QStringList fuseArguments(const StitchPlan &plan, const QString &out);

} // namespace PanoHost
