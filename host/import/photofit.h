// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/seenturns.h"
#include "host/check/findings.h"
#include "host/check/knownlens.h"
#include "host/check/shotmatch.h"
#include "host/import/shotfit.h"
#include "host/model/result.h"
#include "importers/headfacts.h"

#include <QVector>

#include <optional>

namespace PanoHost
{

/** A record as photos are matched to it. */
struct RecordedShots {
    QString name; ///< of the record, for messages
    QVector<PanoHead::NotedShot> shots;
    int bracketCount = 1;
    int clockwiseTurns = 0; ///< quarter turns of the camera on the head
};

/** Which photo belongs to which shot, and what was found on the way. */
struct PhotoFit {
    /** Nothing: each photo, in the order given, belongs to the next shot. */
    std::optional<ShotFit> fit;
    QVector<Finding> findings; ///< topics "shots", "missing", "left", "clock"
    /** What told it without a look at any picture: "names, times and counts"; empty: it took one.
     */
    QString toldBy;
};

/**
 * Matches \p photos, in the order of their names, to the shots of \p record: by names, times,
 * exposures and, where these disagree, by the pictures themselves, taken through \p lens. Refuses
 * when it cannot be told surely, naming both readings; but as many photos as shots go by their
 * names then, unless pictures say otherwise. Of files with the same name but for the ending one is
 * used. Throws when \p watch says so.
 */
[[nodiscard]] Result<PhotoFit> fitPhotos(const RecordedShots &record,
                                         const QVector<PhotoInfo> &photos, const KnownLens &lens,
                                         const JobWatch &watch = {});
/** \p match of \p photos put into words. */
[[nodiscard]] PhotoFit fitOf(const ShotMatch &match, const QVector<PhotoInfo> &photos,
                             SeenTurns &turns);

} // namespace PanoHost
