// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <new>

namespace PanoHead
{

/** \p picture (a QImage or QPixmap that was given a size); throws when it has got no memory. */
template <typename Picture> [[nodiscard]] Picture withPixels(Picture picture)
{
    if (picture.isNull()) {
        throw std::bad_alloc();
    }
    return picture;
}

} // namespace PanoHead
