// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace PanoHead
{

// What a record may hold; docs/security.md promises it. Whatever keeps within these limits is read
// and drawn within seconds, and never takes more than 1 GB meanwhile.

constexpr qint64 kMaxRecordBytes = 64LL * 1024 * 1024;

/** Shots of one record: 31,000 positions with 3 exposures each, and room. */
constexpr int kMaxRecordedShots = 130'000;

/**
 * What Qt's XML parser may be given. It recurses per element, expands entities without a total
 * limit and is quadratic in entity declarations.
 *
 * Entities that a document declares for itself must be plain text: no markup, no references to
 * other entities, no parameter entities. Only then a scan without expanding sees what the parser
 * sees.
 */
struct XmlLimits {
    int maxDepth = 256;
    int maxNodes = 8'000'000; ///< elements, attributes, text runs, comments and the like together
    int maxAttributes = 4'096; ///< of one element
    int maxDoctypeLength = 4'096; ///< characters, of all declarations together
    /** Characters: references to entities of its own times length of the declarations. */
    int maxExpansion = 24'000;
};

} // namespace PanoHead
