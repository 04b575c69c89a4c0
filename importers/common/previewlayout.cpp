// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/common/previewlayout.h"

#include <algorithm>
#include <cmath>

namespace PanoHead
{

namespace
{

constexpr double kLargestStepDegrees = 360.0;
constexpr double kMargin = 50.0; // pixels around the outermost centres
constexpr double kBytesPerPixel = 4.0;
constexpr double kRoundingReserve
    = 1.0 - 1e-6; // a reduced canvas never exceeds the limit by rounding

/** Places of a layout in the precision in which the head's page computes them. */
template <typename Real> class Layout
{
public:
    Layout(const QVector<ShootData> &shots, const AngleExtents &extents, const LayoutRules &rules)
        : m_shots(shots)
        , m_rules(rules)
        , m_yawMin(static_cast<Real>(extents.yaw.minimum))
        , m_pitchMin(static_cast<Real>(extents.pitch.minimum))
        , m_yawSpan(spanOf(extents.yaw))
        , m_pitchSpan(spanOf(extents.pitch))
        , m_scale(static_cast<Real>(kCellSide) / smallestStep())
    {
    }

    [[nodiscard]] PreviewLayout result() const
    {
        const double reduction = reductionToLimits();
        const Real scale = reduction < 1.0 ? static_cast<Real>(m_scale * reduction) : m_scale;
        const double side = reduction < 1.0 ? kCellSide * reduction : kCellSide;
        PreviewLayout layout;
        layout.canvas = QSize(canvasSide(m_yawSpan, scale), canvasSide(m_pitchSpan, scale));
        layout.cells.reserve(m_shots.size());
        for (int index = 0; index < m_shots.size(); ++index) {
            appendCell(layout, index, scale, side);
        }
        return layout;
    }

private:
    [[nodiscard]] Real spanOf(const AngleRange &range) const
    {
        const Real minimum = static_cast<Real>(range.minimum);
        const Real maximum = static_cast<Real>(range.maximum);
        if (m_rules.span == Span::Absolute) {
            return std::abs(maximum - minimum);
        }
        return maximum - minimum >= 0 ? maximum - minimum : -(maximum + minimum);
    }

    [[nodiscard]] Real smallestStep() const
    {
        Real step = static_cast<Real>(kLargestStepDegrees);
        const auto lower = [&step](float from, float to) {
            const Real difference = std::abs(static_cast<Real>(to) - static_cast<Real>(from));
            // A step so small that its scale is not finite is no step.
            if (difference > 0 && difference < step
                && std::isfinite(static_cast<Real>(kCellSide) / difference)) {
                step = difference;
            }
        };
        for (int index = 1; index < m_shots.size(); ++index) {
            lower(m_shots[index - 1].yaw, m_shots[index].yaw);
            lower(m_shots[index - 1].pitch, m_shots[index].pitch);
        }
        return std::max(step, static_cast<Real>(m_rules.smallestStepDegrees));
    }

    /** Factor for the scale, 1 when the canvas as computed is within the limits. */
    [[nodiscard]] double reductionToLimits() const
    {
        const double width = static_cast<double>(m_scale) * static_cast<double>(m_yawSpan);
        const double height = static_cast<double>(m_scale) * static_cast<double>(m_pitchSpan);
        const double margins = 2.0 * kMargin;
        const double maxPixels = static_cast<double>(m_rules.maxCanvasBytes) / kBytesPerPixel;
        const double longest = std::max(width, height);
        const bool fits = longest + margins < m_rules.maxSide + 1.0
            && std::floor(width + margins) * std::floor(height + margins) <= maxPixels;
        if (fits || longest <= 0.0) {
            return 1.0;
        }
        // (r width + margins) (r height + margins) = maxPixels, solved for the larger root r.
        // Divided by the longest side, so that no product overflows.
        const double a = (width / longest) * (height / longest);
        const double b = margins * (width / longest + height / longest);
        const double c = margins * margins - maxPixels;
        const double bySize = a > 0.0 ? (-b + std::sqrt(b * b - 4.0 * a * c)) / (2.0 * a) : -c / b;
        const double bySide = m_rules.maxSide - margins;
        return kRoundingReserve * std::min(bySize, bySide) / longest;
    }

    [[nodiscard]] static int canvasSide(Real span, Real scale)
    {
        return static_cast<int>(scale * span + static_cast<Real>(2.0 * kMargin));
    }

    void appendCell(PreviewLayout &layout, int index, Real scale, double side) const
    {
        const ShootData &shot = m_shots[index];
        const Real margin = static_cast<Real>(kMargin);
        const Real x = margin + scale * (static_cast<Real>(shot.yaw) - m_yawMin);
        const Real y
            = margin + scale * (m_pitchSpan - (static_cast<Real>(shot.pitch) - m_pitchMin));
        if (!std::isfinite(x) || !std::isfinite(y)) {
            return;
        }
        const double left = static_cast<double>(x) - side / 2.0;
        const double top = static_cast<double>(y) - side / 2.0;
        layout.cells.append(
            { QRectF(left, top, side, side), index, shot.roll, shot.yaw, shot.pitch });
    }

    const QVector<ShootData> &m_shots;
    const LayoutRules &m_rules;
    Real m_yawMin;
    Real m_pitchMin;
    Real m_yawSpan;
    Real m_pitchSpan;
    Real m_scale; // pixels per degree
};

} // namespace

PreviewLayout layOutShots(const QVector<ShootData> &shots, const AngleExtents &extents,
                          const LayoutRules &rules)
{
    if (shots.isEmpty() || !extents.yaw.isMeasured() || !extents.pitch.isMeasured()) {
        return {};
    }
    if (rules.precision == Precision::Single) {
        return Layout<float>(shots, extents, rules).result();
    }
    return Layout<double>(shots, extents, rules).result();
}

const PreviewLayout &ShotLayout::of(const QVector<ShootData> &shots, const AngleExtents &extents)
{
    const bool isSame = shots.constData() == m_shots.constData() && shots.size() == m_shots.size()
        && extents == m_extents;
    if (!isSame) {
        m_layout = layOutShots(shots, extents, m_rules);
        m_shots = shots;
        m_extents = extents;
    }
    return m_layout;
}

} // namespace PanoHead
