// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/stitch/stitchneeds.h"

#include "host/model/parallel.h"
#include "host/model/safefile.h"
#include "host/model/said.h"

#include <QFileInfo>

#include <algorithm>
#include <limits>

namespace PanoHost
{
namespace
{

qint64 pixelsOf(const QSize &size)
{
    return static_cast<qint64>(size.width()) * size.height();
}

/* Measured with 2,048 and 8,192 pixels of width: what the tools hold at a time, in copies of what
 * they read or write. */
constexpr qint64 kWarpCopies = 2; ///< of photo and result: nona
constexpr qint64 kSeamBytes = 5; ///< a pixel, beside the picture itself: verdandi, 8.4 in all
constexpr qint64 kPyramidCopies = 6; ///< enblend, 10 to 24 bytes a pixel, as photos overlap
constexpr qint64 kFusionCopies = 10; ///< enfuse, 37 bytes a pixel
constexpr qint64 kProgramBytes = 60LL << 20;

} // namespace

StitchNeeds needsOf(const StitchPlan &plan)
{
    const StitchLayout &layout = plan.layout;
    const qint64 perPixel = plan.bytesPerPixel();
    StitchNeeds needs{ layout.canvas, layout.area.size() };
    qint64 largestWarp = 0;
    for (const StitchWarp &warp : plan.warps) {
        const qint64 pixels = pixelsOf(layout.boundsOf(warp.image).size());
        const qint64 photo = pixelsOf(layout.project.images()[warp.image].size);
        needs.diskBytes += pixels * perPixel;
        if (plan.options.output == StitchOutput::Hdr) {
            needs.diskBytes += photo * 3 * 4;
        }
        largestWarp = std::max(largestWarp, (pixels + photo) * perPixel * kWarpCopies);
    }
    for (const StitchJoin &join : plan.joins) {
        QRect all;
        for (const int warp : join.warps) {
            all |= layout.boundsOf(plan.warps.at(warp).image);
        }
        // The levels once more while they are joined.
        needs.diskBytes += (1 + join.warps.size()) * pixelsOf(all.size()) * perPixel;
    }
    // The blended picture, cropped and padded, and once more while it is delivered.
    constexpr qint64 kFinalCopies = 3;
    const qint64 picture = pixelsOf(layout.area.size());
    const qint64 layers = plan.isFused() ? plan.layers.size() : 0;
    needs.diskBytes += (kFinalCopies + layers) * picture * perPixel;
    const qint64 perBlendedPixel = plan.isFused()  ? kFusionCopies * perPixel
        : plan.options.blender == Blender::Enblend ? kPyramidCopies * perPixel
                                                   : perPixel + kSeamBytes;
    const int jobs = std::min(threadCount(plan.options.jobs), plan.warps.size());
    needs.memoryBytes = std::max({ jobs * (largestWarp + kProgramBytes),
                                   picture * perBlendedPixel + largestWarp + kProgramBytes });
    return needs;
}

std::optional<Failure> lackOfRoom(const StitchNeeds &needs, const QString &folder, qint64 doneBytes,
                                  qint64 diskBytes, qint64 memoryBytes)
{
    const qint64 missing = needs.diskBytes - doneBytes;
    if (missing > diskBytes) {
        return Failure{ ExitCode::InputRefused, folder,
                        Said::tr("the stitch needs %1 there, %2 are free")
                            .arg(bytesText(missing), bytesText(diskBytes)),
                        Said::tr("make room, name another place with -o, or choose a smaller "
                                 "--size") };
    }
    if (needs.memoryBytes > memoryBytes) {
        return Failure{ ExitCode::InputRefused, Said::tr("memory"),
                        Said::tr("the stitch needs about %1, %2 are available")
                            .arg(bytesText(needs.memoryBytes), bytesText(memoryBytes)),
                        Said::tr("close other programs, or choose --jobs 1 or a smaller "
                                 "--size") };
    }
    return {};
}

qint64 availableMemory()
{
    constexpr qint64 kMostBytes = 1 << 16;
    constexpr qint64 kKilobyte = 1024;
    const Result<QByteArray> info = readRegularFile(QStringLiteral("/proc/meminfo"), kMostBytes);
    const QList<QByteArray> lines = info ? info.value().split('\n') : QList<QByteArray>();
    qint64 free = 0;
    for (const QByteArray &line : lines) {
        // What is in swap space counts too: blending reads its pictures from begin to end.
        if (line.startsWith("MemAvailable:") || line.startsWith("SwapFree:")) {
            free += line.simplified().split(' ').value(1).toLongLong() * kKilobyte;
        }
    }
    return free > 0 ? free : std::numeric_limits<qint64>::max();
}

QString bytesText(qint64 bytes)
{
    constexpr double kMega = 1e6;
    constexpr double kGiga = 1e9;
    const auto value = static_cast<double>(bytes);
    return value < kGiga ? QStringLiteral("%1 MB").arg(value / kMega, 0, 'f', 0)
                         : QStringLiteral("%1 GB").arg(value / kGiga, 0, 'f', 1);
}

} // namespace PanoHost
