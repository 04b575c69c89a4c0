// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/photometry.h"

#include "host/align/median.h"
#include "host/align/onethread.h"

#include <ceres/ceres.h>

#include <algorithm>
#include <cmath>

namespace PanoHost
{

namespace
{

constexpr int kCurve = 3;

/** The radius of \p pixel, in halves of the diagonal, squared. */
double squaredRadius(const Eigen::Vector2d &pixel, const AlignLens &lens)
{
    const Eigen::Vector2d middle((lens.size.width() - 1) / 2.0, (lens.size.height() - 1) / 2.0);
    const Eigen::Vector2d corner(lens.size.width() / 2.0, lens.size.height() / 2.0);
    return (pixel - middle).squaredNorm() / corner.squaredNorm();
}

/** Stops that a lens takes at the squared radius \p square. */
template <class T> T stopsLost(const T *curve, double square)
{
    using std::log;
    // However wrong a curve is on the way: some light arrives.
    constexpr double kLeast = 0.02;
    const T share = 1.0 + square * (curve[0] + square * (curve[1] + square * curve[2]));
    return share > kLeast ? T(-log(share) / M_LN2) : T(-std::log(kLeast) / M_LN2);
}

/** By how many stops two photos disagree about a spot, once exposure and lens are allowed for. */
struct LightResidual {
    template <class T>
    bool operator()(const T *first, const T *second, const T *firstCurve, const T *secondCurve,
                    T *residual) const
    {
        residual[0] = stops + first[0] + stopsLost(firstCurve, squareInFirst) - second[0]
            - stopsLost(secondCurve, squareInSecond);
        return true;
    }
    template <class T>
    bool operator()(const T *first, const T *second, const T *curve, T *residual) const
    {
        return (*this)(first, second, curve, curve, residual);
    }

    double stops; ///< the first photo is brighter by
    double squareInFirst;
    double squareInSecond;
};

template <int N> struct NearTo {
    template <class T> bool operator()(const T *values, T *residual) const
    {
        for (int i = 0; i < N; ++i) {
            residual[i] = (values[i] - mean) / deviation;
        }
        return true;
    }

    double mean;
    double deviation;
};

/** Points that disagree by more than a few deviations count little, as in a Cauchy distribution. */
struct StopsLoss final : ceres::LossFunction {
    void Evaluate(double square, double values[3]) const override
    {
        const double variance = sigma * sigma;
        values[0] = std::log1p(square / variance);
        values[1] = 1.0 / (variance + square);
        values[2] = -values[1] * values[1];
    }

    double sigma = 0.2;
};

struct Interruption final : ceres::IterationCallback {
    explicit Interruption(const JobWatch &jobWatch)
        : watch(jobWatch)
    {
    }
    ceres::CallbackReturnType operator()(const ceres::IterationSummary & /*summary*/) override
    {
        return watch.stopWanted() ? ceres::SOLVER_ABORT : ceres::SOLVER_CONTINUE;
    }

    const JobWatch &watch;
};

bool saysSomething(const LightPoint &light, int views, const PhotometryOptions &options)
{
    const auto isRight = [&options](double value) {
        return value >= options.darkest && value <= options.brightest;
    };
    const TiePoint &point = light.point;
    return point.first >= 0 && point.first < views && point.second >= 0 && point.second < views
        && point.first != point.second && isRight(light.lightInFirst)
        && isRight(light.lightInSecond) && point.inFirst.allFinite() && point.inSecond.allFinite();
}

} // namespace

Photometry solvePhotometry(const std::vector<AlignView> &views,
                           const std::vector<AlignLens> &lenses,
                           const std::vector<LightPoint> &points, const PhotometryOptions &options,
                           const JobWatch &watch)
{
    keepToOneThread();
    watch.check();
    const size_t count = views.size();
    Photometry result;
    std::vector<double> recorded = options.recordedValues;
    recorded.resize(count, 0.0);
    // Exposures, then curves: one array, so that nothing hangs on where memory happens to lie.
    std::vector<double> state = recorded;
    state.resize(count + kCurve * lenses.size());
    const auto curve = [&](int lens) { return &state[count + static_cast<size_t>(kCurve * lens)]; };

    StopsLoss loss;
    ceres::Problem::Options ownership;
    ownership.loss_function_ownership = ceres::DO_NOT_TAKE_OWNERSHIP;
    ceres::Problem problem(ownership);
    for (size_t i = 0; i < count; ++i) {
        problem.AddResidualBlock(new ceres::AutoDiffCostFunction<NearTo<1>, 1, 1>(
                                     new NearTo<1>{ recorded[i], options.exposureStops }),
                                 nullptr, &state[i]);
    }
    for (int lens = 0; lens < static_cast<int>(lenses.size()); ++lens) {
        problem.AddResidualBlock(new ceres::AutoDiffCostFunction<NearTo<kCurve>, kCurve, kCurve>(
                                     new NearTo<kCurve>{ 0.0, options.vignettingShare }),
                                 nullptr, curve(lens));
        if (!options.freesVignetting) {
            problem.SetParameterBlockConstant(curve(lens));
        }
    }
    std::vector<ceres::ResidualBlockId> blocks;
    for (const LightPoint &light : points) {
        if (!saysSomething(light, static_cast<int>(count), options)) {
            continue;
        }
        const auto first = static_cast<size_t>(light.point.first);
        const auto second = static_cast<size_t>(light.point.second);
        const int firstLens = views[first].lens;
        const int secondLens = views[second].lens;
        auto *const residual = new LightResidual{
            std::log2(light.lightInFirst / light.lightInSecond),
            squaredRadius(light.point.inFirst, lenses[static_cast<size_t>(firstLens)]),
            squaredRadius(light.point.inSecond, lenses[static_cast<size_t>(secondLens)])
        };
        blocks.push_back(
            firstLens == secondLens
                ? problem.AddResidualBlock(
                    new ceres::AutoDiffCostFunction<LightResidual, 1, 1, 1, kCurve>(residual),
                    &loss, &state[first], &state[second], curve(firstLens))
                : problem.AddResidualBlock(
                    new ceres::AutoDiffCostFunction<LightResidual, 1, 1, 1, kCurve, kCurve>(
                        residual),
                    &loss, &state[first], &state[second], curve(firstLens), curve(secondLens)));
    }

    Interruption interrupted(watch);
    ceres::Solver::Options solving;
    solving.linear_solver_type = ceres::SPARSE_NORMAL_CHOLESKY;
    solving.num_threads = 1;
    solving.logging_type = ceres::SILENT;
    solving.max_num_iterations = 20;
    solving.callbacks = { &interrupted };
    constexpr int kRounds = 3;
    for (int round = 0; round < kRounds; ++round) {
        watch.report(round, kRounds, QStringLiteral("comparing light"));
        ceres::Solver::Summary summary;
        ceres::Solve(solving, &problem, &summary);
        if (summary.termination_type == ceres::USER_FAILURE) {
            throw CommandError(interruption());
        }
        std::vector<double> off;
        for (const ceres::ResidualBlockId block : blocks) {
            double stops = 0.0;
            problem.EvaluateResidualBlock(block, false, nullptr, &stops, nullptr);
            off.push_back(std::abs(stops));
        }
        if (off.empty()) {
            break;
        }
        constexpr double kDeviations = 1.4826;
        constexpr double kLeastSigma = 0.01;
        loss.sigma = std::max(kDeviations * median(std::move(off)), kLeastSigma);
        result.sigmaStops = loss.sigma;
    }

    result.exposureValues.assign(state.cbegin(),
                                 state.cbegin() + static_cast<std::ptrdiff_t>(count));
    for (int lens = 0; lens < static_cast<int>(lenses.size()); ++lens) {
        result.vignetting.push_back({ curve(lens)[0], curve(lens)[1], curve(lens)[2] });
    }
    result.pointsUsed = static_cast<int>(blocks.size());
    return result;
}

} // namespace PanoHost
