// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/import/importrequest.h"
#include "host/import/shootcheck.h"

namespace PanoHost
{

/** What is to be taken again of a shoot. */
struct Reshoot {
    /** What was found wrong, then one of topic "reshoot" for each shot, then what to do. */
    QVector<Finding> findings;
    QVector<int> shots; ///< from 0, rising; whole positions, with all their exposures
};

/**
 * The shots that \p check, which has examined \p request, has no photo for, and those whose photos
 * are of no use, after a look at all pictures.
 */
[[nodiscard]] Reshoot shotsToTakeAgain(PanoHostApplication &app, const ImportRequest &request,
                                       const ShootCheck &check, const JobWatch &watch);

} // namespace PanoHost
