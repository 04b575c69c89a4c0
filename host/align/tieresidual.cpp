// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/tieresidual.h"

#include <ceres/jet.h>

#include <Eigen/Geometry>

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace PanoHost
{

namespace
{

/** Blocks of unknowns, in the order of the residual's. */
enum Block { FirstCorrection, SecondCorrection, Head, FirstLens, SecondLens };

/** Numbers that carry their derivatives along: by a lens, by a ray and a lens. */
using LensJet = ceres::Jet<double, LensUnknowns>;
constexpr int kRay = 3;
using RayJet = ceres::Jet<double, kRay + LensUnknowns>;

double plain(double value)
{
    return value;
}

template <class T, int N> double plain(const ceres::Jet<T, N> &value)
{
    return value.a;
}

/** The photo's radius by the ideal one, which is in halves of the shorter side. */
template <class T, class R> T polynomial(const AlignLens &start, const T *change, const R &r)
{
    const T a = start.a + change[DistortionA];
    const T b = start.b + change[DistortionB];
    const T c = start.c + change[DistortionC];
    return ((a * r + b) * r + c) * r + (1.0 - a - b - c);
}

/** The inverse of the polynomial, by Newton: the last step gives the derivatives. */
template <class T> T idealRadius(const AlignLens &start, const T *change, double radius)
{
    constexpr int kSteps = 8;
    double plainChange[LensUnknowns];
    std::transform(change, change + LensUnknowns, plainChange,
                   [](const T &value) { return plain(value); });
    const double a = start.a + plainChange[DistortionA];
    const double b = start.b + plainChange[DistortionB];
    const double c = start.c + plainChange[DistortionC];
    const bool isStraight = a == 0.0 && b == 0.0 && c == 0.0;
    const auto slope = [&](double r) {
        return std::max(((4.0 * a * r + 3.0 * b) * r + 2.0 * c) * r + 1.0 - a - b - c, 0.05);
    };
    double r = radius;
    for (int i = 0; i < (isStraight ? 0 : kSteps); ++i) {
        r -= (r * polynomial(start, plainChange, r) - radius) / slope(r);
    }
    return r - (r * polynomial(start, change, r) - radius) / slope(r);
}

/** What \p pixel sees; the ray's length does not matter. */
template <class T>
Eigen::Matrix<T, 3, 1> rayOf(const Eigen::Vector2d &pixel, const AlignLens &start, const T *change)
{
    using std::cos;
    using std::exp;
    using std::sin;
    const Eigen::Vector2d plane(pixel.x() - (start.size.width() - 1) / 2.0,
                                (start.size.height() - 1) / 2.0 - pixel.y());
    const double radius = plane.norm();
    T scale = exp(-change[LogFocal]) / start.focalPixels;
    if (radius > 0.0) {
        const double unit = start.halfShorterSide();
        scale *= idealRadius(start, change, radius / unit) * (unit / radius);
    }
    T forward(1.0);
    if (start.model == LensModel::Fisheye && radius > 0.0) {
        const T angle = radius * scale;
        scale *= sin(angle) / angle;
        forward = cos(angle);
    }
    return { plane.x() * scale, plane.y() * scale, forward };
}

/** From the photo's middle to where \p ray meets its plane, y up. */
template <class T>
Eigen::Matrix<T, 2, 1> planeOf(const Eigen::Matrix<T, 3, 1> &ray, const AlignLens &start,
                               const T *change)
{
    using std::atan2;
    using std::exp;
    using std::sqrt;
    constexpr double kNothing = 1e-24;
    const T square = ray.x() * ray.x() + ray.y() * ray.y();
    T scale = exp(change[LogFocal]) * start.focalPixels;
    if (start.model != LensModel::Fisheye) {
        const double z = plain(ray.z());
        if (!(z > kLeastCosine * std::sqrt(plain(square) + z * z))) {
            // Farther away than anything that the lens sees, and without a way back.
            return { T(2.0 * start.focalPixels / kLeastCosine), T(0.0) };
        }
        scale /= ray.z();
    } else if (plain(square) > kNothing) {
        const T sine = sqrt(square);
        scale *= atan2(sine, ray.z()) / sine;
    }
    const T radius = plain(square) > kNothing ? T(sqrt(square) * scale) : T(0.0);
    scale *= polynomial(start, change, T(radius / start.halfShorterSide()));
    return { ray.x() * scale, ray.y() * scale };
}

} // namespace

Attitudes::Attitudes(const std::vector<AlignView> &views, const double *corrections,
                     const double *head)
    : m_views(views)
    , m_corrections(corrections)
    , m_head(head)
    , m_rotations(views.size())
    , m_axes(views.size())
{
}

void Attitudes::PrepareForEvaluation(bool /*evaluatesJacobians*/, bool isNewPoint)
{
    if (!isNewPoint) {
        return;
    }
    const double yawScale = std::exp(m_head[LogYawScale]);
    const double pitchScale = std::exp(m_head[LogPitchScale]);
    const Eigen::Matrix3d mountPitch = rotationOf({ 0.0, m_head[MountPitch], 0.0 });
    const Eigen::Matrix3d mount = rotationOf({ 0.0, m_head[MountPitch], m_head[MountRoll] });
    for (size_t i = 0; i < m_views.size(); ++i) {
        const AlignView &view = m_views[i];
        const double *correction = m_corrections + CorrectionUnknowns * i;
        const double yaw = view.recorded.yaw * yawScale + correction[YawCorrection];
        const double pitch = view.recorded.pitch * pitchScale + correction[PitchCorrection];
        const double roll = view.recorded.roll + correction[RollCorrection];
        const Eigen::Matrix3d turned = rotationOf({ yaw, 0.0, 0.0 });
        const Eigen::Matrix3d pitched = rotationOf({ yaw, pitch, 0.0 });
        const Eigen::Matrix3d head = rotationOf({ yaw, pitch, roll });
        m_rotations[i] = head * mount * rotationOf({ 0.0, 0.0, view.turnDegrees });
        // Pitch goes up, which is about the axis to the left; roll is about the one to the back.
        Axes &axes = m_axes[i];
        axes.col(YawCorrection) = Eigen::Vector3d::UnitY();
        axes.col(PitchCorrection) = -turned.col(0);
        axes.col(RollCorrection) = -pitched.col(2);
        axes.col(CorrectionUnknowns + MountPitch) = -head.col(0);
        axes.col(CorrectionUnknowns + MountRoll) = -(head * mountPitch).col(2);
        axes.col(CorrectionUnknowns + LogYawScale)
            = axes.col(YawCorrection) * (view.recorded.yaw * yawScale);
        axes.col(CorrectionUnknowns + LogPitchScale)
            = axes.col(PitchCorrection) * (view.recorded.pitch * pitchScale);
        axes *= M_PI / 180.0;
    }
}

TieResidual::TieResidual(const TiePoint &point, const Attitudes &attitudes,
                         const AlignLens &firstLens, const AlignLens &secondLens)
    : m_point(point)
    , m_attitudes(attitudes)
    , m_firstLens(firstLens)
    , m_secondLens(secondLens)
{
    set_num_residuals(2);
    *mutable_parameter_block_sizes()
        = { CorrectionUnknowns, CorrectionUnknowns, HeadUnknowns, LensUnknowns };
    if (&firstLens != &secondLens) {
        mutable_parameter_block_sizes()->push_back(LensUnknowns);
    }
}

bool TieResidual::Evaluate(double const *const *unknowns, double *residuals,
                           double **jacobians) const
{
    const bool isOneLens = &m_firstLens == &m_secondLens;
    const double *const firstLens = unknowns[FirstLens];
    const double *const secondLens = isOneLens ? firstLens : unknowns[SecondLens];
    const Eigen::Matrix3d &turn = m_attitudes.rotation(m_point.first);
    const Eigen::Matrix3d &back = m_attitudes.rotation(m_point.second);
    const Eigen::Vector2d match(m_point.inSecond.x() - (m_secondLens.size.width() - 1) / 2.0,
                                (m_secondLens.size.height() - 1) / 2.0 - m_point.inSecond.y());
    if (jacobians == nullptr) {
        const Eigen::Vector3d direction = turn * rayOf(m_point.inFirst, m_firstLens, firstLens);
        const Eigen::Vector3d ray = back.transpose() * direction;
        const Eigen::Vector2d off = planeOf(ray, m_secondLens, secondLens) - match;
        residuals[0] = off.x();
        residuals[1] = -off.y(); // pixels count downwards
        return true;
    }

    LensJet firstJets[LensUnknowns];
    for (int i = 0; i < LensUnknowns; ++i) {
        firstJets[i] = LensJet(firstLens[i], i);
    }
    const Eigen::Matrix<LensJet, 3, 1> seen = rayOf(m_point.inFirst, m_firstLens, firstJets);
    Eigen::Vector3d ray;
    Eigen::Matrix<double, 3, LensUnknowns> rayByLens;
    for (int i = 0; i < kRay; ++i) {
        ray[i] = seen[i].a;
        rayByLens.row(i) = seen[i].v;
    }
    const Eigen::Vector3d direction = turn * ray;
    const Eigen::Vector3d inSecond = back.transpose() * direction;
    Eigen::Matrix<RayJet, 3, 1> rayJets;
    for (int i = 0; i < kRay; ++i) {
        rayJets[i] = RayJet(inSecond[i], i);
    }
    RayJet secondJets[LensUnknowns];
    for (int i = 0; i < LensUnknowns; ++i) {
        secondJets[i] = RayJet(secondLens[i], kRay + i);
    }
    const Eigen::Matrix<RayJet, 2, 1> plane = planeOf(rayJets, m_secondLens, secondJets);
    for (int axis = 0; axis < 2; ++axis) {
        const double sign = axis == 0 ? 1.0 : -1.0; // pixels count downwards
        residuals[axis] = sign * (plane[axis].a - match[axis]);
        const Eigen::Vector3d byDirection = sign * (back * plane[axis].v.head<kRay>());
        // A small turn of the first photo moves the direction by its axis crossed with it.
        const Eigen::Vector3d byTurn = direction.cross(byDirection);
        const Eigen::Matrix<double, 1, Attitudes::Axes::ColsAtCompileTime> byFirst
            = byTurn.transpose() * m_attitudes.axes(m_point.first);
        const Eigen::Matrix<double, 1, Attitudes::Axes::ColsAtCompileTime> bySecond
            = -byTurn.transpose() * m_attitudes.axes(m_point.second);
        const Eigen::Matrix<double, 1, LensUnknowns> byFirstLens
            = byDirection.transpose() * turn * rayByLens;
        const Eigen::Matrix<double, 1, LensUnknowns> bySecondLens
            = sign * plane[axis].v.tail<LensUnknowns>().transpose();
        const auto put = [jacobians, axis](Block block, const auto &slopes) {
            if (jacobians[block] != nullptr) {
                std::copy_n(slopes.data(), slopes.size(), jacobians[block] + axis * slopes.size());
            }
        };
        using Correction = Eigen::Matrix<double, 1, CorrectionUnknowns>;
        using HeadSlopes = Eigen::Matrix<double, 1, HeadUnknowns>;
        put(FirstCorrection, Correction(byFirst.head<CorrectionUnknowns>()));
        put(SecondCorrection, Correction(bySecond.head<CorrectionUnknowns>()));
        put(Head, HeadSlopes((byFirst + bySecond).tail<HeadUnknowns>()));
        put(FirstLens,
            isOneLens ? Eigen::Matrix<double, 1, LensUnknowns>(byFirstLens + bySecondLens)
                      : byFirstLens);
        if (!isOneLens) {
            put(SecondLens, bySecondLens);
        }
    }
    return true;
}

} // namespace PanoHost
