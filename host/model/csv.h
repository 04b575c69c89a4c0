// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>
#include <QVector>

namespace PanoHost
{

/**
 * \p lines of fields as comma-separated values (RFC 4180): lines end in CR LF, fields that hold
 * commas, quotes or line ends stand in quotes. UTF-8 behind its mark, without which spreadsheets
 * take names for those of another alphabet.
 */
[[nodiscard]] QByteArray csvText(const QVector<QStringList> &lines);

} // namespace PanoHost
