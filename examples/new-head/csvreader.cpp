// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/csv/csvreader.h"

#include "shoot/recordlimits.h"

#include <cmath>

namespace PanoHead
{

namespace
{

constexpr float kFarthest = 360'000.0F; // degrees

/** The part of \p line behind its comma number \p index - 1; null when there are not so many. */
QByteArray part(const QByteArray &line, int index)
{
    int start = 0;
    for (; index > 0; --index) {
        const int comma = line.indexOf(',', start);
        if (comma < 0) {
            return {};
        }
        start = comma + 1;
    }
    const int end = line.indexOf(',', start);
    return line.mid(start, end < 0 ? -1 : end - start);
}

std::optional<float> angle(const QByteArray &text)
{
    bool ok = false;
    const float value = text.trimmed().toFloat(&ok);
    // Also false for what is not a number.
    return ok && std::abs(value) <= kFarthest ? std::optional<float>(value) : std::nullopt;
}

} // namespace

std::optional<QVector<ShootData>> readCsv(const QByteArray &bytes, ReadError *error)
{
    QVector<ShootData> shots;
    int number = 0;
    for (int start = 0; start < bytes.size();) {
        const int newline = bytes.indexOf('\n', start);
        const int end = newline < 0 ? bytes.size() : newline;
        // No copy: a line may be as long as the file.
        const QByteArray line = QByteArray::fromRawData(bytes.constData() + start, end - start);
        start = end + 1;
        ++number;
        if (line.isEmpty() || line == "\r") {
            continue;
        }
        const auto yaw = angle(part(line, 1));
        const auto pitch = angle(part(line, 2));
        if (!yaw || !pitch) {
            *error = { QStringLiteral("not a file name, yaw and pitch"), number, {} };
            return std::nullopt;
        }
        if (shots.size() == kMaxRecordedShots) {
            *error = { QStringLiteral("more than %1 shots").arg(kMaxRecordedShots), number, {} };
            return std::nullopt;
        }
        ShootData shot;
        shot.yaw = *yaw;
        shot.pitch = *pitch;
        shot.id = shots.size();
        shots.append(shot);
    }
    return shots;
}

} // namespace PanoHead
