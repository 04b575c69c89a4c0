// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QRect>
#include <QString>

#include <optional>

namespace PanoHost
{

/**
 * Where on its canvas the picture in the TIFF file \p path lies, as the stitching programs write it
 * down. Nothing when the file is no TIFF, or does not hold all of its picture.
 */
[[nodiscard]] std::optional<QRect> tiffPlace(const QString &path);

/** Bits of each colour in the TIFF file \p path; nothing: it is none. */
[[nodiscard]] std::optional<int> tiffBits(const QString &path);

} // namespace PanoHost
