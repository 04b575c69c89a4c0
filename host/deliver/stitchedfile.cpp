// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/stitchedfile.h"

#include "host/model/said.h"

namespace PanoHost
{
namespace
{

VipsFile::Sample sampleOf(StitchedPicture::Depth depth)
{
    switch (depth) {
    case StitchedPicture::Depth::Bits8:
        return VipsFile::Sample::Bits8;
    case StitchedPicture::Depth::Bits16:
        return VipsFile::Sample::Bits16;
    case StitchedPicture::Depth::Radiance:
        break;
    }
    return VipsFile::Sample::Float;
}

} // namespace

Result<VipsFile> openStitched(const StitchedPicture &picture)
{
    constexpr int kBands = 4;
    Result<VipsFile> file = VipsFile::open(picture.path);
    if (!file
        || (file.value().size() == picture.size && file.value().bands() == kBands
            && file.value().sample() == sampleOf(picture.depth))) {
        return file;
    }
    return Failure{ ExitCode::ToolFailed, picture.path,
                    Said::tr("is not the panorama that was stitched last"),
                    Said::tr("remove it and try again") };
}

} // namespace PanoHost
