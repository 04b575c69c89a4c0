// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/stitch/stitchlayout.h"

#include "host/align/alignshoot.h"
#include "host/align/diagnosis.h"
#include "host/align/median.h"
#include "host/model/canvas.h"
#include "host/model/ptoline.h"
#include "host/model/said.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace PanoHost
{
namespace
{

/** Of the canvas that a project may ask for; larger ones are no pictures any more. */
constexpr int kLongestSide = 2'000'000;

/** All photos turned alike until the horizon is level. */
void level(PtoFile &project)
{
    const AlignShoot shoot = shootOf(project);
    const Eigen::Matrix3d upright = levelling(shoot.model);
    for (const int image : shoot.imageOfView) {
        const PtoImage &placed = project.images()[image];
        project.place(image, { anglesOf(upright * rotationOf(placed.angles)), {} });
    }
}

double scaleOf(const StitchSize &size, int fullWidth)
{
    constexpr double kPercent = 100.0;
    switch (size.unit) {
    case StitchSize::Unit::Percent:
        return size.value / kPercent;
    case StitchSize::Unit::Width:
        return size.value / fullWidth;
    case StitchSize::Unit::Full:
        break;
    }
    return 1.0;
}

QRect scaled(const QRect &crop, double horizontally, double vertically)
{
    const QPoint from(static_cast<int>(std::floor(crop.left() * horizontally)),
                      static_cast<int>(std::floor(crop.top() * vertically)));
    const QPoint end(static_cast<int>(std::ceil((crop.left() + crop.width()) * horizontally)),
                     static_cast<int>(std::ceil((crop.top() + crop.height()) * vertically)));
    return { from, QSize(end.x() - from.x(), end.y() - from.y()) };
}

double usualExposure(const PtoFile &project)
{
    std::vector<double> known;
    for (const PtoImage &image : project.images()) {
        if (image.stackMaster < 0 && image.exposureValue) {
            known.push_back(*image.exposureValue);
        }
    }
    return known.empty() ? 0.0 : median(known);
}

QVector<QVector<int>> stacksOf(const PtoFile &project, StitchOutput output)
{
    QVector<QVector<int>> stacks;
    for (const std::vector<int> &position : shootOf(project).positions) {
        QVector<int> stack(position.cbegin(), position.cend());
        if (output == StitchOutput::Ldr) {
            stack.resize(1);
        }
        stacks += stack;
    }
    return stacks;
}

Failure refusedSize(const QSizeF &size)
{
    return { ExitCode::InputRefused, Said::tr("size of the panorama"),
             Said::tr("%1 x %2 pixels cannot be made")
                 .arg(size.width(), 0, 'f', 0)
                 .arg(size.height(), 0, 'f', 0),
             Said::tr("choose another --size") };
}

} // namespace

QSize StitchLayout::sphere() const
{
    return { 2 * canvas.height(), canvas.height() };
}

QByteArray StitchLayout::panoramaLine(double value) const
{
    return "p f2 w" + QByteArray::number(canvas.width()) + " h"
        + QByteArray::number(canvas.height()) + " v"
        + QByteArray::number(horizontalFovDegrees, 'g', 9) + " k0 E" + ptoNumber(value, 6)
        + " R0 n\"TIFF_m c:NONE r:CROP\"\n";
}

QRect StitchLayout::boundsOf(int image) const
{
    const PtoImage &placed = project.images()[image];
    const Coverage covered = coverageOf(
        { { placed.size, placed.focalPixels(), placed.lens, placed.angles.yaw - yawCentreDegrees,
            placed.angles.pitch, placed.angles.roll } });
    const double perDegree = canvas.width() / horizontalFovDegrees;
    const double left = canvas.width() / 2.0
        + (covered.yawCentreDegrees - covered.yawSpanDegrees / 2.0) * perDegree;
    const double right = left + covered.yawSpanDegrees * perDegree;
    const QRect bounds(QPoint(static_cast<int>(std::floor(left)) - 1,
                              static_cast<int>(std::floor(
                                  canvas.height() / 2.0 - covered.highestPitchDegrees * perDegree))
                                  - 1),
                       QPoint(static_cast<int>(std::ceil(right)) + 1,
                              static_cast<int>(std::ceil(canvas.height() / 2.0
                                                         - covered.lowestPitchDegrees * perDegree))
                                  + 1));
    const QRect all(QPoint(0, 0), canvas);
    // Across the join nona writes the whole width.
    const bool crosses = isFullTurn() && (bounds.left() < 0 || bounds.right() >= canvas.width());
    return (crosses ? QRect(0, bounds.top(), canvas.width(), bounds.height()) : bounds)
        .intersected(all);
}

double StitchLayout::exposureOf(int image) const
{
    return project.images()[image].exposureValue.value_or(exposure);
}

Result<StitchLayout> layOut(const PtoFile &project, const StitchOptions &options)
{
    StitchLayout layout(project);
    if (options.levels) {
        level(layout.project);
    }
    if (options.levels || !project.isEquirectangular()) {
        layout.project.layOutCanvas();
    }
    const Canvas full = layout.project.canvas();
    if (full.size.isEmpty() || !(full.horizontalFovDegrees > 0.0)) {
        return refusedSize(full.size);
    }
    layout.horizontalFovDegrees = std::min(full.horizontalFovDegrees, 360.0);
    const double wanted = full.size.width() * scaleOf(options.size, full.size.width()) / 2.0;
    if (!(wanted >= 1.0 && wanted <= kLongestSide / 2.0)) {
        return refusedSize(QSizeF(full.size) * scaleOf(options.size, full.size.width()));
    }
    const int width = 2 * static_cast<int>(std::lround(wanted));
    const double height = 180.0 * width / layout.horizontalFovDegrees;
    if (!(2.0 * height <= std::numeric_limits<int>::max())) {
        return refusedSize({ static_cast<double>(width), height });
    }
    layout.canvas = QSize(width, qRound(height));
    layout.yawCentreDegrees
        = layout.isFullTurn() ? options.centreYawDegrees.value_or(0.0) : full.yawCentreDegrees;
    layout.area = QRect(QPoint(0, 0), layout.canvas);
    if (options.crops && !full.crop.isNull()) {
        layout.area = scaled(full.crop, static_cast<double>(width) / full.size.width(),
                             static_cast<double>(layout.canvas.height()) / full.size.height())
                          .intersected(layout.area);
    }
    layout.exposure = project.exposure().value_or(usualExposure(project));
    layout.stacks = stacksOf(layout.project, options.output);
    if (layout.area.isEmpty()) {
        return refusedSize(layout.area.size());
    }
    return layout;
}

} // namespace PanoHost
