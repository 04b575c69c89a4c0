// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QIcon>

namespace PanoHost
{

[[nodiscard]] QIcon programIcon();

} // namespace PanoHost
