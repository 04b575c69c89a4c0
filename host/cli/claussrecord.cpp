// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/cli/claussrecord.h"

#include "host/cli/displayname.h"
#include "host/cli/recorderror.h"
#include "importers/clauss/claussscript.h"

#include <algorithm>

namespace PanoHost
{

namespace
{

/** Nothing where the script is text with lines. */
QString lineEndRemark(const QByteArray &bytes)
{
    const int nul = bytes.indexOf('\0');
    if (nul >= 0) {
        const auto line = std::count(bytes.begin(), bytes.begin() + nul, '\n') + 1;
        return QStringLiteral("a NUL byte in line %1 ends the script; is it UTF-16? save it as "
                              "plain text")
            .arg(line);
    }
    if (bytes.contains('\r') && !bytes.contains('\n')) {
        return QStringLiteral("its lines end in carriage returns alone, which makes one line of "
                              "all; save it with line feeds");
    }
    return {};
}

/** Whether \p line sets an angle with a fraction that is not 0. */
bool setsFraction(const QByteArray &line)
{
    if (!line.startsWith("op_h-angle=") && !line.startsWith("op_v-angle=")) {
        return false;
    }
    const int point = line.indexOf('.');
    if (point < 0) {
        return false;
    }
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    const auto *const end = std::find_if_not(line.begin() + point + 1, line.end(), isDigit);
    return std::any_of(line.begin() + point + 1, end, [](char c) { return c != '0'; });
}

QString fractionRemark(const QByteArray &bytes)
{
    int fractions = 0;
    int start = 0;
    while (start < bytes.size()) {
        const int newline = bytes.indexOf('\n', start);
        const int end = newline < 0 ? bytes.size() : newline;
        const bool found
            = setsFraction(QByteArray::fromRawData(bytes.constData() + start, end - start));
        fractions += found ? 1 : 0;
        start = end + 1;
    }
    return fractions == 0 ? QString()
                          : QStringLiteral("the importer reads whole degrees only; the decimals of "
                                           "%1 are cut off")
                                .arg(counted(fractions, "angle"));
}

} // namespace

Result<RecordSummary> readClaussSummary(const QString &path)
{
    PanoHead::ReadError error;
    const std::optional<QByteArray> bytes = PanoHead::readRecordFile(path, &error);
    if (!bytes) {
        return unusableRecord(path, error);
    }
    RecordSummary summary;
    const QString lineEnds = lineEndRemark(*bytes);
    const PanoHead::ClaussScript script = PanoHead::readClaussScript(*bytes);
    if (!script.isSound) {
        return unusableRecord(path, script.firstError,
                              lineEnds.isEmpty()
                                  ? QStringLiteral("correct this line, or choose another script")
                                  : lineEnds);
    }
    if (script.shots.isEmpty()) {
        return unusableRecord(
            path, { QStringLiteral("no op_shoot command: no shot was recorded"), 0 },
            lineEnds.isEmpty() ? QStringLiteral("is it the script that the head ran?") : lineEnds);
    }
    summary.shotCount = script.shots.size();
    for (const QString &remark : { lineEnds, fractionRemark(*bytes) }) {
        if (!remark.isEmpty()) {
            summary.remarks += remark;
        }
    }
    return summary;
}

} // namespace PanoHost
