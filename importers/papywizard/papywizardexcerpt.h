// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "shoot/recordfile.h"

#include <QByteArray>
#include <QVector>

#include <optional>

namespace PanoHead
{

/**
 * The record in \p bytes, which the reader accepts, with those of its pictures only that \p shots
 * counts from 0, rising; all else as it was, in UTF-8. Pictures keep their numbers, times and
 * angles. Nothing where the record is one that only a lenient parser takes; \p error, which may be
 * null, then says why.
 */
[[nodiscard]] std::optional<QByteArray>
papywizardExcerpt(const QByteArray &bytes, const QVector<int> &shots, ReadError *error);

} // namespace PanoHead
