// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

class XIApplication;

namespace PanoHead
{

/**
 * The host, or null when there is no application object or it does not declare "XIApplication" to
 * the meta-object system. Asked afresh for each operation; nobody keeps the answer.
 */
[[nodiscard]] XIApplication *findHost();

} // namespace PanoHead
