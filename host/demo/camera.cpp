// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/camera.h"

#include "host/model/parallel.h"

namespace PanoHost
{
namespace
{

constexpr double kDiagonal35mm = 43.266615305567875; // of a 36 x 24 mm frame

/** Averages the light of \p rayAt over every pixel of a picture of \p size. */
LightField exposed(const Radiance &radiance, const QSize &size, int side,
                   const std::function<Vec3(double x, double y)> &rayAt)
{
    LightField light{ size, std::vector<Rgb>(static_cast<size_t>(size.width()) * size.height()) };
    forEachRow(size.height(), [&](int row) {
        Rgb *const line = light.pixels.data() + static_cast<size_t>(row) * size.width();
        for (int column = 0; column < size.width(); ++column) {
            Rgb sum;
            for (int down = 0; down < side; ++down) {
                for (int right = 0; right < side; ++right) {
                    sum = sum
                        + radiance(rayAt(column + (right + 0.5) / side, row + (down + 0.5) / side));
                }
            }
            line[column] = 1.0F / static_cast<float>(side * side) * sum;
        }
    });
    return light;
}

} // namespace

double Camera::focalPixels() const
{
    return focal35mm * std::hypot(size.width(), size.height()) / kDiagonal35mm;
}

View::View(const Camera &camera, const Pose &pose)
    : m_camera(camera)
    , m_focalPixels(camera.focalPixels())
    , m_forward(directionTo(pose.yawDegrees, pose.pitchDegrees))
{
    const Vec3 levelRight = directionTo(pose.yawDegrees + 90.0, 0.0);
    const Vec3 levelUp = directionTo(pose.yawDegrees, pose.pitchDegrees + 90.0);
    const double cosine = std::cos(radians(pose.rollDegrees));
    const double sine = std::sin(radians(pose.rollDegrees));
    m_right = cosine * levelRight + -sine * levelUp;
    m_up = sine * levelRight + cosine * levelUp;
}

Vec3 View::directionAt(double x, double y) const
{
    const double right = (x - m_camera.size.width() / 2.0) / m_focalPixels;
    const double up = (m_camera.size.height() / 2.0 - y) / m_focalPixels;
    if (m_camera.projection == Projection::Rectilinear) {
        return normalized(m_forward + right * m_right + up * m_up);
    }
    const double angle = std::hypot(right, up);
    const double perAngle = angle > 0.0 ? std::sin(angle) / angle : 1.0;
    return std::cos(angle) * m_forward + perAngle * (right * m_right + up * m_up);
}

std::optional<QPointF> View::pixelAt(const Vec3 &direction) const
{
    const double forward = dot(direction, m_forward);
    const double right = dot(direction, m_right);
    const double up = dot(direction, m_up);
    const double sine = std::hypot(right, up);
    double scale = m_focalPixels;
    if (m_camera.projection == Projection::EquidistantFisheye) {
        scale *= sine > 0.0 ? std::atan2(sine, forward) / sine : 1.0;
    } else if (forward > 0.0) {
        scale /= forward;
    } else {
        return std::nullopt;
    }
    const QPointF pixel(m_camera.size.width() / 2.0 + scale * right,
                        m_camera.size.height() / 2.0 - scale * up);
    const bool inside = pixel.x() >= 0.0 && pixel.x() <= m_camera.size.width() && pixel.y() >= 0.0
        && pixel.y() <= m_camera.size.height();
    return inside ? std::optional(pixel) : std::nullopt;
}

LightField exposePhoto(const Radiance &radiance, const Camera &camera, const Pose &pose,
                       int samplesPerSide)
{
    const View view(camera, pose);
    return exposed(radiance, camera.size, samplesPerSide,
                   [&view](double x, double y) { return view.directionAt(x, y); });
}

LightField exposeSphere(const Radiance &radiance, int width, int samplesPerSide)
{
    const QSize size(width, width / 2);
    return exposePart(radiance, { size, 360.0, 0.0, QRect(QPoint(0, 0), size) }, samplesPerSide);
}

LightField exposePart(const Radiance &radiance, const SpherePart &part, int samplesPerSide)
{
    const double perPixel = part.horizontalFovDegrees / part.canvas.width();
    const double right = part.crop.left() - part.canvas.width() / 2.0;
    const double up = part.canvas.height() / 2.0 - part.crop.top();
    return exposed(radiance, part.crop.size(), samplesPerSide, [=](double x, double y) {
        return directionTo(part.yawCentreDegrees + (right + x) * perPixel, (up - y) * perPixel);
    });
}

QImage developed(const LightField &light, double stops)
{
    QImage picture(light.size, QImage::Format_RGB32);
    const auto gain = static_cast<float>(std::exp2(stops));
    const int width = light.size.width();
    for (int row = 0; row < light.size.height(); ++row) {
        auto *const line = reinterpret_cast<QRgb *>(picture.scanLine(row));
        const Rgb *const from = light.pixels.data() + static_cast<size_t>(row) * width;
        for (int column = 0; column < width; ++column) {
            line[column] = encoded(gain * from[column]);
        }
    }
    return picture;
}

} // namespace PanoHost
