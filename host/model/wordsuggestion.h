// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace PanoHost
{

/**
 * The one of \p known that somebody who typed \p word most likely meant; empty when none is close.
 * Close is at most a third of the letters wrong, missing, extra or swapped with their neighbour.
 */
[[nodiscard]] QString closestWord(const QString &word, const QStringList &known);

/** "; did you mean 'gigapan'?" or an empty string: the end of an error line. */
[[nodiscard]] QString suggestion(const QString &word, const QStringList &known);

} // namespace PanoHost
