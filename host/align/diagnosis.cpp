// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/diagnosis.h"

#include "host/align/median.h"

#include <QPair>
#include <QtMath>

#include <Eigen/Eigenvalues>
#include <Eigen/Geometry>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace PanoHost
{

namespace
{

/** From the median of absolute values to a standard deviation. */
constexpr double kFromMedian = 1.4826;
/** No head plays this much: what stands out by more is a fault. */
constexpr double kNotableDegrees = 1.0;
constexpr double kNotableDeviations = 8.0;
/** A head without any visible play is taken for this good. */
constexpr double kLeastPlayDegrees = 0.02;

double spreadAround(std::vector<double> values, double centre)
{
    for (double &value : values) {
        value = std::abs(value - centre);
    }
    return kFromMedian * median(std::move(values));
}

/** One axis of the corrections, degrees on the sphere's great circles or of the axis itself. */
std::vector<double> correctionsOf(const HeadModel &model, const std::vector<int> &tied,
                                  double Angles::*axis)
{
    std::vector<double> values;
    values.reserve(tied.size());
    for (const int view : tied) {
        values.push_back(model.corrections[static_cast<size_t>(view)].*axis);
    }
    return values;
}

struct Step {
    size_t at = 0; ///< the first value after it
    double size = 0.0; ///< 0: none
};

/** The one step that explains \p values best, if it is more than their play. */
Step stepIn(const std::vector<double> &values)
{
    constexpr size_t kLeastSide = 3;
    Step step;
    if (values.size() < 2 * kLeastSide) {
        return step;
    }
    double total = 0.0;
    for (const double value : values) {
        total += value;
    }
    const auto n = static_cast<double>(values.size());
    double before = 0.0;
    double best = -1.0;
    for (size_t i = 1; i < values.size(); ++i) {
        before += values[i - 1];
        const auto left = static_cast<double>(i);
        const double gap = before / left - (total - before) / (n - left);
        const double explained = gap * gap * left * (n - left);
        if (i >= kLeastSide && values.size() - i >= kLeastSide && explained > best) {
            best = explained;
            step.at = i;
        }
    }
    const auto split = values.begin() + static_cast<std::ptrdiff_t>(step.at);
    const std::vector<double> first(values.begin(), split);
    const std::vector<double> second(split, values.end());
    const double from = median(first);
    const double to = median(second);
    const double play
        = std::max({ spreadAround(first, from), spreadAround(second, to), kLeastPlayDegrees });
    const double size = to - from;
    step.size = std::abs(size) > std::max(kNotableDegrees, kNotableDeviations * play) ? size : 0.0;
    return step;
}

/** The residual of a point, and where in the second photo it was. */
struct Error {
    Eigen::Vector2d place;
    Eigen::Vector2d pixels;
};
using PairErrors = std::vector<Error>;

/** The residuals of \p points, which are grouped by pair. */
std::vector<PairErrors> errorsByPair(const HeadModel &model, const std::vector<TiePoint> &points)
{
    std::vector<PairErrors> pairs;
    QPair<int, int> last(-1, -1);
    for (const TiePoint &point : points) {
        const QPair<int, int> pair(point.first, point.second);
        if (pair != last) {
            pairs.emplace_back();
            last = pair;
        }
        if (const auto residual = residualOf(model, point)) {
            pairs.back().push_back({ point.inSecond, *residual });
        }
    }
    return pairs;
}

/** What all photos have in common at a place of the frame is the lens's: takes it off. */
void takeOffLens(std::vector<PairErrors> &pairs, const QSize &size)
{
    constexpr int kCells = 6;
    struct Cell {
        Eigen::Vector2d sum = Eigen::Vector2d::Zero();
        int count = 0;
    };
    std::array<std::array<Cell, kCells>, kCells> cells;
    const auto index = [](double place, int length) {
        return static_cast<size_t>(
            std::clamp(static_cast<int>(place / length * kCells), 0, kCells - 1));
    };
    const auto cellAt = [&](const Eigen::Vector2d &place) -> Cell & {
        return cells.at(index(place.y(), size.height())).at(index(place.x(), size.width()));
    };
    for (const PairErrors &pair : pairs) {
        for (const Error &error : pair) {
            Cell &cell = cellAt(error.place);
            cell.sum += error.pixels;
            ++cell.count;
        }
    }
    for (PairErrors &pair : pairs) {
        for (Error &error : pair) {
            const Cell &cell = cellAt(error.place);
            error.pixels -= cell.sum / cell.count;
        }
    }
}

/** How much nearest neighbours in a pair err alike: 1 the same way, 0 as noise does. */
double likeness(const std::vector<PairErrors> &pairs)
{
    constexpr size_t kFewestOfPair = 8;
    double alike = 0.0;
    double all = 0.0;
    for (const PairErrors &pair : pairs) {
        if (pair.size() < kFewestOfPair) {
            continue;
        }
        for (const Error &error : pair) {
            double nearest = std::numeric_limits<double>::infinity();
            const Error *neighbour = &error;
            for (const Error &other : pair) {
                const double distance = (other.place - error.place).squaredNorm();
                if (&other != &error && distance < nearest) {
                    nearest = distance;
                    neighbour = &other;
                }
            }
            alike += error.pixels.dot(neighbour->pixels);
            all += error.pixels.squaredNorm();
        }
    }
    return all > 0.0 ? alike / all : 0.0;
}

} // namespace

std::optional<Slip> findSlip(const HeadModel &model, const std::vector<int> &tied)
{
    const Step yaw = stepIn(correctionsOf(model, tied, &Angles::yaw));
    const Step pitch = stepIn(correctionsOf(model, tied, &Angles::pitch));
    if (yaw.size == 0.0 && pitch.size == 0.0) {
        return {};
    }
    if (std::abs(yaw.size) >= std::abs(pitch.size)) {
        return Slip{ tied[yaw.at], yaw.size, 0.0 };
    }
    return Slip{ tied[pitch.at], 0.0, pitch.size };
}

void undoSlip(HeadModel &model, const Slip &slip)
{
    for (auto i = static_cast<size_t>(slip.view); i < model.views.size(); ++i) {
        model.views[i].recorded.yaw += slip.yawDegrees / model.yawScale;
        model.views[i].recorded.pitch += slip.pitchDegrees / model.pitchScale;
        model.corrections[i].yaw -= slip.yawDegrees;
        model.corrections[i].pitch -= slip.pitchDegrees;
    }
}

std::optional<double> playOf(const HeadModel &model, const std::vector<int> &tied)
{
    constexpr size_t kFewest = 4;
    if (tied.size() < kFewest) {
        return {};
    }
    std::vector<double> away;
    for (double Angles::*axis : { &Angles::yaw, &Angles::pitch }) {
        const std::vector<double> values = correctionsOf(model, tied, axis);
        const double centre = median(values);
        for (const double value : values) {
            away.push_back(value - centre);
        }
    }
    return spreadAround(std::move(away), 0.0);
}

std::vector<Bump> findBumps(const HeadModel &model, const std::vector<int> &tied)
{
    std::vector<Bump> bumps;
    const std::optional<double> play = playOf(model, tied);
    if (!play) {
        return bumps;
    }
    const double yaw = median(correctionsOf(model, tied, &Angles::yaw));
    const double pitch = median(correctionsOf(model, tied, &Angles::pitch));
    const double notable
        = std::max(kNotableDegrees, kNotableDeviations * std::max(*play, kLeastPlayDegrees));
    for (const int view : tied) {
        const Angles &moved = model.corrections[static_cast<size_t>(view)];
        const double tilt = qDegreesToRadians(model.views[static_cast<size_t>(view)].recorded.pitch
                                              * model.pitchScale);
        // Near the zenith a turn moves hardly anything.
        const double degrees = std::hypot((moved.yaw - yaw) * std::cos(tilt), moved.pitch - pitch);
        if (degrees > notable) {
            bumps.push_back({ view, degrees });
        }
    }
    return bumps;
}

std::optional<Eigen::Vector2d> residualOf(const HeadModel &model, const TiePoint &point)
{
    const Eigen::Vector3d ray
        = model.rotation(point.first) * model.lensOf(point.first).rayOf(point.inFirst);
    const auto pixel
        = model.lensOf(point.second).pixelOf(model.rotation(point.second).transpose() * ray);
    if (!pixel) {
        return {};
    }
    return Eigen::Vector2d(*pixel - point.inSecond);
}

std::optional<double> parallaxPixels(const HeadModel &model, const std::vector<TiePoint> &points,
                                     double leastPixels)
{
    constexpr size_t kFewest = 40;
    constexpr double kLeastLikeness = 0.5;
    std::vector<PairErrors> pairs = errorsByPair(model, points);
    std::vector<double> lengths;
    for (const PairErrors &pair : pairs) {
        for (const Error &error : pair) {
            lengths.push_back(error.pixels.norm());
        }
    }
    const double typical = median(lengths);
    if (lengths.size() < kFewest || typical < leastPixels) {
        return {};
    }
    takeOffLens(pairs, model.lenses.front().size);
    if (likeness(pairs) < kLeastLikeness) {
        return {};
    }
    return typical;
}

Eigen::Matrix3d levelling(const HeadModel &model)
{
    Eigen::Matrix3d sum = Eigen::Matrix3d::Zero();
    for (size_t i = 0; i < model.views.size(); ++i) {
        const Eigen::Matrix3d upright = model.rotation(static_cast<int>(i))
            * rotationOf({ 0.0, 0.0, model.views[i].turnDegrees }).transpose();
        sum += upright.col(0) * upright.col(0).transpose();
    }
    const Eigen::SelfAdjointEigenSolver<Eigen::Matrix3d> axes(sum);
    // One direction alone, or a single great circle through the zenith, knows no vertical.
    constexpr double kLeastShare = 1e-3;
    if (axes.eigenvalues()(1) < kLeastShare * axes.eigenvalues()(2)) {
        return Eigen::Matrix3d::Identity();
    }
    Eigen::Vector3d up = axes.eigenvectors().col(0);
    if (up.y() < 0.0) {
        up = -up;
    }
    return Eigen::Quaterniond::FromTwoVectors(up, Eigen::Vector3d::UnitY()).toRotationMatrix();
}

} // namespace PanoHost
