// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/clauss/facts.h"

#include "importers/clauss/claussscript.h"
#include "importers/headfacts.h"

#include <algorithm>
#include <cmath>

namespace PanoHead
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
    return fractions == 0
        ? QString()
        : QStringLiteral("the importer reads whole degrees only; the decimals of "
                         "%1 angle%2 are cut off")
              .arg(QString::number(fractions), QLatin1String(fractions == 1 ? "" : "s"));
}

/** Refuses a script without shots too. */
std::optional<ClaussScript> scriptIn(const QByteArray &bytes, ReadError *error)
{
    const auto refuse = [&](const ReadError &why, const QString &advice) {
        const QString lineEnds = lineEndRemark(bytes);
        *error = { why.reason, why.line, lineEnds.isEmpty() ? advice : lineEnds };
        return std::nullopt;
    };
    ClaussScript script = readClaussScript(bytes);
    if (!script.isSound) {
        return refuse(script.firstError,
                      QStringLiteral("correct this line, or choose another script"));
    }
    if (script.shots.isEmpty()) {
        return refuse({ QStringLiteral("no op_shoot command: no shot was recorded"), 0, {} },
                      QStringLiteral("is it the script that the head ran?"));
    }
    return script;
}

/** Says what the reader leaves out. */
std::optional<RecordSummary> summaryOf(const QByteArray &bytes, ReadError *error)
{
    const std::optional<ClaussScript> script = scriptIn(bytes, error);
    if (!script) {
        return std::nullopt;
    }
    RecordSummary summary;
    summary.shotCount = script->shots.size();
    for (const QString &remark : { lineEndRemark(bytes), fractionRemark(bytes) }) {
        if (!remark.isEmpty()) {
            summary.remarks += remark;
        }
    }
    return summary;
}

/** Scripts know neither times nor brackets. */
std::optional<QVector<NotedShot>> shotsOf(const QByteArray &bytes, ReadError *error)
{
    const std::optional<ClaussScript> script = scriptIn(bytes, error);
    return script ? std::optional(notedShots(script->shots)) : std::nullopt;
}

std::optional<QByteArray> excerptOf(const QByteArray &bytes, const QVector<int> &shots,
                                    ReadError * /*error*/)
{
    return claussExcerpt(bytes, shots);
}

/** As the head runs it: whole degrees, an angle only where it changes. */
QByteArray scriptOf(const NotedShoot &shoot)
{
    QByteArray script;
    std::optional<long> pitchBefore;
    std::optional<long> yawBefore;
    for (const NotedShot &shot : shoot.shots) {
        const long pitch = std::lround(shot.pitchDegrees);
        const long yaw = std::lround(shot.yawDegrees);
        if (pitch != pitchBefore) {
            script += "op_v-angle=" + QByteArray::number(qint64{ pitch }) + '\n';
        }
        if (yaw != yawBefore) {
            script += "op_h-angle=" + QByteArray::number(qint64{ yaw }) + '\n';
        }
        script += "op_shoot\n";
        pitchBefore = pitch;
        yawBefore = yaw;
    }
    return script;
}

HeadFacts newFacts()
{
    HeadFacts facts;
    facts.about = &kClaussAbout;
    facts.title = "Clauss";
    facts.record = "SCRIPT.txt";
    facts.summary = &summaryOf;
    facts.shots = &shotsOf;
    facts.excerpt = &excerptOf;
    facts.write = &scriptOf;
    facts.notesWholeDegrees = true;
    return facts;
}

} // namespace

const HeadFacts &claussFacts()
{
    static const HeadFacts facts = newFacts();
    return facts;
}

} // namespace PanoHead
