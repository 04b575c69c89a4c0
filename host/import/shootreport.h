// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/import/importrequest.h"
#include "host/import/pagenames.h"
#include "host/model/jobwatch.h"

namespace PanoHost
{

/** What is known of a shoot, however little of it has been given yet. */
struct ShootReport {
    const HeadFacts *head = nullptr;
    QString record; ///< path; empty: none yet
    int given = 0; ///< photos
    QVector<Finding> findings;
    std::optional<Failure> refusal; ///< why it cannot be imported
    RecordSummary summary; ///< of the record
    QVector<NotedShot> shots; ///< of the record; empty for heads that do not tell them
    /** Which photo belongs to which shot, where that is not the order of their names. */
    std::optional<FittedPhotos> fitted;
    QVector<PhotoInfo> photos; ///< that can be read
    KnownLens lens; ///< of the photos
    /** The head that reads the record when `head` does not; null: none. */
    const HeadFacts *otherHead = nullptr;
};

/**
 * Looks at what \p request names so far: record or photos may still be missing. Throws only when
 * \p watch says so. Any thread.
 */
[[nodiscard]] ShootReport reportOn(PanoHostApplication &app, ImportRequest request,
                                   const JobWatch &watch);

/** Of what the page would link the recorded \p shots by: nothing for grids and unknown lenses. */
[[nodiscard]] std::optional<Finding> linksFinding(const HeadFacts &head,
                                                  const QVector<NotedShot> &shots, int levels,
                                                  const KnownLens &lens);

/** Under what the focal length of \p photo is remembered, when it names none itself. */
[[nodiscard]] QString lensKey(const PhotoInfo &photo);

} // namespace PanoHost
