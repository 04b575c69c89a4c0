// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <memory>

#include <tiffio.h>

namespace PanoHost
{

struct TiffCloser {
    void operator()(TIFF *file) const { TIFFClose(file); }
};
/** An open file of libtiff, null where it could not be opened. */
using TiffHandle = std::unique_ptr<TIFF, TiffCloser>;

} // namespace PanoHost
