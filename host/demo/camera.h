// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/demo/direction.h"
#include "host/demo/rgb.h"

#include <QImage>
#include <QPointF>
#include <QRect>
#include <QSize>

#include <functional>
#include <optional>
#include <vector>

namespace PanoHost
{

/** What a ray from the head meets; called from several threads at a time. */
using RayLight = std::function<Rgb(const Vec3 &direction)>;

enum class Projection {
    Rectilinear,
    EquidistantFisheye,
};

/** What a lens does besides its projection; the polynomials of Hugin's projects. */
struct LensErrors {
    /** In halves of the shorter side: photo = ideal * (a r^3 + b r^2 + c r + 1 - a - b - c). */
    double a = 0.0;
    double b = 0.0;
    double c = 0.0;
    /** Radii in halves of the diagonal: 1 + Vb r^2 + Vc r^4 + Vd r^6 of the light arrives. */
    double vignettingB = 0.0;
    double vignettingC = 0.0;
    double vignettingD = 0.0;
};

struct Camera {
    QSize size; ///< stored pixels
    double focal35mm = 0.0; ///< millimetres, 35 mm equivalent by the frame's diagonal
    Projection projection = Projection::Rectilinear;
    LensErrors errors{};

    /** Focal length in pixels: pixels per radian at the centre of the picture. */
    [[nodiscard]] double focalPixels() const;
};

/** Where a camera points: yaw to the right, pitch up, roll clockwise seen from behind it. */
struct Pose {
    double yawDegrees = 0.0;
    double pitchDegrees = 0.0;
    double rollDegrees = 0.0;
};

/**
 * The way between pixels and directions for one photo. Pixel coordinates are continuous: the
 * first pixel reaches from 0 to 1, its middle is 0.5.
 */
class View
{
public:
    View(const Camera &camera, const Pose &pose);

    /** Unit vector through the point (\p x, \p y) of the picture. */
    [[nodiscard]] Vec3 directionAt(double x, double y) const;
    /** Empty when \p direction does not meet the picture. */
    [[nodiscard]] std::optional<QPointF> pixelAt(const Vec3 &direction) const;
    /** Unit vector to the middle of the picture. */
    [[nodiscard]] const Vec3 &axis() const { return m_forward; }

private:
    [[nodiscard]] double photoRadius(double ideal) const;
    [[nodiscard]] double photoRadiusSlope(double ideal) const;
    [[nodiscard]] double idealPerPhotoRadius(double photo) const;

    Camera m_camera;
    double m_focalPixels = 0.0;
    double m_radiusUnit = 1.0; ///< of the polynomial of distortion, pixels
    Vec3 m_right;
    Vec3 m_up;
    Vec3 m_forward;
};

/** The light that fell on each pixel, not yet a picture. */
struct LightField {
    QSize size;
    std::vector<Rgb> pixels; ///< row by row
};

/**
 * What a photo receives, averaged over each pixel.
 * \param samplesPerSide rays per pixel: the square of this
 */
[[nodiscard]] LightField exposePhoto(const RayLight &radiance, const Camera &camera,
                                     const Pose &pose, int samplesPerSide = 2);

/**
 * The whole sphere as \p width x \p width / 2 pixels, yaw -180 at the left edge, pitch 90 at the
 * top, averaged over each pixel: what a faultless panorama of the scene receives.
 */
[[nodiscard]] LightField exposeSphere(const RayLight &radiance, int width, int samplesPerSide = 2);

/** A part of an equirectangular picture. */
struct SpherePart {
    QSize canvas; ///< the whole picture, pixels; its middle row lies at pitch 0
    double horizontalFovDegrees = 360.0; ///< of the whole picture
    double yawCentreDegrees = 0.0; ///< of the whole picture
    QRect crop; ///< the part, pixels of the picture
};

/** What a faultless panorama of \p part receives, averaged over each pixel. */
[[nodiscard]] LightField exposePart(const RayLight &radiance, const SpherePart &part,
                                    int samplesPerSide = 2);

/** 32-bit RGB with the sRGB curve, \p stops brighter than the reference exposure. */
[[nodiscard]] QImage developed(const LightField &light, double stops = 0.0);

} // namespace PanoHost
