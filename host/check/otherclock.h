// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/check/shotpath.h"

#include <functional>
#include <vector>

/*
 * When the camera's clock was set on the way, or lost its time, photos look like those of another
 * shoot; but names count them on just where shots are missing.
 */
namespace PanoHost
{

/** Photos of no shot that are next to each other by name, where shots are missing; and the photo
 * and the shot before and after them that belong together, if there are any. */
struct StrangeRun {
    std::vector<int> photos; ///< by name
    std::vector<int> shots;
};
/** \p shots by photo (-1: none) of \p shotCount; \p named: photos in the order of their names. */
[[nodiscard]] std::vector<StrangeRun> strangeRuns(const std::vector<int> &shots,
                                                  const std::vector<int> &named, int shotCount);

/** The likeliest way in which the photos of \p run are of its shots by a clock of their own: all of
 * \p shots then. Costs that much more than if they are of none, as \p shots has it. \p evidence and
 * \p assumption are those of all photos; \p measure, if any, is what pictures say of two of them.
 */
[[nodiscard]] ShotPath
pathByOtherClock(const StrangeRun &run, const std::vector<int> &shots, const ShotEvidence &evidence,
                 const ShotAssumption &assumption,
                 const std::function<std::optional<Eigen::Matrix3d>(int, int)> &measure);

} // namespace PanoHost
