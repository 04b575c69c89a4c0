// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/check/photogroups.h"
#include "host/check/shotmatch.h"
#include "host/model/jobwatch.h"

#include <QStringList>
#include <QVector>

/* Which photos of a card belong to which record. */
namespace PanoHost
{

/** A record as it lies on a card. */
struct CardRecord {
    QString path;
    QStringList copies; ///< files that are the same, elsewhere
    QStringList heads; ///< those that may have written it, as on the command line
    QVector<PanoHead::NotedShot> shots;
    int bracketCount = 0; ///< photos at a position; 0: the head does not say
};

enum class Sureness {
    Sure,
    Likely, ///< nothing else comes into question, and not everything agrees
    Unsure, ///< something else fits as well, or nothing fits well
};

/** One shoot of a plan. Indices into the photos and records given. */
struct PlannedShoot {
    int record = -1; ///< -1: none, the photos look like a grid
    PhotoRun photos; ///< in the order in which they were taken
    Sureness sureness = Sureness::Unsure;
    bool byTimes = false; ///< the times of shots and photos go together
    QVector<int> rivalRecords; ///< of which these may be the photos as well
    std::vector<PhotoRun> rivalPhotos; ///< which may be those of the record as well
    int shotCount = 0; ///< of the record
    int missingShots = 0; ///< those without a photo; told by times only
    int doubledShots = 0; ///< those with several
    double clockSeconds = 0.0; ///< camera minus head, by times
};

/** What lies on a card. */
struct CardPlan {
    QVector<PlannedShoot> shoots; ///< by time, those without times last
    std::vector<PhotoRun> leftOver; ///< photos of no shoot, in the same order
    QVector<int> idleRecords; ///< records without photos
};

/**
 * Joins \p photos and \p records by times, pattern, counts, brackets and folders. Each photo and
 * each record is in one place of the plan. Time and memory grow with the number of photos and shots
 * only. Throws when \p watch says so.
 */
[[nodiscard]] CardPlan planCard(const QVector<CardPhoto> &photos,
                                const QVector<CardRecord> &records, const JobWatch &watch = {});

} // namespace PanoHost
