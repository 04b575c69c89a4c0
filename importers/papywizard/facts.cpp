// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/facts.h"

#include "importers/headfacts.h"
#include "importers/papywizard/papywizardreader.h"
#include "importers/papywizard/papywizardwriter.h"

#include <algorithm>

namespace PanoHead
{

namespace
{

/** Refuses a record without pictures too. */
std::optional<RecordSummary> summaryOf(const QByteArray &bytes, ReadError *error)
{
    const std::optional<PapywizardRecord> record = readPapywizard(bytes, error);
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
    RecordSummary summary;
    summary.shotCount = record->shots.size();
    summary.bracketCount = std::max(record->nbPicts, 1);
    summary.focal35mm = std::max(record->xmlFocal, 0.0);
    summary.lens = static_cast<LensModel>(record->xmlLensType);
    return summary;
}

HeadFacts newFacts()
{
    HeadFacts facts;
    facts.about = &kPapywizardAbout;
    facts.title = "Papywizard";
    facts.record = "RECORD.xml";
    facts.summary = &summaryOf;
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
