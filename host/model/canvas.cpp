// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/model/canvas.h"

#include <QList>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace PanoHost
{

namespace
{

/** A full turn whose zenith and nadir are open by less stays an uncropped 2:1 picture. */
constexpr double kOpenCapDegrees = 15.0;
/** No canvas side is longer, whatever the photos claim; pixels. */
constexpr double kLongestCanvasSide = 1e9;

} // namespace

Canvas canvasAround(const QVector<Frame> &frames, double focalPixels, int width)
{
    const Coverage covered = coverageOf(frames);
    const bool partial = covered.yawSpanDegrees < 359.0;
    const double span = partial ? std::ceil(covered.yawSpanDegrees) + 1.0 : 360.0;
    const double fov = std::min(span, 360.0);
    Canvas canvas;
    canvas.horizontalFovDegrees = fov;
    canvas.yawCentreDegrees = fov < 360.0 ? covered.yawCentreDegrees : 0.0;

    const double wanted = width > 0 ? width : qDegreesToRadians(fov) * focalPixels;
    const double bounded = std::min(wanted, kLongestCanvasSide * std::min(1.0, fov / 180.0));
    const int w = 2 * std::max(1, qRound(bounded / 2.0));
    const int h = std::max(1, qRound(180.0 * w / fov));
    canvas.size = QSize(w, h);
    const bool openCaps = covered.highestPitchDegrees < 90.0 - kOpenCapDegrees
        || covered.lowestPitchDegrees > -90.0 + kOpenCapDegrees;
    if (fov < 360.0 || openCaps) {
        const double scale = w / fov;
        const int top
            = std::clamp(int(std::floor(h / 2.0 - covered.highestPitchDegrees * scale)), 0, h - 1);
        const int bottom
            = std::clamp(int(std::ceil(h / 2.0 - covered.lowestPitchDegrees * scale)), top + 1, h);
        canvas.crop = QRect(QPoint(0, top), QSize(w, bottom - top));
    }
    return canvas;
}

QByteArray fovText(const Canvas &canvas)
{
    return QByteArray::number(canvas.horizontalFovDegrees, 'g', 9);
}

QByteArray cropText(const Canvas &canvas)
{
    const QRect &crop = canvas.crop;
    return QByteArray::number(crop.left()) + ',' + QByteArray::number(crop.width()) + ','
        + QByteArray::number(crop.top()) + ',' + QByteArray::number(crop.top() + crop.height());
}

QRect cropOf(std::string_view text)
{
    const QList<QByteArray> edges
        = QByteArray::fromRawData(text.data(), static_cast<int>(text.size())).split(',');
    if (edges.size() != 4) {
        return {};
    }
    const int left = edges[0].toInt();
    const int right = edges[1].toInt();
    const int top = edges[2].toInt();
    const int bottom = edges[3].toInt();
    const bool isPart = left >= 0 && top >= 0 && left < right && top < bottom;
    return isPart ? QRect(left, top, right - left, bottom - top) : QRect();
}

} // namespace PanoHost
