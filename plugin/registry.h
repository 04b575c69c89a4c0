// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <vector>

namespace PanoHead
{

constexpr int kEveryKind = ~0;

/** An importer that the library offers. */
struct Registration {
    int kinds; ///< created when the host wants any of these
    QObject *(*create)();
};

/** Every importer, in the order in which hosts list them. */
[[nodiscard]] std::vector<Registration> importers();

} // namespace PanoHead
