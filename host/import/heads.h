// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "importers/headfacts.h"

#include <QStringList>

namespace PanoHost
{

using PanoHead::HeadFacts;
using PanoHead::RecordSummary;

/** As on the command line. */
[[nodiscard]] QStringList headNames();

/** The head \p name; throws the usage error for an unknown one. */
[[nodiscard]] const HeadFacts &headNamed(const QString &name);

/**
 * Reads the record at \p path with the library's own reader of \p head, which, unlike the page,
 * says what is wrong with it and where. Throws the reason when it cannot be used.
 */
[[nodiscard]] RecordSummary readRecord(const HeadFacts &head, const QString &path);

} // namespace PanoHost
