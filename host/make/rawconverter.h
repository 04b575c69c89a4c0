// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/panorama.h"
#include "host/model/result.h"

#include <QStringList>

namespace PanoHost
{

struct JobWatch;
class WorkFolder;

/** A program that makes TIFFs of RAW files. */
struct RawConverter {
    QString program; ///< a name, or a path
    /** "%i" stands for the RAW file, "%o" for the TIFF; without that the program writes it beside
     * the RAW file, with the ending ".tiff". "%w" is the white balance of the first photo, as dcraw
     * takes it. */
    QStringList arguments;
    bool isLinear = false; ///< its values are light; otherwise whatever it does, sRGB's curve hoped
    bool followsCamera = false; ///< each photo gets the white balance that the camera chose for it
};

/**
 * The converter that \p command names: one that is known ("dcraw", "dcraw_emu",
 * "darktable-cli", "rawtherapee-cli"; asked for 16 bits, no tone curve, and for light itself where
 * \p wantsLight and it can), or any other with its arguments, "%i" and "%o" among them, and
 * quotation marks around what has blanks.
 */
[[nodiscard]] Result<RawConverter> rawConverterNamed(const QString &command, bool wantsLight);

/** How many photos of \p panorama are RAW files. */
[[nodiscard]] int rawCount(const Panorama &panorama);
/** Which they are, as text, since descriptions do not say it; and the way back. */
[[nodiscard]] QByteArray rawMarks(const Panorama &panorama);
void setRawMarks(Panorama &panorama, const QByteArray &marks);

/**
 * Has every RAW file of \p panorama developed in \p work, where it is not yet, and names the TIFF
 * in its place. Warns where their colours may not go together. Throws why it cannot be.
 */
void developPhotos(Panorama &panorama, const RawConverter &converter, const WorkFolder &work,
                   const JobWatch &watch);

} // namespace PanoHost
