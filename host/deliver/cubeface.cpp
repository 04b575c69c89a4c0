// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/deliver/cubeface.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>

namespace PanoHost
{
namespace
{

constexpr int kBands = 4;
constexpr int kTaps = 4;

/** Catmull and Rom's cubic: what pixels -1, 0, 1 and 2 give to a place \p part of the way from 0
 * to 1. */
std::array<double, kTaps> cubicWeights(double part)
{
    const double t = part;
    return { ((-0.5 * t + 1.0) * t - 0.5) * t, (1.5 * t - 2.5) * t * t + 1.0,
             ((-1.5 * t + 2.0) * t + 0.5) * t, (0.5 * t - 0.5) * t * t };
}

template <typename T> T rounded(double value)
{
    if constexpr (std::is_floating_point_v<T>) {
        return static_cast<T>(value);
    } else {
        return static_cast<T>(std::lround(value));
    }
}

} // namespace

int cubeFaceSide(int sphereWidth)
{
    // In the middle of a side as many pixels to a degree as on the sphere's horizon.
    return std::max(2, 2 * static_cast<int>(std::lround(sphereWidth / M_PI / 2.0)));
}

CubeView::CubeView(const VipsFile &file, const StitchedPicture &picture)
    : m_file(file)
    , m_sphere(picture.sphere)
    , m_corner(picture.onSphere)
{
}

/** The pixel of the sphere's column \p x and row \p y, which may be a little beyond its edges; null
 * when no photo reaches it. */
template <typename T> const T *CubeView::at(int x, int y) const
{
    if (y < 0 || y >= m_sphere.height()) { // beyond a pole, on the other side
        y = y < 0 ? -1 - y : 2 * m_sphere.height() - 1 - y;
        x += m_sphere.width() / 2;
    }
    x = (x % m_sphere.width() + m_sphere.width()) % m_sphere.width();
    const int column = x - m_corner.x();
    const int row = y - m_corner.y();
    if (column < 0 || row < 0 || column >= m_file.size().width() || row >= m_file.size().height()) {
        return nullptr;
    }
    const T *const pixel = m_file.row<T>(row) + static_cast<ptrdiff_t>(column) * kBands;
    return pixel[3] > T(0) ? pixel : nullptr;
}

/** Interpolates; answers whether the nearest pixel is there. */
template <typename T> bool CubeView::sample(double x, double y, T *pixel) const
{
    const T *const nearest
        = at<T>(static_cast<int>(std::lround(x)), static_cast<int>(std::lround(y)));
    if (nearest == nullptr) {
        std::fill_n(pixel, kBands, T(0));
        return false;
    }
    const int left = static_cast<int>(std::floor(x));
    const int top = static_cast<int>(std::floor(y));
    const auto across = cubicWeights(x - left);
    const auto down = cubicWeights(y - top);
    std::array<double, kBands> sum{};
    std::array<double, kBands> least{};
    std::array<double, kBands> most{};
    least.fill(std::numeric_limits<double>::infinity());
    most.fill(-std::numeric_limits<double>::infinity());
    double total = 0.0;
    for (int j = 0; j < kTaps; ++j) {
        for (int i = 0; i < kTaps; ++i) {
            const T *const tap = at<T>(left - 1 + i, top - 1 + j);
            if (tap == nullptr) {
                continue;
            }
            const double weight = across.at(i) * down.at(j);
            total += weight;
            for (int band = 0; band < kBands; ++band) {
                const auto value = static_cast<double>(tap[band]);
                sum.at(band) += weight * value;
                least.at(band) = std::min(least.at(band), value);
                most.at(band) = std::max(most.at(band), value);
            }
        }
    }
    // At the edge of what is there, few are left of the sixteen.
    constexpr double kEnough = 0.5;
    for (int band = 0; band < kBands; ++band) {
        pixel[band] = total < kEnough
            ? nearest[band]
            // Beside a lamp the cubic falls below black.
            : rounded<T>(std::clamp(sum.at(band) / total, least.at(band), most.at(band)));
    }
    return true;
}

template <typename T> bool CubeView::row(const CubeFace &face, int side, int y, T *pixels) const
{
    bool reached = false;
    const double v = 2.0 * (y + 0.5) / side - 1.0;
    for (int column = 0; column < side; ++column) {
        const double u = 2.0 * (column + 0.5) / side - 1.0;
        std::array<double, 3> looks{};
        for (int axis = 0; axis < 3; ++axis) {
            looks.at(axis) = face.ahead.at(axis) + u * face.right.at(axis) + v * face.down.at(axis);
        }
        const double yaw = std::atan2(looks[0], looks[2]);
        const double pitch = std::atan2(looks[1], std::hypot(looks[0], looks[2]));
        // Pixel 0 is half a pixel from the edge.
        const double x = (yaw / (2.0 * M_PI) + 0.5) * m_sphere.width() - 0.5;
        const double row = (0.5 - pitch / M_PI) * m_sphere.height() - 0.5;
        reached = sample(x, row, pixels + static_cast<ptrdiff_t>(column) * kBands) || reached;
    }
    return reached;
}

template bool CubeView::row<quint8>(const CubeFace &, int, int, quint8 *) const;
template bool CubeView::row<quint16>(const CubeFace &, int, int, quint16 *) const;
template bool CubeView::row<float>(const CubeFace &, int, int, float *) const;

} // namespace PanoHost
