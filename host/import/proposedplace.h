// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/panorama.h"

#include <functional>

namespace PanoHost
{

/** What is asked of the machine's disks. */
struct DiskFacts {
    /** The folder at which the disk begins that holds \p path. */
    std::function<QString(const QString &path)> rootOf;
    /** Whether files and folders can be made in the folder \p path; no: there is none. */
    std::function<bool(const QString &path)> isWritable;
    QString pictures; ///< the user's folder for them

    [[nodiscard]] static DiskFacts ofThisMachine();
};

/**
 * Where results of \p panorama go unless the user says otherwise: "PHOTOS panorama" beside the
 * folder of its photos, and never among them. The user's folder for pictures where that cannot be,
 * or would be on a camera's card. Makes nothing: it may have to be made.
 */
[[nodiscard]] QString proposedFolder(const Panorama &panorama,
                                     const DiskFacts &disks = DiskFacts::ofThisMachine());

/**
 * What they are called, without ending: the record's title, else the name of its file, else that of
 * the photos' folder. Reads the record.
 */
[[nodiscard]] QString proposedName(const Panorama &panorama);

/** \p text as the name of a file on any disk; empty where nothing of it is left. */
[[nodiscard]] QString asFileName(const QString &text);

} // namespace PanoHost
