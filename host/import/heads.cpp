// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/heads.h"

#include "host/model/commanderror.h"
#include "host/model/displayname.h"
#include "host/model/wordsuggestion.h"

#include <QFileInfo>

namespace PanoHost
{

namespace
{

/** "RECORD: line N: reason; advice". */
CommandError unusable(const QString &path, const PanoHead::ReadError &error)
{
    const QString why = error.line > 0
        ? QStringLiteral("line %1: %2").arg(QString::number(error.line), error.reason)
        : error.reason;
    return inputRefused(displayName(path), why,
                        error.advice.isEmpty()
                            ? QStringLiteral("is it the record that the head wrote?")
                            : error.advice);
}

} // namespace

QStringList headNames()
{
    QStringList names;
    for (const HeadFacts *head : PanoHead::allHeadFacts()) {
        names += head->name();
    }
    return names;
}

const HeadFacts &headNamed(const QString &name)
{
    const HeadFacts *head = PanoHead::headFactsOf(name);
    if (head == nullptr) {
        throw usageError(
            QStringLiteral("unknown head '%1'%2").arg(name, suggestion(name, headNames())),
            QStringLiteral("heads: %1").arg(headNames().join(QLatin1String(", "))));
    }
    return *head;
}

RecordSummary readRecord(const HeadFacts &head, const QString &path)
{
    if (!QFileInfo::exists(path)) {
        throw inputRefused(displayName(path), QStringLiteral("no such record"),
                           QStringLiteral("check the name"));
    }
    PanoHead::ReadError error;
    const std::optional<QByteArray> bytes = PanoHead::readRecordFile(path, &error);
    const std::optional<RecordSummary> summary
        = bytes ? head.summary(*bytes, &error) : std::nullopt;
    if (!summary) {
        throw unusable(path, error);
    }
    return *summary;
}

} // namespace PanoHost
