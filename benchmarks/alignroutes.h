// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/host/align/support/testshoot.h"

#include <QString>
#include <QStringList>

/** The ways from photos and angles to an aligned project. */
namespace AlignRoutes
{

/** A project that a route has left, and what that took. */
struct Outcome {
    QString project; ///< empty: the route did not get there
    double cpuSeconds = 0.0; ///< of all its programs
    QString problem; ///< why there is no project, or what was odd
};

/** A shoot whose photos are taken. */
struct Taken {
    const TestShoots::TestShoot &shoot;
    PanoHost::Panorama panorama; ///< as imported
    PanoHost::Panorama reference; ///< of each stack its first photo only
    QString folder;
};

/** The project of the import itself. */
[[nodiscard]] Outcome imported(const Taken &taken);
/** Hugin's assistant: pto_gen, cpfind --multirow, cpclean, autooptimiser -a -l -s -m; no record. */
[[nodiscard]] Outcome hugin(const Taken &taken);
/** Hugin's tools with the record as their start: cpfind --prealigned, points between links only,
 * cpclean, groups pinned, autooptimiser -n. */
[[nodiscard]] Outcome guided(const Taken &taken);
/** \p panohost align of the imported description. */
[[nodiscard]] Outcome own(const Taken &taken, const QString &panohost);

/** Where \p project puts the photos of \p taken, one entry per position; empty when it lacks one.
 */
[[nodiscard]] TestShoots::Rotations rotationsIn(const QString &project, const Taken &taken);

/** How near the panorama of \p project comes to the scene, dB, on a sphere \p width pixels wide;
 * 0 when it cannot be stitched. \p common turns it into the true frame. */
[[nodiscard]] double psnrOf(const QString &project, const Taken &taken,
                            const Eigen::Matrix3d &common, int width);

} // namespace AlignRoutes
