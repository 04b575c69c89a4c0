// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/csv/facts.h"

#include "importers/csv/csvreader.h"
#include "importers/headfacts.h"

namespace PanoHead
{

namespace
{

/** Refuses an empty list too. */
std::optional<QVector<ShootData>> shotsIn(const QByteArray &bytes, ReadError *error)
{
    auto shots = readCsv(bytes, error);
    if (shots && shots->isEmpty()) {
        *error = { QStringLiteral("no line: no shot was recorded"), 0, {} };
        return std::nullopt;
    }
    return shots;
}

std::optional<RecordSummary> summaryOf(const QByteArray &bytes, ReadError *error)
{
    const auto shots = shotsIn(bytes, error);
    if (!shots) {
        return std::nullopt;
    }
    RecordSummary summary;
    summary.shotCount = shots->size();
    return summary;
}

std::optional<QVector<NotedShot>> shotsOf(const QByteArray &bytes, ReadError *error)
{
    const auto shots = shotsIn(bytes, error);
    return shots ? std::optional(notedShots(*shots)) : std::nullopt;
}

QByteArray csvOf(const NotedShoot &shoot)
{
    QByteArray csv;
    for (int i = 0; i < shoot.shots.size(); ++i) {
        const NotedShot &shot = shoot.shots.at(i);
        csv += QStringLiteral("IMG_%1.jpg,%2,%3\n")
                   .arg(i + 1, 4, 10, QLatin1Char('0'))
                   .arg(shot.yawDegrees, 0, 'f', 3)
                   .arg(shot.pitchDegrees, 0, 'f', 3)
                   .toLatin1();
    }
    return csv;
}

HeadFacts newFacts()
{
    HeadFacts facts;
    facts.about = &kCsvAbout;
    facts.title = "CSV list";
    facts.record = "SHOTS.csv";
    facts.summary = &summaryOf;
    facts.shots = &shotsOf;
    facts.write = &csvOf;
    return facts;
}

} // namespace

const HeadFacts &csvFacts()
{
    static const HeadFacts facts = newFacts();
    return facts;
}

} // namespace PanoHead
