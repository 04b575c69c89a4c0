// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/**
 * Lens projection, as it appears in the description handed to the host and as index of the
 * pages' lens combo boxes.
 */
enum class LensModel : qint32 {
    NotChosen
    = -1, ///< take the lens type of the head's record (generator argument, record default)
    Standard = 0, ///< rectilinear
    Fisheye = 1, ///< equidistant fisheye
};

namespace PanoHead
{

/** The diagonal of a 36 mm x 24 mm frame. */
constexpr double kFullFrameDiagonalMm = 43.266615305567875;

/** Whether \p value, a number from a host or a record, names a lens: only then may it be used. */
[[nodiscard]] constexpr bool isLensModel(int value)
{
    return value == static_cast<int>(LensModel::Standard)
        || value == static_cast<int>(LensModel::Fisheye);
}

} // namespace PanoHead
