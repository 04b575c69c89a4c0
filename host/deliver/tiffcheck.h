// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QSize>

class QIODevice;

namespace PanoHost
{

/**
 * Whether \p device holds a TIFF or BigTIFF in the byte order of Intel whose first picture has
 * \p size, and all tiles that its pictures name.
 */
[[nodiscard]] bool isCompleteTiff(QIODevice &device, const QSize &size);

} // namespace PanoHost
