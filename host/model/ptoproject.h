// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/panorama.h"
#include "host/model/ptofile.h"

#include <QByteArray>
#include <QRect>

namespace PanoHost
{

/** What the user may say about a project. */
struct PtoOptions {
    /** The folder that file names are written relative to; empty: names are absolute. */
    QString projectFolder;
    /** Takes the roll as recorded, without the rotation that the photos' EXIF data ask for. */
    bool ignoreExifRotation = false;
    /** Added to every photo's roll, degrees. */
    double extraRollDegrees = 0.0;
    /** Width of the panorama in pixels; 0: as large as the photos' centre. */
    int width = 0;
};

/** A Hugin project. */
struct PtoProject {
    QByteArray text;
    double yawCentreDegrees = 0.0; ///< was subtracted from every yaw; 0 for full turns
    double horizontalFovDegrees = 360.0;
    QSize canvas; ///< the whole panorama, pixels
    QRect crop; ///< the part of it that is covered; null: all
    QStringList warnings;
};

/**
 * The Hugin project for \p panorama. Opens no file.
 *
 * Refuses: no focal length, photos without a known size, angles that are no numbers, names that
 * the format cannot hold (a quotation mark or a line end).
 */
[[nodiscard]] Result<PtoProject> makePtoProject(const Panorama &panorama,
                                                const PtoOptions &options = {});

/** The same as a file to be aligned, which holds the recorded angles in full. */
[[nodiscard]] Result<PtoFile> projectOf(const Panorama &panorama, const PtoOptions &options = {});

/**
 * Makes the project for the file \p path and writes it at once (never a partial file). Names are
 * relative to the folder of \p path; the folder in \p options is not used.
 */
[[nodiscard]] Result<PtoProject> writePtoProject(const Panorama &panorama, const QString &path,
                                                 PtoOptions options = {});

} // namespace PanoHost
