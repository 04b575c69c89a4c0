// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/nearestphoto.h"

#include "host/model/parallel.h"

namespace PanoHost
{
namespace
{

/** The pixel of \p picture around \p place, interpolated between its four neighbours. */
QRgb interpolated(const QImage &picture, const QPointF &place)
{
    const double x = std::clamp(place.x() - 0.5, 0.0, picture.width() - 1.0);
    const double y = std::clamp(place.y() - 0.5, 0.0, picture.height() - 1.0);
    const int left = std::min(static_cast<int>(x), picture.width() - 2);
    const int top = std::min(static_cast<int>(y), picture.height() - 2);
    const double right = x - left;
    const double below = y - top;
    const auto *const upper = reinterpret_cast<const QRgb *>(picture.constScanLine(top)) + left;
    const auto *const lower = reinterpret_cast<const QRgb *>(picture.constScanLine(top + 1)) + left;
    const auto level = [&](int (*channel)(QRgb)) {
        const double above = (1.0 - right) * channel(upper[0]) + right * channel(upper[1]);
        const double under = (1.0 - right) * channel(lower[0]) + right * channel(lower[1]);
        return static_cast<int>(std::lround((1.0 - below) * above + below * under));
    };
    return qRgb(level(qRed), level(qGreen), level(qBlue));
}

struct Source {
    QImage picture;
    View view;
};

QRgb seenIn(const std::vector<Source> &sources, const Vec3 &direction)
{
    double nearest = -2.0;
    QRgb colour = qRgba(0, 0, 0, 0);
    for (const Source &source : sources) {
        const double closeness = dot(direction, source.view.axis());
        if (closeness <= nearest) {
            continue;
        }
        if (const auto pixel = source.view.pixelAt(direction)) {
            nearest = closeness;
            colour = interpolated(source.picture, *pixel);
        }
    }
    return colour;
}

} // namespace

QImage nearestPhotoPanorama(const QVector<PlacedPhoto> &photos, int width)
{
    std::vector<Source> sources;
    for (const PlacedPhoto &photo : photos) {
        if (photo.pixels.width() > 1 && photo.pixels.height() > 1) {
            sources.push_back({ photo.pixels.convertToFormat(QImage::Format_RGB32),
                                View(photo.camera, photo.pose) });
        }
    }
    QImage panorama(width, width / 2, QImage::Format_ARGB32);
    uchar *const pixels = panorama.bits(); // once: scanLine() is not for several threads
    const qsizetype stride = panorama.bytesPerLine();
    forEachRow(panorama.height(), [&](int row) {
        auto *const line = reinterpret_cast<QRgb *>(pixels + row * stride);
        for (int column = 0; column < width; ++column) {
            line[column] = seenIn(sources,
                                  directionTo((column + 0.5) * 360.0 / width - 180.0,
                                              90.0 - (row + 0.5) * 360.0 / width));
        }
    });
    return panorama;
}

} // namespace PanoHost
