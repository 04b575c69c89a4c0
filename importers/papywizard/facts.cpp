// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/facts.h"

#include "importers/headfacts.h"
#include "importers/papywizard/papywizardexcerpt.h"
#include "importers/papywizard/papywizardreader.h"
#include "importers/papywizard/papywizardwriter.h"
#include "shoot/shottime.h"

#include <algorithm>

namespace PanoHead
{

namespace
{

/** Refuses a record without pictures too. */
std::optional<PapywizardRecord> recordIn(const QByteArray &bytes, ReadError *error)
{
    std::optional<PapywizardRecord> record = readPapywizard(bytes, error);
    if (!record) {
        return std::nullopt;
    }
    if (!record->hasShoot) {
        *error = { QStringLiteral("no <shoot> pictures"), 0,
                   QStringLiteral("is it an old-style Papywizard file (image/coords)?") };
        return std::nullopt;
    }
    if (record->shots.isEmpty()) {
        *error = { QStringLiteral("its <shoot> holds no <pict>: no shot was recorded"), 0,
                   QStringLiteral("choose the record of a finished shoot") };
        return std::nullopt;
    }
    return record;
}

int bracketCountOf(const PapywizardRecord &record)
{
    return std::max(record.nbPicts, 1);
}

std::optional<RecordSummary> summaryOf(const QByteArray &bytes, ReadError *error)
{
    const std::optional<PapywizardRecord> record = recordIn(bytes, error);
    if (!record) {
        return std::nullopt;
    }
    RecordSummary summary;
    summary.shotCount = record->shots.size();
    summary.bracketCount = bracketCountOf(*record);
    summary.focal35mm = std::max(record->xmlFocal, 0.0);
    summary.lens = static_cast<LensModel>(record->xmlLensType);
    summary.title = record->title;
    return summary;
}

/** Of which exposure a shot is, is noted where all exposures occur, else seen from its place. */
std::optional<QVector<NotedShot>> shotsOf(const QByteArray &bytes, ReadError *error)
{
    const std::optional<PapywizardRecord> record = recordIn(bytes, error);
    if (!record) {
        return std::nullopt;
    }
    const QVector<ShootData> &shots = record->shots;
    const int exposures = bracketCountOf(*record);
    const auto [least, most] = std::minmax_element(
        shots.begin(), shots.end(),
        [](const ShootData &a, const ShootData &b) { return a.bracket < b.bracket; });
    const int first = least->bracket;
    const bool isNoted = qint64{ most->bracket } - first == exposures - 1;
    const QVector<QDateTime> times = readShotTimes(record->times);
    QVector<NotedShot> noted = notedShots(shots);
    for (int i = 0; i < noted.size(); ++i) {
        noted[i].level = isNoted ? shots.at(i).bracket - first : i % exposures;
        noted[i].time = times.at(i);
    }
    return noted;
}

HeadFacts newFacts()
{
    HeadFacts facts;
    facts.about = &kPapywizardAbout;
    facts.title = "Papywizard";
    facts.record = "RECORD.xml";
    facts.summary = &summaryOf;
    facts.shots = &shotsOf;
    facts.excerpt = &papywizardExcerpt;
    facts.write = &writePapywizard;
    facts.notesBrackets = true;
    facts.hasLens = true;
    facts.hasLinking = true;
    facts.turnsCamera = true;
    // As much play as a worn gear has, and a record of one decimal: only alignment helps.
    facts.demo = { 0.3, false, 40.0 };
    return facts;
}

} // namespace

const HeadFacts &papywizardFacts()
{
    static const HeadFacts facts = newFacts();
    return facts;
}

} // namespace PanoHead
