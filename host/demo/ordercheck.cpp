// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/ordercheck.h"

#include <cmath>

namespace PanoHost
{

namespace
{

/** -1, 0 or 1; what rounding leaves of a difference is none. */
int signOf(double differenceDegrees)
{
    constexpr double kRoundingDegrees = 1e-3;
    if (std::fabs(differenceDegrees) < kRoundingDegrees) {
        return 0;
    }
    return differenceDegrees < 0.0 ? -1 : 1;
}

/** Whether positions \p a and \p b lie to each other in \p panorama as in \p plan. */
bool agree(const Panorama &panorama, const ShootPlan &plan, int a, int b)
{
    const Position &first = panorama.positions[a];
    const Position &second = panorama.positions[b];
    const Pose &trueFirst = plan.positions[a];
    const Pose &trueSecond = plan.positions[b];
    return signOf(second.yawDegrees - first.yawDegrees)
        == signOf(trueSecond.yawDegrees - trueFirst.yawDegrees)
        && signOf(second.pitchDegrees - first.pitchDegrees)
        == signOf(trueSecond.pitchDegrees - trueFirst.pitchDegrees);
}

} // namespace

Result<QString> checkOrder(const Panorama &panorama, const ShootPlan &plan)
{
    const int positions = plan.positions.size();
    if (panorama.positions.size() != positions) {
        return Failure{
            ExitCode::ToolFailed,
            QStringLiteral("the layout"),
            QStringLiteral("%1 positions of %2").arg(panorama.positions.size()).arg(positions),
            {}
        };
    }
    for (int a = 0; a < positions; ++a) {
        for (int b = a + 1; b < positions; ++b) {
            if (!agree(panorama, plan, a, b)) {
                return Failure{ ExitCode::ToolFailed,
                                QStringLiteral("the layout"),
                                QStringLiteral("positions %1 and %2 do not lie to each other as "
                                               "the head took them")
                                    .arg(a)
                                    .arg(b),
                                {} };
            }
        }
    }
    return QStringLiteral("%1 positions lie in the order in which the head took them")
        .arg(positions);
}

} // namespace PanoHost
