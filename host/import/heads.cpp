// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/heads.h"

#include "host/model/commanderror.h"
#include "host/model/displayname.h"
#include "host/model/wordsuggestion.h"

#include <QFileInfo>

#include <algorithm>

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

QByteArray bytesOf(const QString &path)
{
    if (!QFileInfo::exists(path)) {
        throw inputRefused(displayName(path), QStringLiteral("no such record"),
                           QStringLiteral("check the name"));
    }
    PanoHead::ReadError error;
    const std::optional<QByteArray> bytes = PanoHead::readRecordFile(path, &error);
    if (!bytes) {
        throw unusable(path, error);
    }
    return *bytes;
}

/** What \p read finds in \p bytes, the record at \p path. */
template <typename T>
T foundBy(std::optional<T> (*read)(const QByteArray &, PanoHead::ReadError *),
          const QByteArray &bytes, const QString &path)
{
    PanoHead::ReadError error;
    std::optional<T> found = read(bytes, &error);
    if (!found) {
        throw unusable(path, error);
    }
    return *std::move(found);
}

QVector<NotedShot> shotsIn(const QByteArray &bytes, const HeadFacts &head, const QString &path)
{
    return head.shots == nullptr ? QVector<NotedShot>() : foundBy(head.shots, bytes, path);
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

RecordSummary readRecord(const HeadFacts &head, const QString &path, QVector<NotedShot> *shots)
{
    const QByteArray bytes = bytesOf(path);
    RecordSummary summary = foundBy(head.summary, bytes, path);
    if (shots != nullptr) {
        *shots = shotsIn(bytes, head, path);
    }
    return summary;
}

Result<QByteArray> recordExcerpt(const HeadFacts &head, const QString &path,
                                 const QVector<int> &shots)
{
    try {
        const QByteArray bytes = bytesOf(path);
        const QVector<NotedShot> all = shotsIn(bytes, head, path);
        PanoHead::ReadError error;
        const std::optional<QByteArray> excerpt = head.excerpt(bytes, shots, &error);
        if (!excerpt) {
            return unusable(path, error).failure();
        }
        const QVector<NotedShot> written = shotsIn(*excerpt, head, path);
        const auto isRight = [&](const NotedShot &shot, int number) {
            const NotedShot &own = all.at(number);
            return shot.yawDegrees == own.yawDegrees && shot.pitchDegrees == own.pitchDegrees;
        };
        if (!std::equal(written.begin(), written.end(), shots.begin(), shots.end(), isRight)) {
            return Failure{ ExitCode::InputRefused, displayName(path),
                            QStringLiteral("no record of some of its shots can be made"),
                            QStringLiteral("take the shots by hand") };
        }
        return *excerpt;
    } catch (const CommandError &error) {
        return error.failure();
    }
}

Result<QVector<NotedShot>> readShots(const HeadFacts &head, const QString &path)
{
    try {
        return shotsIn(bytesOf(path), head, path);
    } catch (const CommandError &error) {
        return error.failure();
    }
}

} // namespace PanoHost
