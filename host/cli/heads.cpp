// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/heads.h"

#include "host/cli/claussrecord.h"
#include "host/cli/commanderror.h"
#include "host/cli/displayname.h"
#include "host/cli/papywizardrecord.h"
#include "host/cli/wordsuggestion.h"

#include <QFileInfo>

#include <algorithm>

namespace PanoHost
{

const QVector<HeadRow> &heads()
{
    static const QVector<HeadRow> rows{
        { "papywizard", "RECORD.xml", PageDriver::RecordEntry::TextEdited, readPapywizardSummary,
          true,
          "focal|lens|rotate|invert-pitch|detect|stack|skip-optimization|recorded-location"
          "|clean-links|no-clean-links|auto-detection|no-auto-detection|ignore-exif-rotation"
          "|order" },
        { "vrdrive2", "RECORD.xml", PageDriver::RecordEntry::TextEdited, readPapywizardSummary,
          true,
          "focal|lens|rotate|invert-pitch|output-mode|detect|stack|skip-optimization"
          "|recorded-location|clean-links|no-clean-links|auto-detection|no-auto-detection"
          "|ignore-exif-rotation|order" },
        { "clauss", "SCRIPT.txt", PageDriver::RecordEntry::EditingFinished, readClaussSummary,
          false,
          "focal|lens|invert-pitch|skip-optimization|recorded-location|clean-links"
          "|no-clean-links|auto-detection|no-auto-detection|ignore-exif-rotation|order" },
        { "gigapan", nullptr, PageDriver::RecordEntry::TextEdited, nullptr, false,
          "focal|lens|rows|mode|bracket|ignore|wrap360|overlap|detect|stack|skip-optimization"
          "|clean-links|no-clean-links|auto-detection|no-auto-detection|ignore-exif-rotation"
          "|order" },
    };
    return rows;
}

QStringList headNames()
{
    QStringList names;
    for (const HeadRow &row : heads()) {
        names += QString::fromLatin1(row.name);
    }
    return names;
}

RecordSummary readRecord(const HeadRow &head, const QString &path)
{
    if (!QFileInfo::exists(path)) {
        throw inputRefused(displayName(path), QStringLiteral("no such record"),
                           QStringLiteral("check the name"));
    }
    return valueOrThrow(head.readRecord(path));
}

const HeadRow &headNamed(const QString &name)
{
    const auto row = std::find_if(heads().begin(), heads().end(), [&name](const HeadRow &head) {
        return name == QLatin1String(head.name);
    });
    if (row == heads().end()) {
        throw usageError(
            QStringLiteral("unknown head '%1'%2").arg(name, suggestion(name, headNames())),
            QStringLiteral("heads: %1").arg(headNames().join(QLatin1String(", "))));
    }
    return *row;
}

} // namespace PanoHost
