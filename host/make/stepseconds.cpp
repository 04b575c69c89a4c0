// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/make/stepseconds.h"

#include "host/model/ptofile.h"

namespace PanoHost
{

namespace
{

constexpr double kMegapixel = 1.0e6;

double megapixels(const QSize &size)
{
    return double(size.width()) * size.height() / kMegapixel;
}

double importSeconds(int photos)
{
    constexpr double kPerPhoto = 0.02;
    return 1.0 + kPerPhoto * photos;
}

} // namespace

double alignSeconds(int photos, double megapixelsOfAll)
{
    constexpr double kPerPhoto = 0.4;
    constexpr double kPerMegapixel = 0.03;
    return 1.0 + kPerPhoto * photos + kPerMegapixel * megapixelsOfAll;
}

double stitchSeconds(double megapixelsOfAll, const QSize &canvas)
{
    constexpr double kPerPhotoMegapixel = 0.15;
    constexpr double kPerCanvasMegapixel = 0.4;
    return 1.0 + kPerPhotoMegapixel * megapixelsOfAll + kPerCanvasMegapixel * megapixels(canvas);
}

double deliverSeconds(int kinds, const QSize &picture)
{
    constexpr double kPerMegapixel = 0.15;
    return 0.5 + kPerMegapixel * kinds * megapixels(picture);
}

int usualCount(const QVector<Delivery> &kinds)
{
    constexpr int kUsual = 2;
    return kinds.isEmpty() ? kUsual : kinds.size();
}

double megapixelsOf(const PtoFile &project)
{
    double sum = 0.0;
    for (const PtoImage &image : project.images()) {
        sum += megapixels(image.size);
    }
    return sum;
}

QVector<OverallProgress::Step> stitchingSteps(double photoMegapixels, const QSize &canvas,
                                              const QVector<Delivery> &kinds)
{
    return { { stitchSeconds(photoMegapixels, canvas), { 0.6, 0.35 } },
             { deliverSeconds(usualCount(kinds), canvas) } };
}

QVector<OverallProgress::Step> allSteps(int photos, bool hasRawFiles,
                                        const QVector<Delivery> &kinds)
{
    constexpr double kMegapixelsOfUnknownPhotos = 20.0;
    const double photoMegapixels = kMegapixelsOfUnknownPhotos * photos;
    const QSize unknownCanvas(8192, 4096);
    QVector<OverallProgress::Step> steps;
    steps.append(OverallProgress::Step{ importSeconds(photos), { 0.9 } });
    if (hasRawFiles) {
        constexpr double kSecondsOfRawFile = 8.0;
        steps.append(OverallProgress::Step{ kSecondsOfRawFile * photos, { 1.0 } });
    }
    // Features, matches, places, matches again, places again, light.
    steps.append(OverallProgress::Step{ alignSeconds(photos, photoMegapixels),
                                        { 0.5, 0.2, 0.05, 0.15, 0.05, 0.04 } });
    return steps + stitchingSteps(photoMegapixels, unknownCanvas, kinds);
}

} // namespace PanoHost
