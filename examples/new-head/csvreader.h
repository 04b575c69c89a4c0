// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "model/shootdata.h"
#include "shoot/recordfile.h"

#include <QByteArray>
#include <QVector>

#include <optional>

namespace PanoHead
{

/**
 * The shots of a list: one line each, the photo's file name, yaw and pitch in degrees, separated by
 * commas; what comes behind is left to others. Lines end with or without a carriage return, blank
 * ones are skipped. Nothing, with the reason and the line, when a line has fewer parts, an angle is
 * no finite number within a thousand turns, or there are more than `kMaxRecordedShots` shots.
 */
[[nodiscard]] std::optional<QVector<ShootData>> readCsv(const QByteArray &bytes, ReadError *error);

} // namespace PanoHead
