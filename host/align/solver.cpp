// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/solver.h"

#include "host/align/median.h"
#include "host/align/onethread.h"
#include "host/align/tieresidual.h"

#include <ceres/ceres.h>

#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numeric>

namespace PanoHost
{

namespace
{

constexpr int kAxes = CorrectionUnknowns;
using PerAxis = std::array<double, kAxes>;

/** From a median distance to the standard deviation of what is right. */
constexpr double kDeviations = 1.4826;
/** Lengths in the plane have a median larger by this than distances along an axis have a deviation.
 */
constexpr double kPlane = 1.18;
constexpr double kLeastSigmaPixels = 0.15;
constexpr char kPlacing[] = "placing photos";

/** A share that a learnt value must change by to be worth another round. */
constexpr double kNews = 0.03;
/** Deviations of the polynomial's coefficients between lenses. */
constexpr double kDeviationA = 0.01;
constexpr double kDeviationB = 0.03;
constexpr double kDeviationC = 0.01;
/** How many deviations of play are nothing special; from there on a correction counts less. */
constexpr double kUsualPlay = 3.0;

/** The root of the mean square of those of \p values that are at most \p most. */
double deviationWithin(const std::vector<double> &values, double most)
{
    double sum = 0.0;
    int count = 0;
    for (const double value : values) {
        if (value <= most) {
            sum += value * value;
            ++count;
        }
    }
    return std::sqrt(sum / std::max(count, 1));
}

/**
 * Points count less the more they exceed a width, as those of a Cauchy distribution. Their worth
 * next to the record does not hang on that width but on how exact right ones are.
 */
struct PointLoss final : ceres::LossFunction {
    void Evaluate(double square, double values[3]) const override
    {
        const double worth = 1.0 / (sigma * sigma);
        const double wide = width * width;
        values[0] = worth * wide * std::log1p(square / wide);
        values[1] = worth * wide / (wide + square);
        values[2] = -values[1] / (wide + square);
    }

    double sigma = 1.0;
    double width = 1.0;
};

/** Where a correction costs nothing. */
struct FreeRange {
    double from = 0.0;
    double to = 0.0;

    template <class T> [[nodiscard]] T beyond(const T &correction) const
    {
        return correction < from ? T(correction - from)
            : correction > to    ? T(correction - to)
                                 : T(0.0);
    }
};

/** What whole degrees that were cut off toward zero leave open; nothing when none were. */
FreeRange leftOpen(double recorded, bool cutOff)
{
    return { cutOff && recorded <= 0.0 ? -1.0 : 0.0, cutOff && recorded >= 0.0 ? 1.0 : 0.0 };
}

using FreeRanges = std::array<FreeRange, kAxes>;

/** A photo stands where the head has recorded it, but for the head's play. */
struct RecordPrior {
    template <class T> bool operator()(const T *correction, T *residual) const
    {
        for (size_t axis = 0; axis < kAxes; ++axis) {
            residual[axis] = free[axis].beyond(correction[axis]) / play[axis];
        }
        return true;
    }

    const PerAxis &play;
    FreeRanges free;
};

/** Within a range that costs nothing the middle is the best guess. */
struct MiddlePrior {
    template <class T> bool operator()(const T *correction, T *residual) const
    {
        for (size_t axis = 0; axis < kAxes; ++axis) {
            residual[axis] = correction[axis] - (free[axis].from + free[axis].to) / 2.0;
        }
        return true;
    }

    FreeRanges free;
};

/** A level of a stack stands where the stack's own photo does. */
struct StackPrior {
    template <class T> bool operator()(const T *level, const T *stack, T *residual) const
    {
        for (size_t axis = 0; axis < kAxes; ++axis) {
            residual[axis] = (level[axis] - stack[axis]) / degrees;
        }
        return true;
    }

    double degrees;
};

/** Four numbers, each near to what it was. */
struct FourPriors {
    template <class T> bool operator()(const T *values, T *residual) const
    {
        for (size_t i = 0; i < means.size(); ++i) {
            residual[i] = (values[i] - means[i]) / deviations[i];
        }
        return true;
    }

    std::array<double, 4> means;
    std::array<double, 4> deviations;
};

static_assert(LensUnknowns == 4 && HeadUnknowns == 4);

template <class Prior, int... Sizes> ceres::CostFunction *prior(const Prior &prior)
{
    return new ceres::AutoDiffCostFunction<Prior, Sizes...>(new Prior(prior));
}

class Solver : public ceres::IterationCallback
{
public:
    Solver(HeadModel &model, const std::vector<TiePoint> &points, const SolveOptions &options,
           const JobWatch &watch)
        : m_model(model)
        , m_points(points)
        , m_options(options)
        , m_watch(watch)
        , m_lenses(model.lenses)
        , m_play{ options.play.yaw, options.play.pitch, options.play.roll }
        , m_repeats(options.play)
    {
        m_model.corrections.resize(m_model.views.size());
    }

    SolveResult run();

    ceres::CallbackReturnType operator()(const ceres::IterationSummary &summary) override;

private:
    double *correction(int view) { return &m_state[static_cast<size_t>(view) * kAxes]; }
    double *lens(int index)
    {
        return correction(static_cast<int>(m_model.views.size()))
            + static_cast<std::ptrdiff_t>(index) * LensUnknowns;
    }
    double *head() { return lens(static_cast<int>(m_lenses.size())); }

    void takeState();
    void putState();
    void addPoints(ceres::Problem &problem, const Attitudes &attitudes);
    void addPriors(ceres::Problem &problem);
    static void hold(ceres::Problem &problem, double *four, const std::array<bool, 4> &isFree);
    void iterate(ceres::Problem &problem, int most, double tolerance);
    bool learn();
    bool learnPlay();

    [[nodiscard]] bool isUsable(const TiePoint &point) const;
    [[nodiscard]] bool isLevel(int view) const;
    [[nodiscard]] FreeRanges freeRanges(int view) const;
    void measure();
    [[nodiscard]] bool isSlip(double pixels) const;
    [[nodiscard]] double degreesOf(double pixels) const;
    [[nodiscard]] double worstPair() const;
    [[nodiscard]] double typicalResidual() const;

    HeadModel &m_model;
    const std::vector<TiePoint> &m_points;
    const SolveOptions &m_options;
    const JobWatch &m_watch;
    std::vector<AlignLens> m_lenses; ///< as they came
    /** Corrections, lenses, head: one array, because what is sorted by address must not hang on
     * where memory happens to lie. */
    std::vector<double> m_state;
    std::vector<double> m_residuals;
    PointLoss m_pointLoss;
    ceres::HuberLoss m_recordLoss{ kUsualPlay };
    PerAxis m_play;
    Angles m_repeats;
    bool m_playKnown = false;
    int m_done = 0; ///< iterations of earlier rounds, as if all had been needed
    int m_total = 0;
};

constexpr int kSlipRounds = 3;
constexpr int kRounds = 4;
constexpr int kRoundIterations = 8;
constexpr int kLastIterations = 25;
/** Shares of the cost that a step must gain to be followed by another. */
constexpr double kRoughly = 1e-3;
constexpr double kExactly = 1e-12;

SolveResult Solver::run()
{
    keepToOneThread();
    m_watch.check();
    takeState();
    measure();
    Attitudes attitudes(m_model.views, m_state.data(), head());
    ceres::Problem::Options ownership;
    ownership.evaluation_callback = &attitudes;
    ownership.loss_function_ownership = ceres::DO_NOT_TAKE_OWNERSHIP;
    ownership.disable_all_safety_checks = true;
    ceres::Problem problem(ownership);
    addPoints(problem, attitudes);
    addPriors(problem);
    m_pointLoss.sigma = m_options.lossPixels;
    m_pointLoss.width = std::max(m_options.lossPixels, 3.0 * typicalResidual());
    m_total = (kSlipRounds + kRounds) * kRoundIterations + kLastIterations;
    const double worst = worstPair();
    if (isSlip(worst)) {
        // No wrong points: all pull at first, and photos may go as far as that takes them.
        const PerAxis trusted = m_play;
        m_play.fill(degreesOf(worst));
        double width = worst;
        for (int round = 0; round < kSlipRounds; ++round, width /= 4.0) {
            m_pointLoss.width = std::max(width, m_options.lossPixels);
            iterate(problem, kRoundIterations, kRoughly);
            learnPlay();
        }
        m_play = m_playKnown ? m_play : trusted;
    }
    m_done = kSlipRounds * kRoundIterations;
    bool learning = true;
    for (int round = 0; round < kRounds && learning; ++round) {
        iterate(problem, kRoundIterations, kRoughly);
        learning = learn();
    }
    m_done = m_total - kLastIterations;
    iterate(problem, kLastIterations, kExactly);

    m_watch.report(m_total, m_total, QLatin1String(kPlacing));
    SolveResult result;
    result.residuals = m_residuals;
    result.sigmaPixels = m_pointLoss.sigma;
    result.play = m_repeats;
    result.playKnown = m_playKnown;
    return result;
}

ceres::CallbackReturnType Solver::operator()(const ceres::IterationSummary &summary)
{
    m_watch.report(m_done + summary.iteration, m_total, QLatin1String(kPlacing));
    // Half is one standard deviation of a single number: no photo is going anywhere.
    constexpr double kNoGain = 1e-3;
    if (summary.iteration > 0 && summary.step_is_successful && summary.cost_change < kNoGain) {
        return ceres::SOLVER_TERMINATE_SUCCESSFULLY;
    }
    return m_watch.stopWanted() ? ceres::SOLVER_ABORT : ceres::SOLVER_CONTINUE;
}

void Solver::takeState()
{
    for (const Angles &angles : m_model.corrections) {
        m_state.insert(m_state.end(), { angles.yaw, angles.pitch, angles.roll });
    }
    // Of lenses what changes is solved for.
    m_state.resize(m_state.size() + LensUnknowns * m_lenses.size());
    m_state.insert(m_state.end(),
                   { m_model.mountPitchDegrees, m_model.mountRollDegrees,
                     std::log(m_model.yawScale), std::log(m_model.pitchScale) });
}

void Solver::putState()
{
    for (int view = 0; view < static_cast<int>(m_model.views.size()); ++view) {
        const double *angles = correction(view);
        m_model.corrections[static_cast<size_t>(view)] = { angles[0], angles[1], angles[2] };
    }
    for (size_t i = 0; i < m_lenses.size(); ++i) {
        const double *change = lens(static_cast<int>(i));
        AlignLens &lens = m_model.lenses[i];
        lens.focalPixels = m_lenses[i].focalPixels * std::exp(change[LogFocal]);
        lens.a = m_lenses[i].a + change[DistortionA];
        lens.b = m_lenses[i].b + change[DistortionB];
        lens.c = m_lenses[i].c + change[DistortionC];
    }
    m_model.mountPitchDegrees = head()[MountPitch];
    m_model.mountRollDegrees = head()[MountRoll];
    m_model.yawScale = std::exp(head()[LogYawScale]);
    m_model.pitchScale = std::exp(head()[LogPitchScale]);
}

bool Solver::isUsable(const TiePoint &point) const
{
    const int views = static_cast<int>(m_model.views.size());
    return point.first >= 0 && point.first < views && point.second >= 0 && point.second < views
        && point.first != point.second && point.inFirst.allFinite() && point.inSecond.allFinite();
}

bool Solver::isLevel(int view) const
{
    const int stack = m_model.views[static_cast<size_t>(view)].stack;
    return stack >= 0 && stack < static_cast<int>(m_model.views.size()) && stack != view;
}

FreeRanges Solver::freeRanges(int view) const
{
    const Angles &recorded = m_model.views[static_cast<size_t>(view)].recorded;
    return { leftOpen(recorded.yaw, m_options.cutOff), leftOpen(recorded.pitch, m_options.cutOff),
             FreeRange{} };
}

void Solver::addPoints(ceres::Problem &problem, const Attitudes &attitudes)
{
    for (const TiePoint &point : m_points) {
        if (!isUsable(point)) {
            continue;
        }
        const int first = m_model.views[static_cast<size_t>(point.first)].lens;
        const int second = m_model.views[static_cast<size_t>(point.second)].lens;
        std::vector<double *> unknowns{ correction(point.first), correction(point.second), head(),
                                        lens(first) };
        if (first != second) {
            unknowns.push_back(lens(second));
        }
        problem.AddResidualBlock(new TieResidual(point, attitudes,
                                                 m_lenses[static_cast<size_t>(first)],
                                                 m_lenses[static_cast<size_t>(second)]),
                                 &m_pointLoss, unknowns);
    }
}

void Solver::addPriors(ceres::Problem &problem)
{
    const int views = static_cast<int>(m_model.views.size());
    for (int view = 0; view < views; ++view) {
        if (isLevel(view)) {
            problem.AddResidualBlock(
                prior<StackPrior, kAxes, kAxes, kAxes>({ m_options.stackDegrees }), nullptr,
                correction(view), correction(m_model.views[static_cast<size_t>(view)].stack));
            continue;
        }
        const FreeRanges free = freeRanges(view);
        problem.AddResidualBlock(prior<RecordPrior, kAxes, kAxes>({ m_play, free }), &m_recordLoss,
                                 correction(view));
        if (m_options.cutOff) {
            problem.AddResidualBlock(prior<MiddlePrior, kAxes, kAxes>({ free }), nullptr,
                                     correction(view));
        }
    }
    const std::vector<AlignLens> &recorded
        = m_options.recordedLenses.size() == m_lenses.size() ? m_options.recordedLenses : m_lenses;
    for (size_t i = 0; i < m_lenses.size(); ++i) {
        double *const change = lens(static_cast<int>(i));
        const AlignLens &start = m_lenses[i];
        const AlignLens &mean = recorded[i];
        problem.AddResidualBlock(
            prior<FourPriors, LensUnknowns, LensUnknowns>(
                { { std::log(mean.focalPixels / start.focalPixels), mean.a - start.a,
                    mean.b - start.b, mean.c - start.c },
                  { m_options.focalShare, kDeviationA, kDeviationB, kDeviationC } }),
            nullptr, change);
        hold(problem, change,
             { m_options.freesFocal, m_options.freesA, m_options.freesB, m_options.freesC });
    }
    problem.AddResidualBlock(prior<FourPriors, HeadUnknowns, HeadUnknowns>(
                                 { { 0.0, 0.0, 0.0, 0.0 },
                                   { m_options.mountPitchDegrees, m_options.mountRollDegrees,
                                     m_options.scaleShare, m_options.scaleShare } }),
                             nullptr, head());
    hold(problem, head(), { true, true, m_options.freesScales, m_options.freesScales });
}

/** Keeps what is not free of \p four as it is. */
void Solver::hold(ceres::Problem &problem, double *four, const std::array<bool, 4> &isFree)
{
    std::vector<int> held;
    for (int i = 0; i < 4; ++i) {
        if (!isFree[static_cast<size_t>(i)]) {
            held.push_back(i);
        }
    }
    if (held.size() == isFree.size()) {
        problem.SetParameterBlockConstant(four);
    } else if (!held.empty()) {
        problem.SetManifold(four, new ceres::SubsetManifold(4, held));
    }
}

/** Changes the model until it fits \p tolerance's share better at most. */
void Solver::iterate(ceres::Problem &problem, int most, double tolerance)
{
    ceres::Solver::Options options;
    options.linear_solver_type = ceres::SPARSE_NORMAL_CHOLESKY;
    options.sparse_linear_algebra_library_type = ceres::SUITE_SPARSE;
    options.num_threads = 1;
    options.logging_type = ceres::SILENT;
    options.max_num_iterations = most;
    options.function_tolerance = tolerance;
    options.callbacks = { this };
    ceres::Solver::Summary summary;
    ceres::Solve(options, &problem, &summary);
    if (summary.termination_type == ceres::USER_FAILURE) {
        throw CommandError(interruption());
    }
    m_done += most;
    putState();
    measure();
}

/** The residuals of all points by the model as it is. */
void Solver::measure()
{
    std::vector<Eigen::Matrix3d> rotations;
    rotations.reserve(m_model.views.size());
    for (int view = 0; view < static_cast<int>(m_model.views.size()); ++view) {
        rotations.push_back(m_model.rotation(view));
    }
    m_residuals.assign(m_points.size(), std::numeric_limits<double>::infinity());
    for (size_t i = 0; i < m_points.size(); ++i) {
        const TiePoint &point = m_points[i];
        if (!isUsable(point)) {
            continue;
        }
        const Eigen::Vector3d ray = rotations[static_cast<size_t>(point.second)].transpose()
            * (rotations[static_cast<size_t>(point.first)]
               * m_model.lensOf(point.first).rayOf(point.inFirst));
        if (const auto pixel = m_model.lensOf(point.second).pixelOf(ray)) {
            m_residuals[i] = (*pixel - point.inSecond).norm();
        }
    }
}

/** Whether two photos are off by \p pixels as no head's play puts them, and most others are not. */
bool Solver::isSlip(double pixels) const
{
    const double play = std::max({ m_play[0], m_play[1], m_play[2] });
    return m_options.learnsPlay && pixels > 5.0 * typicalResidual()
        && degreesOf(pixels) > kUsualPlay * M_SQRT2 * play;
}

/** The angle that \p pixels are in the middle of a photo. */
double Solver::degreesOf(double pixels) const
{
    return qRadiansToDegrees(pixels / m_lenses.front().focalPixels);
}

/** The largest of the median residuals of any two photos' points. */
double Solver::worstPair() const
{
    constexpr size_t kFew = 3;
    std::vector<size_t> order(m_points.size());
    std::iota(order.begin(), order.end(), 0U);
    const auto photos
        = [this](size_t i) { return std::make_pair(m_points[i].first, m_points[i].second); };
    std::stable_sort(order.begin(), order.end(),
                     [&photos](size_t a, size_t b) { return photos(a) < photos(b); });
    double worst = 0.0;
    std::vector<double> lengths;
    for (auto i = order.cbegin(); i != order.cend();) {
        const auto pair = photos(*i);
        lengths.clear();
        for (; i != order.cend() && photos(*i) == pair; ++i) {
            lengths.push_back(m_residuals[*i]);
        }
        const double typical = lengths.size() < kFew ? 0.0 : median(lengths);
        worst = std::isfinite(typical) ? std::max(worst, typical) : worst;
    }
    return worst;
}

/** The deviation of right points; 0: there are none. */
double Solver::typicalResidual() const
{
    std::vector<double> lengths;
    std::copy_if(m_residuals.cbegin(), m_residuals.cend(), std::back_inserter(lengths),
                 [](double length) { return std::isfinite(length); });
    return lengths.empty() ? 0.0 : kDeviations * median(lengths) / kPlane;
}

/** Takes what points and photos say about themselves; false when that is no news. */
bool Solver::learn()
{
    const double typical = typicalResidual();
    if (typical == 0.0) {
        return false; // no points
    }
    const double before = m_pointLoss.sigma;
    m_pointLoss.sigma = std::max(typical, kLeastSigmaPixels);
    m_pointLoss.width = m_pointLoss.sigma;
    const bool playChanged = m_options.learnsPlay && learnPlay();
    return playChanged || std::abs(m_pointLoss.sigma - before) > kNews * before;
}

/** How far photos that are tied down stand from where the head has recorded them. */
bool Solver::learnPlay()
{
    constexpr int kEnoughPoints = 8;
    constexpr size_t kEnoughPhotos = 4;
    constexpr double kWrong = 4.0;
    constexpr double kCaution = 1.5;
    constexpr double kLeastPlay = 0.02;
    std::vector<int> ties(m_model.views.size());
    for (size_t i = 0; i < m_points.size(); ++i) {
        if (m_residuals[i] < kWrong * m_pointLoss.width) {
            ++ties[static_cast<size_t>(m_points[i].first)];
            ++ties[static_cast<size_t>(m_points[i].second)];
        }
    }
    std::array<std::vector<double>, kAxes> found;
    for (int view = 0; view < static_cast<int>(ties.size()); ++view) {
        if (ties[static_cast<size_t>(view)] >= kEnoughPoints && !isLevel(view)) {
            const FreeRanges free = freeRanges(view);
            for (size_t axis = 0; axis < kAxes; ++axis) {
                found[axis].push_back(std::abs(free[axis].beyond(correction(view)[axis])));
            }
        }
    }
    if (found.front().size() < kEnoughPhotos) {
        return false;
    }
    bool isNews = false;
    PerAxis repeats{};
    for (size_t axis = 0; axis < kAxes; ++axis) {
        const double deviation = kDeviations * median(found[axis]);
        const double play = std::max(kCaution * deviation, kLeastPlay);
        isNews = isNews || std::abs(play - m_play[axis]) > kNews * m_play[axis];
        m_play[axis] = play;
        repeats[axis] = deviationWithin(found[axis], kUsualPlay * deviation);
    }
    m_repeats = { repeats[0], repeats[1], repeats[2] };
    m_playKnown = true;
    return isNews;
}

} // namespace

SolveResult solve(HeadModel &model, const std::vector<TiePoint> &points,
                  const SolveOptions &options, const JobWatch &watch)
{
    return Solver(model, points, options, watch).run();
}

} // namespace PanoHost
