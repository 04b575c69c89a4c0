// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/headmodel.h"

#include <ceres/jet.h>

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace PanoHost
{

/** What may change about the camera's place on its head and about the head's steps. */
enum HeadUnknown { MountPitch, MountRoll, LogYawScale, LogPitchScale, HeadUnknowns };
/** What may change about a lens; the first is the logarithm of its focal length's share. */
enum LensUnknown { LogFocal, DistortionA, DistortionB, DistortionC, LensUnknowns };

/**
 * How far a point of one photo lands from its match in another, pixels of the latter: what
 * `HeadModel` and `AlignLens` say, for numbers that carry their derivatives along.
 */
class TieResidual
{
public:
    /** Views and lenses outlive it; the lenses' own values count, times or plus what changes. */
    TieResidual(const TiePoint &point, const AlignView &first, const AlignView &second,
                const AlignLens &firstLens, const AlignLens &secondLens)
        : m_first(first)
        , m_second(second)
        , m_firstLens(firstLens)
        , m_secondLens(secondLens)
        , m_inFirst(centred(point.inFirst, firstLens))
        , m_inSecond(centred(point.inSecond, secondLens))
    {
    }

    /** Two photos through one lens. */
    template <class T>
    bool operator()(const T *firstCorrection, const T *secondCorrection, const T *head,
                    const T *lens, T *residual) const
    {
        return (*this)(firstCorrection, secondCorrection, head, lens, lens, residual);
    }

    /** Corrections in degrees; \p head and the lenses as their enumerations say. */
    template <class T>
    bool operator()(const T *firstCorrection, const T *secondCorrection, const T *head,
                    const T *firstLens, const T *secondLens, T *residual) const
    {
        using std::exp;
        const T yawScale = exp(head[LogYawScale]);
        const T pitchScale = exp(head[LogPitchScale]);
        T x, y, z;
        see(firstLens, x, y, z);
        // From the first camera to the world and on into the second camera; both turns about the
        // vertical are one.
        turn(x, y, head[MountRoll] + m_first.turnDegrees);
        turn(y, z, head[MountPitch]);
        turn(x, y, m_first.recorded.roll + firstCorrection[2]);
        turn(y, z, m_first.recorded.pitch * pitchScale + firstCorrection[1]);
        turn(x, z,
             (m_first.recorded.yaw - m_second.recorded.yaw) * yawScale + firstCorrection[0]
                 - secondCorrection[0]);
        turn(y, z, -(m_second.recorded.pitch * pitchScale + secondCorrection[1]));
        turn(x, y, -(m_second.recorded.roll + secondCorrection[2]));
        turn(y, z, -head[MountPitch]);
        turn(x, y, -(head[MountRoll] + m_second.turnDegrees));
        project(secondLens, x, y, z, residual);
        return true;
    }

private:
    static double plain(double value) { return value; }
    template <class T, int N> static double plain(const ceres::Jet<T, N> &value) { return value.a; }

    static Eigen::Vector2d centred(const Eigen::Vector2d &pixel, const AlignLens &lens)
    {
        return { pixel.x() - (lens.size.width() - 1) / 2.0,
                 (lens.size.height() - 1) / 2.0 - pixel.y() };
    }

    static double halfShorterSide(const AlignLens &lens)
    {
        return std::min(lens.size.width(), lens.size.height()) / 2.0;
    }

    /** Turns the plane of two axes, \p u toward where \p v was. */
    template <class T> static void turn(T &u, T &v, const T &degrees)
    {
        using std::cos;
        using std::sin;
        const T angle = degrees * (M_PI / 180.0);
        const T cosine = cos(angle);
        const T sine = sin(angle);
        const T turned = cosine * u + sine * v;
        v = cosine * v - sine * u;
        u = turned;
    }

    /** The photo's radius by the ideal one, which is in halves of the shorter side. */
    template <class T, class R> static T polynomial(const T *lens, const AlignLens &start, R r)
    {
        const T a = start.a + lens[DistortionA];
        const T b = start.b + lens[DistortionB];
        const T c = start.c + lens[DistortionC];
        return ((a * r + b) * r + c) * r + (1.0 - a - b - c);
    }

    /** The ray of the first photo's point; its length does not matter. */
    template <class T> void see(const T *lens, T &x, T &y, T &z) const
    {
        using std::exp;
        const double radius = m_inFirst.norm();
        T scale = exp(-lens[LogFocal]) / m_firstLens.focalPixels;
        if (radius > 0.0) {
            const double unit = halfShorterSide(m_firstLens);
            scale *= idealRadius(lens, radius / unit) * (unit / radius);
        }
        x = m_inFirst.x() * scale;
        y = m_inFirst.y() * scale;
        z = T(1.0);
        if (m_firstLens.model == LensModel::Fisheye && radius > 0.0) {
            using std::cos;
            using std::sin;
            const T angle = radius * scale;
            const T stretch = sin(angle) / angle;
            x *= stretch;
            y *= stretch;
            z = cos(angle);
        }
    }

    /** The inverse of the polynomial, by Newton: the last step gives the derivatives. */
    template <class T> T idealRadius(const T *lens, double radius) const
    {
        constexpr int kSteps = 8;
        double plainLens[LensUnknowns];
        std::transform(lens, lens + LensUnknowns, plainLens, [](const T &v) { return plain(v); });
        const double a = m_firstLens.a + plainLens[DistortionA];
        const double b = m_firstLens.b + plainLens[DistortionB];
        const double c = m_firstLens.c + plainLens[DistortionC];
        const double d = 1.0 - a - b - c;
        const auto slope = [&](double r) {
            return std::max(((4.0 * a * r + 3.0 * b) * r + 2.0 * c) * r + d, 0.05);
        };
        double r = radius;
        for (int i = 0; i < kSteps; ++i) {
            r -= (r * polynomial(plainLens, m_firstLens, r) - radius) / slope(r);
        }
        return r - (r * polynomial(lens, m_firstLens, r) - radius) / slope(r);
    }

    template <class T>
    void project(const T *lens, const T &x, const T &y, const T &z, T *residual) const
    {
        using std::atan2;
        using std::exp;
        using std::sqrt;
        constexpr double kNothing = 1e-24;
        const double focal = m_secondLens.focalPixels;
        const T square = x * x + y * y;
        T scale = exp(lens[LogFocal]) * focal;
        if (m_secondLens.model != LensModel::Fisheye) {
            if (!(plain(z) > kLeastCosine * std::sqrt(plain(square) + plain(z) * plain(z)))) {
                // Farther away than anything that the lens sees, and without a way back.
                residual[0] = T(2.0 * focal / kLeastCosine);
                residual[1] = T(0.0);
                return;
            }
            scale /= z;
        } else if (plain(square) > kNothing) {
            const T sine = sqrt(square);
            scale *= atan2(sine, z) / sine;
        }
        const T radius = plain(square) > kNothing ? T(sqrt(square) * scale) : T(0.0);
        scale *= polynomial(lens, m_secondLens, T(radius / halfShorterSide(m_secondLens)));
        residual[0] = x * scale - m_inSecond.x();
        // Pixels count downwards.
        residual[1] = m_inSecond.y() - y * scale;
    }

    const AlignView &m_first;
    const AlignView &m_second;
    const AlignLens &m_firstLens;
    const AlignLens &m_secondLens;
    Eigen::Vector2d m_inFirst; ///< from the photo's middle, y up
    Eigen::Vector2d m_inSecond;
};

} // namespace PanoHost
