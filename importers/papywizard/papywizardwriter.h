// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace PanoHead
{

struct NotedShoot;

/**
 * A record in the format of the Papywizard controller, version "c", with the habits of real files:
 * element texts between line breaks and blanks, `time` as 2026-05-01_10h20m30s, a `roll` attribute,
 * angles with one decimal. With several exposures per position there is one `pict` for each photo.
 */
[[nodiscard]] QByteArray writePapywizard(const NotedShoot &shoot);

} // namespace PanoHead
