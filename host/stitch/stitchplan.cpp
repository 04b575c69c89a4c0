// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/stitch/stitchplan.h"

#include "host/model/ptoline.h"
#include "host/stitch/tiffplace.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace PanoHost
{
namespace
{

QString numbered(const char *folder, int number, const QString &suffix)
{
    return QStringLiteral("%1/%2.%3")
        .arg(QLatin1String(folder))
        .arg(number, 5, 10, QLatin1Char('0'))
        .arg(suffix);
}

QString tiffOf(const char *folder, int number)
{
    return numbered(folder, number, QStringLiteral("tif"));
}

/** The ending of a photo's name where it says what the file is. */
QString plainSuffix(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    const bool isPlain = !suffix.isEmpty()
        && std::all_of(suffix.cbegin(), suffix.cend(),
                       [](QChar c) { return c.unicode() < 128 && c.isLetterOrNumber(); });
    return isPlain ? suffix : QStringLiteral("photo");
}

/** A power of two that no light of the shoot is larger than. */
double lightScaleOf(const StitchPlan &plan)
{
    constexpr double kDarkestCorner = 0.05;
    double most = 1.0;
    for (const StitchLight &light : plan.lights) {
        for (const int image : light.images) {
            const Vignetting v = plan.layout.project.vignettingOf(image);
            const double corner = std::clamp(1.0 + v.b + v.c + v.d, kDarkestCorner, 1.0);
            most = std::max(most, plan.gainOf(image) / corner);
        }
    }
    return std::exp2(std::ceil(std::log2(most)));
}

/** Light is warped as it is: without a camera's curve, exposure and vignetting. */
QByteArray lightLine(QByteArray line)
{
    constexpr std::array<const char *, 11> kCamera{ "Ra", "Rb", "Rc", "Rd", "Re", "Vb",
                                                    "Vc", "Vd", "Vx", "Vy", "Eev" };
    for (const char *const name : kCamera) {
        setVariable(line, name, "0");
    }
    return line;
}

StitchWarp warpOf(const StitchPlan &plan, int image, int reference)
{
    const StitchLayout &layout = plan.layout;
    const bool isLight = plan.options.output == StitchOutput::Hdr;
    StitchWarp warp{ image,
                     isLight ? tiffOf("light", image) : plan.photos.at(image),
                     numbered("warped", image, QStringLiteral("pto")),
                     {},
                     tiffOf("warped", image) };
    const QByteArray line
        = layout.project.loneLine(image, "../" + warp.source.toLatin1(), layout.yawCentreDegrees);
    // A level stays as much brighter than its reference as it was taken.
    const double exposure
        = layout.exposure + layout.exposureOf(image) - layout.exposureOf(reference);
    warp.projectText = layout.panoramaLine(isLight ? 0.0 : exposure) + "m i0\n"
        + (isLight ? lightLine(line) : line) + layout.project.maskLines(image);
    return warp;
}

/** Bits of each colour in the PNG file \p path; 0: it is none. */
int pngBits(const QString &path)
{
    constexpr int kPlace = 24; // in the first chunk, behind width and height
    QFile file(path);
    const QByteArray head = QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly)
        ? file.read(kPlace + 1)
        : QByteArray();
    return head.size() > kPlace && head.startsWith("\x89PNG") ? head.at(kPlace) : 0;
}

StitchedPicture::Depth depthOf(const PtoFile &project, const StitchOptions &options)
{
    constexpr int kDeep = 16;
    if (options.output == StitchOutput::Hdr) {
        return StitchedPicture::Depth::Radiance;
    }
    return bitsOf(project.images().first().path) >= kDeep ? StitchedPicture::Depth::Bits16
                                                          : StitchedPicture::Depth::Bits8;
}

/** The exposures of whole brackets, stops from the reference. */
std::vector<double> levelsOf(const StitchLayout &layout)
{
    const auto *const whole = std::max_element(
        layout.stacks.cbegin(), layout.stacks.cend(),
        [](const QVector<int> &a, const QVector<int> &b) { return a.size() < b.size(); });
    std::vector<double> levels;
    for (const int image : *whole) {
        levels.push_back(layout.exposureOf(image) - layout.exposureOf(whole->first()));
    }
    return levels;
}

/** Which of \p levels each photo of \p stack is; of a bracket that is not whole, by its exposure.
 */
int levelOf(const StitchLayout &layout, const QVector<int> &stack, int index,
            const std::vector<double> &levels)
{
    if (stack.size() == static_cast<int>(levels.size())) {
        return index;
    }
    const double stops = layout.exposureOf(stack.at(index)) - layout.exposure;
    const auto nearest
        = std::min_element(levels.cbegin(), levels.cend(), [stops](double a, double b) {
              return std::abs(a - stops) < std::abs(b - stops);
          });
    return static_cast<int>(nearest - levels.cbegin());
}

/** Whether all levels of \p stack look into just the same direction. */
bool haveCommonAngles(const StitchLayout &layout, const QVector<int> &stack)
{
    return std::all_of(stack.cbegin(), stack.cend(), [&](int image) {
        return image == stack.first()
            || layout.project.images()[image].angleMaster == stack.first();
    });
}

/** Answers the number of the warp. */
int addLight(StitchPlan &plan, const QVector<int> &levels)
{
    plan.lights += StitchLight{ levels, tiffOf("light", levels.first()) };
    plan.warps += warpOf(plan, levels.first(), levels.first());
    return plan.warps.size() - 1;
}

/** Levels are joined before they are warped, once for all, or where they meet. */
void addBracket(StitchPlan &plan, const QVector<int> &stack)
{
    StitchLayer &layer = plan.layers.first();
    if (haveCommonAngles(plan.layout, stack)) {
        layer.warps += addLight(plan, stack);
        return;
    }
    StitchJoin join{ {}, tiffOf("joined", stack.first()) };
    for (const int image : stack) {
        join.warps += addLight(plan, { image });
    }
    layer.joins += plan.joins.size();
    plan.joins += join;
}

void addLevels(StitchPlan &plan, const QVector<int> &stack, const std::vector<double> &levels)
{
    for (int i = 0; i < stack.size(); ++i) {
        plan.layers[levelOf(plan.layout, stack, i, levels)].warps += plan.warps.size();
        plan.warps += warpOf(plan, stack.at(i), stack.first());
    }
}

/** One panorama for each level, to be fused as a whole: so brackets meet without seams. */
void addLayers(StitchPlan &plan)
{
    const bool isLight = plan.options.output == StitchOutput::Hdr;
    const std::vector<double> levels = isLight ? std::vector<double>(1) : levelsOf(plan.layout);
    plan.layers.resize(static_cast<int>(levels.size()));
    for (int level = 0; level < plan.layers.size(); ++level) {
        plan.layers[level].blended
            = plan.isFused() ? tiffOf("layers", level) : QStringLiteral("blended.tif");
    }
    for (const QVector<int> &stack : qAsConst(plan.layout.stacks)) {
        if (isLight) {
            addBracket(plan, stack);
        } else {
            addLevels(plan, stack, levels);
        }
    }
}

} // namespace

int StitchPlan::bytesPerPixel() const
{
    constexpr int kBands = 4;
    switch (depth) {
    case StitchedPicture::Depth::Bits8:
        return kBands;
    case StitchedPicture::Depth::Bits16:
        return kBands * 2;
    case StitchedPicture::Depth::Radiance:
        break;
    }
    return kBands * 4;
}

double StitchPlan::gainOf(int image) const
{
    return std::exp2(layout.exposureOf(image) - layout.exposure);
}

QStringList StitchPlan::partsOf(const StitchLayer &layer) const
{
    QStringList parts;
    for (const int warp : layer.warps) {
        parts += warps.at(warp).warped;
    }
    for (const int join : layer.joins) {
        parts += joins.at(join).joined;
    }
    return parts;
}

Result<StitchPlan> planStitch(const PtoFile &project, const StitchOptions &options)
{
    const Result<StitchLayout> layout = layOut(project, options);
    if (!layout) {
        return layout.error();
    }
    StitchPlan plan(layout.value(), options);
    plan.depth = depthOf(project, options);
    plan.photos.resize(project.images().size());
    for (const QVector<int> &stack : layout.value().stacks) {
        for (const int image : stack) {
            plan.photos[image]
                = numbered("photos", image, plainSuffix(project.images()[image].path));
        }
    }
    addLayers(plan);
    plan.lightScale = lightScaleOf(plan);
    return plan;
}

int bitsOf(const QString &photo)
{
    constexpr int kUsual = 8;
    return std::max(tiffBits(photo).value_or(pngBits(photo)), kUsual);
}

QStringList warpArguments(const StitchWarp &warp, const QString &stem)
{
    return { QStringLiteral("-m"), QStringLiteral("TIFF_m"),
             QStringLiteral("-r"), QStringLiteral("ldr"),
             QStringLiteral("-z"), QStringLiteral("NONE"),
             QStringLiteral("-o"), stem,
             warp.project };
}

QStringList blendArguments(const StitchPlan &plan, const StitchLayer &layer, const QString &out)
{
    constexpr qint64 kMostOfClassic = 4'000'000'000;
    const qint64 bytes = static_cast<qint64>(plan.layout.canvas.width())
        * plan.layout.canvas.height() * plan.bytesPerPixel();
    const bool isInternal = plan.options.blender == Blender::Internal;
    QStringList arguments{ QStringLiteral("--output=") + out };
    if (plan.layout.isFullTurn()) {
        arguments += isInternal ? QStringLiteral("--wrap") : QStringLiteral("--wrap=horizontal");
    }
    if (isInternal && bytes > kMostOfClassic) {
        arguments += QStringLiteral("--bigtiff");
    }
    return arguments + plan.partsOf(layer);
}

QStringList fuseArguments(const StitchPlan &plan, const QString &out)
{
    QStringList arguments{ QStringLiteral("--output=") + out };
    if (plan.layout.isFullTurn()) {
        arguments += QStringLiteral("--wrap=horizontal");
    }
    for (const StitchLayer &layer : plan.layers) {
        arguments += layer.blended;
    }
    return arguments;
}

} // namespace PanoHost
