// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "shoot/recordfile.h"
#include "shoot/recordlimits.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace PanoHead
{

/**
 * Scans \p text, an XML document decoded to UTF-16, once from start to end and says why the parser
 * must not see it; no answer means that it may. Whether the text is well-formed is not decided
 * here: from the parser's first error on nothing matters.
 */
[[nodiscard]] std::optional<ReadError> xmlRefusal(const QString &text,
                                                  const XmlLimits &limits = {});

/** The text of \p bytes as Qt's XML parser decodes it: by byte order mark, declaration or UTF-8. */
[[nodiscard]] QString decodeXml(const QByteArray &bytes);

} // namespace PanoHead
