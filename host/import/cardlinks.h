// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/check/cardreport.h"
#include "host/model/jobwatch.h"

#include <QString>
#include <QStringList>

namespace PanoHost
{

/** Throws unless \p folder can be made: it is empty or not there, and the one above it is. */
void requireNewFolder(const QString &folder);

/**
 * Makes \p folder with one folder for each shoot of \p plan, which holds symbolic links to its
 * record, where it is not sure which one to all that it may be, and to its photos; RAW files beside
 * photos are in its "raw". Photos of the same name get numbers in front. All or nothing is made.
 * Answers the names of the folders. Throws when it cannot be done, or when \p watch says so.
 */
QStringList writeLinks(const Card &card, const CardPlan &plan, const QString &folder,
                       const JobWatch &watch);

} // namespace PanoHost
