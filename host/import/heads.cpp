// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/import/heads.h"

#include "host/model/commanderror.h"
#include "host/model/displayname.h"
#include "host/model/said.h"
#include "host/model/wordsuggestion.h"

#include <QFileInfo>

#include <algorithm>

namespace PanoHost
{

namespace
{

/** What readers say, where it is known beforehand. */
QString inOurLanguage(const QString &said)
{
    [[maybe_unused]] static const char *const kTranslated[] = {
        QT_TRANSLATE_NOOP("PanoHost::Said", "no such file"),
        QT_TRANSLATE_NOOP("PanoHost::Said", "not a regular file"),
        QT_TRANSLATE_NOOP("PanoHost::Said", "no <shoot> pictures"),
        QT_TRANSLATE_NOOP("PanoHost::Said", "is it an old-style Papywizard file (image/coords)?"),
        QT_TRANSLATE_NOOP("PanoHost::Said", "its <shoot> holds no <pict>: no shot was recorded"),
        QT_TRANSLATE_NOOP("PanoHost::Said", "choose the record of a finished shoot"),
        QT_TRANSLATE_NOOP("PanoHost::Said", "no op_shoot command: no shot was recorded"),
        QT_TRANSLATE_NOOP("PanoHost::Said", "is it the script that the head ran?"),
        QT_TRANSLATE_NOOP("PanoHost::Said", "correct this line, or choose another script"),
    };
    return Said::tr(said.toUtf8().constData());
}

/** "RECORD: line N: reason; advice". */
CommandError unusable(const QString &path, const PanoHead::ReadError &error)
{
    const QString reason = inOurLanguage(error.reason);
    const QString why = error.line > 0
        ? Said::tr("line %1: %2").arg(QString::number(error.line), reason)
        : reason;
    return inputRefused(displayName(path), why,
                        error.advice.isEmpty() ? Said::tr("is it the record that the head wrote?")
                                               : inOurLanguage(error.advice));
}

QByteArray bytesOf(const QString &path)
{
    if (!QFileInfo::exists(path)) {
        throw inputRefused(displayName(path), Said::tr("no such record"),
                           Said::tr("check the name"));
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
        throw usageError(Said::tr("unknown head '%1'%2").arg(name, suggestion(name, headNames())),
                         Said::tr("heads: %1").arg(headNames().join(QLatin1String(", "))));
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
                            Said::tr("no record of some of its shots can be made"),
                            Said::tr("take the shots by hand") };
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
