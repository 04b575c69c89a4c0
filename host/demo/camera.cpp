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
LightField exposed(const RayLight &radiance, const QSize &size, int side,
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

/** Takes away the light that the lens keeps from the corners of a photo. */
void vignette(LightField &light, const LensErrors &errors)
{
    if (errors.vignettingB == 0.0 && errors.vignettingC == 0.0 && errors.vignettingD == 0.0) {
        return;
    }
    const int width = light.size.width();
    const int height = light.size.height();
    const double halfDiagonal = std::hypot(width, height) / 2.0;
    auto pixel = light.pixels.begin();
    for (int row = 0; row < height; ++row) {
        const double down = (row + 0.5 - height / 2.0) / halfDiagonal;
        for (int column = 0; column < width; ++column, ++pixel) {
            const double right = (column + 0.5 - width / 2.0) / halfDiagonal;
            const double r2 = down * down + right * right;
            const double steeper = errors.vignettingC + r2 * errors.vignettingD;
            *pixel = static_cast<float>(1.0 + r2 * (errors.vignettingB + r2 * steeper)) * *pixel;
        }
    }
}

} // namespace

double Camera::focalPixels() const
{
    return focal35mm * std::hypot(size.width(), size.height()) / kDiagonal35mm;
}

View::View(const Camera &camera, const Pose &pose)
    : m_camera(camera)
    , m_focalPixels(camera.focalPixels())
    , m_radiusUnit(std::min(camera.size.width(), camera.size.height()) / 2.0)
    , m_forward(directionTo(pose.yawDegrees, pose.pitchDegrees))
{
    const Vec3 levelRight = directionTo(pose.yawDegrees + 90.0, 0.0);
    const Vec3 levelUp = directionTo(pose.yawDegrees, pose.pitchDegrees + 90.0);
    const double cosine = std::cos(radians(pose.rollDegrees));
    const double sine = std::sin(radians(pose.rollDegrees));
    m_right = cosine * levelRight + -sine * levelUp;
    m_up = sine * levelRight + cosine * levelUp;
}

double View::photoRadius(double ideal) const
{
    const LensErrors &e = m_camera.errors;
    return ideal * (1.0 - e.a - e.b - e.c + ideal * (e.c + ideal * (e.b + ideal * e.a)));
}

double View::photoRadiusSlope(double ideal) const
{
    const LensErrors &e = m_camera.errors;
    return 1.0 - e.a - e.b - e.c + ideal * (2.0 * e.c + ideal * (3.0 * e.b + ideal * 4.0 * e.a));
}

double View::idealPerPhotoRadius(double photo) const
{
    const LensErrors &e = m_camera.errors;
    if (e.a == 0.0 && e.b == 0.0 && e.c == 0.0) {
        return 1.0;
    }
    if (photo <= 0.0) {
        return 1.0 / photoRadiusSlope(0.0);
    }
    double ideal = photo;
    constexpr int kNewtonSteps = 6; // the last ones change nothing for any lens one would buy
    for (int i = 0; i < kNewtonSteps; ++i) {
        ideal -= (photoRadius(ideal) - photo) / photoRadiusSlope(ideal);
    }
    return ideal / photo;
}

Vec3 View::directionAt(double x, double y) const
{
    double right = x - m_camera.size.width() / 2.0;
    double up = m_camera.size.height() / 2.0 - y;
    const double straightened = idealPerPhotoRadius(std::hypot(right, up) / m_radiusUnit);
    right = straightened * right / m_focalPixels;
    up = straightened * up / m_focalPixels;
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
    const double ideal = scale * sine / m_radiusUnit;
    if (photoRadiusSlope(ideal) <= 0.0) {
        return std::nullopt; // far outside, where the polynomial turns back
    }
    scale *= ideal > 0.0 ? photoRadius(ideal) / ideal : photoRadiusSlope(0.0);
    const QPointF pixel(m_camera.size.width() / 2.0 + scale * right,
                        m_camera.size.height() / 2.0 - scale * up);
    const bool inside = pixel.x() >= 0.0 && pixel.x() <= m_camera.size.width() && pixel.y() >= 0.0
        && pixel.y() <= m_camera.size.height();
    return inside ? std::optional(pixel) : std::nullopt;
}

LightField exposePhoto(const RayLight &radiance, const Camera &camera, const Pose &pose,
                       int samplesPerSide)
{
    const View view(camera, pose);
    LightField light = exposed(radiance, camera.size, samplesPerSide,
                               [&view](double x, double y) { return view.directionAt(x, y); });
    vignette(light, camera.errors);
    return light;
}

LightField exposeSphere(const RayLight &radiance, int width, int samplesPerSide)
{
    const QSize size(width, width / 2);
    return exposePart(radiance, { size, 360.0, 0.0, QRect(QPoint(0, 0), size) }, samplesPerSide);
}

LightField exposePart(const RayLight &radiance, const SpherePart &part, int samplesPerSide)
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
