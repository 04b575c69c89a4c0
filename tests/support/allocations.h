// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/**
 * Counts the memory that the whole program holds, libraries included. A program that links this
 * replaces the allocation functions; under a sanitizer, which does the same, nothing is counted.
 */
namespace Allocations
{

/** Whether anything is counted. */
[[nodiscard]] bool areCounted();
/** Bytes held now. */
[[nodiscard]] std::int64_t held();
/** The most bytes held at a time since the last call of `resetPeak`. */
[[nodiscard]] std::int64_t peak();
/** The peak starts anew from what is held now. */
void resetPeak();

} // namespace Allocations
