// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/align/headmodel.h"

#include <ceres/cost_function.h>
#include <ceres/evaluation_callback.h>

#include <vector>

namespace PanoHost
{

/** A photo's correction, as it is solved for: degrees. */
enum CorrectionUnknown { YawCorrection, PitchCorrection, RollCorrection, CorrectionUnknowns };
/** What may change about the camera's place on its head (degrees) and about the head's steps. */
enum HeadUnknown { MountPitch, MountRoll, LogYawScale, LogPitchScale, HeadUnknowns };
/** What may change about a lens; the first is the logarithm of its focal length's share. */
enum LensUnknown { LogFocal, DistortionA, DistortionB, DistortionC, LensUnknowns };

/** Where each view looks, worked out once for all of its points, each time the unknowns change. */
class Attitudes : public ceres::EvaluationCallback
{
public:
    using Axes = Eigen::Matrix<double, 3, CorrectionUnknowns + HeadUnknowns>;

    /** All outlive it; \p corrections are those of all views, one after another. */
    Attitudes(const std::vector<AlignView> &views, const double *corrections, const double *head);

    void PrepareForEvaluation(bool evaluatesJacobians, bool isNewPoint) override;

    [[nodiscard]] const Eigen::Matrix3d &rotation(int view) const
    {
        return m_rotations[static_cast<size_t>(view)];
    }
    /** The axes of the world about which what is solved for turns the view, radians for each unit:
     * the correction's, then the head's. */
    [[nodiscard]] const Axes &axes(int view) const { return m_axes[static_cast<size_t>(view)]; }

private:
    const std::vector<AlignView> &m_views;
    const double *m_corrections;
    const double *m_head;
    std::vector<Eigen::Matrix3d> m_rotations;
    std::vector<Axes> m_axes;
};

/**
 * How far a point of one photo lands from its match in another, pixels of the latter. Hangs on both
 * corrections, the head, the first photo's lens and, unless that is the same, the second one's.
 */
class TieResidual : public ceres::CostFunction
{
public:
    /** All outlive it; the lenses' own values count, times or plus what is solved for. */
    TieResidual(const TiePoint &point, const Attitudes &attitudes, const AlignLens &firstLens,
                const AlignLens &secondLens);

    bool Evaluate(double const *const *unknowns, double *residuals,
                  double **jacobians) const override;

private:
    const TiePoint &m_point;
    const Attitudes &m_attitudes;
    const AlignLens &m_firstLens;
    const AlignLens &m_secondLens;
};

} // namespace PanoHost
