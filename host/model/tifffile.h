// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QSize>

class QIODevice;

namespace PanoHost
{

/**
 * Whether \p device holds a TIFF or BigTIFF in the byte order of Intel whose first picture has
 * \p size, and all tiles that its pictures name.
 */
[[nodiscard]] bool isCompleteTiff(QIODevice &device, const QSize &size);

/** The XMP packet of the first picture of the TIFF or BigTIFF in \p device, of the same byte order;
 * empty: there is none. Memory and time taken are bounded whatever the file claims. */
[[nodiscard]] QByteArray tiffXmp(QIODevice &device);

} // namespace PanoHost
