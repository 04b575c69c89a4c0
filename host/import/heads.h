// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/model/result.h"
#include "importers/headfacts.h"

#include <QStringList>

namespace PanoHost
{

using PanoHead::HeadFacts;
using PanoHead::NotedShot;
using PanoHead::RecordSummary;

/** As on the command line. */
[[nodiscard]] QStringList headNames();

/** The head \p name; throws the usage error for an unknown one. */
[[nodiscard]] const HeadFacts &headNamed(const QString &name);

/**
 * Reads the record at \p path with the library's own reader of \p head, which, unlike the page,
 * says what is wrong with it and where. Throws the reason when it cannot be used. \p shots, where
 * it is not null, becomes what `readShots` answers, without opening the file again.
 */
[[nodiscard]] RecordSummary readRecord(const HeadFacts &head, const QString &path,
                                       QVector<NotedShot> *shots = nullptr);
/**
 * Every shot of that record, in the order in which photos belong to them. Empty when \p head does
 * not tell its shots.
 */
[[nodiscard]] Result<QVector<NotedShot>> readShots(const HeadFacts &head, const QString &path);
/**
 * The record at \p path with only those of its shots that \p shots counts from 0, rising: for
 * \p head, which runs records, to take these again. Read again before it is answered.
 */
[[nodiscard]] Result<QByteArray> recordExcerpt(const HeadFacts &head, const QString &path,
                                               const QVector<int> &shots);

} // namespace PanoHost
