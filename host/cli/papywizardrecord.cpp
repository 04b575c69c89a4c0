// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/papywizardrecord.h"

#include "host/cli/displayname.h"
#include "host/cli/recorderror.h"
#include "importers/papywizard/papywizardreader.h"

#include <algorithm>

namespace PanoHost
{

namespace
{

RecordSummary summaryOf(const PanoHead::PapywizardRecord &record)
{
    RecordSummary summary;
    summary.shotCount = record.shots.size();
    summary.bracketCount = std::max(record.nbPicts, 1);
    summary.focal35mm = std::max(record.xmlFocal, 0.0);
    summary.lens = static_cast<LensModel>(record.xmlLensType);
    return summary;
}

} // namespace

Result<RecordSummary> readPapywizardSummary(const QString &path)
{
    PanoHead::ReadError error;
    const std::optional<QByteArray> bytes = PanoHead::readRecordFile(path, &error);
    if (!bytes) {
        return unusableRecord(path, error);
    }
    const std::optional<PanoHead::PapywizardRecord> record
        = PanoHead::readPapywizard(*bytes, &error);
    if (!record) {
        return unusableRecord(path, error);
    }
    if (!record->hasShoot) {
        return Failure{ ExitCode::InputRefused, displayName(path),
                        QStringLiteral("no <shoot> pictures"),
                        QStringLiteral("is it an old-style Papywizard file (image/coords)?") };
    }
    if (record->shots.isEmpty()) {
        return Failure{ ExitCode::InputRefused, displayName(path),
                        QStringLiteral("its <shoot> holds no <pict>: no shot was recorded"),
                        QStringLiteral("choose the record of a finished shoot") };
    }
    return summaryOf(*record);
}

} // namespace PanoHost
