// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "shoot/previewlayout.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace PanoHead
{

namespace
{

constexpr double kLargestStepDegrees = 360.0;
constexpr double kBorder = 50.0; // pixels around the outermost centres
constexpr double kBytesPerPixel = 4.0;
constexpr double kRoundingReserve
    = 1.0 - 1e-6; // a reduced canvas never exceeds the limit by rounding
// A step so small that its scale is beyond 32-bit floats is no step.
constexpr double kSmallestUsableStep = kCellSide / double{ std::numeric_limits<float>::max() };

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

    /** Whether the canvas as computed is within the limits. */
    [[nodiscard]] bool fits() const
    {
        const double width = std::floor(static_cast<double>(canvasSide(m_yawSpan, m_scale)));
        const double height = std::floor(static_cast<double>(canvasSide(m_pitchSpan, m_scale)));
        return std::max(width, height) <= m_rules.maxSide
            && width * height <= static_cast<double>(m_rules.maxCanvasBytes) / kBytesPerPixel;
    }

    [[nodiscard]] PreviewLayout result() const
    {
        const double reduction = fits() ? 1.0 : reductionToLimits();
        const Real scale = reduction < 1.0 ? static_cast<Real>(m_scale * reduction) : m_scale;
        const double side = kCellSide * reduction;
        PreviewLayout layout;
        layout.canvas = QSize(static_cast<int>(canvasSide(m_yawSpan, scale)),
                              static_cast<int>(canvasSide(m_pitchSpan, scale)));
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
            if (static_cast<double>(difference) > kSmallestUsableStep && difference < step) {
                step = difference;
            }
        };
        for (int index = 1; index < m_shots.size(); ++index) {
            lower(m_shots[index - 1].yaw, m_shots[index].yaw);
            lower(m_shots[index - 1].pitch, m_shots[index].pitch);
        }
        return std::max(step, static_cast<Real>(m_rules.smallestStepDegrees));
    }

    /** Factor for the scale of a canvas that does not fit. */
    [[nodiscard]] double reductionToLimits() const
    {
        const double margins = 2.0 * kBorder;
        const double fullWidth = static_cast<double>(m_scale) * static_cast<double>(m_yawSpan);
        const double fullHeight = static_cast<double>(m_scale) * static_cast<double>(m_pitchSpan);
        const double longest = std::max(fullWidth, fullHeight);
        // (r width + margins) (r height + margins) = maxPixels, solved for the larger root r.
        // Divided by the longest side, so that no product overflows, and in the form in which no
        // two close numbers are subtracted.
        const double width = fullWidth / longest;
        const double height = fullHeight / longest;
        const double maxPixels = static_cast<double>(m_rules.maxCanvasBytes) / kBytesPerPixel;
        const double a = width * height;
        const double b = margins * (width + height);
        const double c = margins * margins - maxPixels;
        const double bySize = -2.0 * c / (b + std::sqrt(b * b - 4.0 * a * c));
        const double bySide = m_rules.maxSide - margins;
        return kRoundingReserve * std::min(bySize, bySide) / longest;
    }

    /** In pixels and fractions of one. */
    [[nodiscard]] static Real canvasSide(Real span, Real scale)
    {
        return scale * span + static_cast<Real>(2.0 * kBorder);
    }

    void appendCell(PreviewLayout &layout, int index, Real scale, double side) const
    {
        const ShootData &shot = m_shots[index];
        const Real margin = static_cast<Real>(kBorder);
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
        const Layout<float> layout(shots, extents, rules);
        if (layout.fits()) {
            return layout.result();
        }
    }
    // A reduced canvas has no literal places, and spans and scales can be too large for floats.
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
