// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace PanoHead
{

struct AngleRange;

/** Every photo's name without folder, quoted and followed by a semicolon and a blank. */
[[nodiscard]] QString photoNames(const QStringList &files);

/** The count, or \p notAvailable below 1. */
[[nodiscard]] QString countText(int count, const QString &notAvailable);

/** "minimum,maximum" with six significant digits, or \p notAvailable for an unknown range. */
[[nodiscard]] QString rangeText(const AngleRange &range, const QString &notAvailable);

/** Millimetres with two decimals, like "24.00mm". */
[[nodiscard]] QString focalText(double focalMm);

/** Text and colour of a warning line; rich text, so \p warning must not come from a record. */
[[nodiscard]] QString warningText(const QString &warning);

} // namespace PanoHead
