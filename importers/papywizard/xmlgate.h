// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "shoot/recordfile.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace PanoHead
{

/**
 * What Qt's XML parser may be given. It recurses per element, keeps every node, expands entities
 * without a total limit and is quadratic in entity declarations; within these limits it needs
 * neither much stack nor much memory nor much time.
 *
 * Entities that a document declares for itself must be plain text: no markup, no references to
 * other entities, no parameter entities. Only then a scan without expanding sees what the parser
 * sees.
 */
struct XmlLimits {
    int maxDepth = 256;
    int maxNodes = 1'100'000; ///< elements, attributes, text runs, comments and the like together
    int maxAttributes = 4'096; ///< of one element
    int maxDoctypeLength = 4'096; ///< characters, of all declarations together
    int maxExpansion = 24'000; ///< references times length of the declarations, characters
    qint64 maxMemory = 440'000'000; ///< bytes that the parser would take, estimated
};

/**
 * Scans \p text, an XML document decoded to UTF-16, once from start to end and says why the parser
 * must not see it; no answer means that it may. Whether the text is well-formed is not decided
 * here: from the parser's first error on nothing matters.
 */
[[nodiscard]] std::optional<ReadError> xmlRefusal(const QString &text,
                                                  const XmlLimits &limits = {});

/** The text of \p bytes as Qt's DOM decodes it: by byte order mark, declaration or UTF-8. */
[[nodiscard]] QString decodeXml(const QByteArray &bytes);

} // namespace PanoHead
