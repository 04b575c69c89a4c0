// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT

// Placing all photos at once against one step of it, plainly made.
#include "benchmarks/bars.h"
#include "host/align/solver.h"
#include "tests/host/align/trueshoot.h"

#include <Eigen/SparseCholesky>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <map>

using namespace PanoHost;
using Sparse = Eigen::SparseMatrix<double>;

namespace
{

/** A grid of photos, and points between neighbours. */
struct Size {
    int columns;
    int rows;
    bool diagonals; ///< neighbours across corners too
    int pointsEach; ///< of a pair of photos

    [[nodiscard]] int photos() const { return columns * rows; }
};

constexpr Size kSphere{ 20, 12, false, 20 }; // 240
constexpr Size kDense{ 38, 36, true, 49 }; // 1,368
constexpr Size kLarge{ 100, 100, false, 5 }; // 10,000
constexpr Size kHuge{ 280, 250, false, 5 }; // 70,000

struct Shoot {
    TrueShoot truth;
    std::vector<TiePoint> points;
};

Shoot shootOf(const Size &size)
{
    Shoot shoot;
    // As much of the horizon and as far up as stays away from the poles.
    const double step = std::min(160.0 / size.columns, 100.0 / size.rows);
    shoot.truth.addGrid(size.columns, size.rows, step, step);
    AlignLens &lens = shoot.truth.lenses.front();
    lens.size = QSize(900, 900);
    lens.focalPixels = 450.0 / std::tan(0.7 * step * M_PI / 180.0);
    shoot.truth.play(0.03 * step);
    const auto add = [&](int photo, int column, int row) {
        if (column >= 0 && column < size.columns && row < size.rows) {
            shoot.truth.appendPoints(shoot.points, { photo, row * size.columns + column }, 0.2,
                                     size.pointsEach);
        }
    };
    for (int photo = 0; photo < size.photos(); ++photo) {
        const int column = photo % size.columns;
        const int row = photo / size.columns;
        add(photo, column + 1, row);
        add(photo, column, row + 1);
        if (size.diagonals) {
            add(photo, column + 1, row + 1);
            add(photo, column - 1, row + 1);
        }
    }
    return shoot;
}

/** Seconds. */
struct Step {
    double slopes = 0.0;
    double equations = 0.0;
    double factors = 0.0;

    [[nodiscard]] double seconds() const { return slopes + equations + factors; }
};

constexpr int kShared = 3; // pitch and roll of the camera, focal length
constexpr double kDelta = 1e-4; // degrees, and of the focal length's logarithm

/** \p model, changed a little: 0 to 2 the angles of each photo, from 3 on what they share. */
HeadModel changed(HeadModel model, int unknown)
{
    for (Angles &angles : model.corrections) {
        angles.yaw += unknown == 0 ? kDelta : 0.0;
        angles.pitch += unknown == 1 ? kDelta : 0.0;
        angles.roll += unknown == 2 ? kDelta : 0.0;
    }
    model.mountPitchDegrees += unknown == 3 ? kDelta : 0.0;
    model.mountRollDegrees += unknown == 4 ? kDelta : 0.0;
    model.lenses.front().focalPixels *= unknown == 5 ? std::exp(kDelta) : 1.0;
    return model;
}

/** Attitudes and lens: what takes a point from one photo into another. */
struct Taking {
    explicit Taking(const HeadModel &model)
        : lens(model.lenses.front())
    {
        for (int photo = 0; photo < static_cast<int>(model.views.size()); ++photo) {
            turns.push_back(model.rotation(photo));
        }
    }

    std::vector<Eigen::Matrix3d> turns;
    AlignLens lens;
};

Eigen::Vector2d taken(const TiePoint &point, const Taking &first, const Taking &second)
{
    const Eigen::Vector3d direction
        = first.turns[static_cast<size_t>(point.first)] * first.lens.rayOf(point.inFirst);
    return second.lens
        .pixelOf(second.turns[static_cast<size_t>(point.second)].transpose() * direction)
        .value_or(Eigen::Vector2d::Zero());
}

/** One step as anybody would write it: slopes by differences, normal equations, their factors. */
Step plainStep(const Shoot &shoot)
{
    const int photos = static_cast<int>(shoot.truth.photos.size());
    const int unknowns = 3 * photos + kShared;
    std::vector<Eigen::Triplet<double>> entries;
    const auto rows = static_cast<Eigen::Index>(2 * shoot.points.size()) + unknowns;
    Sparse jacobian(rows, unknowns);
    Step step;
    step.slopes = Bars::seconds([&] {
        const HeadModel model = shoot.truth.recorded();
        const Taking as(model);
        std::vector<Taking> other;
        for (int unknown = 0; unknown < 3 + kShared; ++unknown) {
            other.emplace_back(changed(model, unknown));
        }
        int row = 0;
        for (const TiePoint &point : shoot.points) {
            const Eigen::Vector2d base = taken(point, as, as);
            const auto put = [&](int column, const Eigen::Vector2d &pixel) {
                const Eigen::Vector2d slope = (pixel - base) / kDelta;
                entries.emplace_back(row, column, slope.x());
                entries.emplace_back(row + 1, column, slope.y());
            };
            for (int i = 0; i < 3; ++i) {
                const auto unknown = static_cast<size_t>(i);
                put(3 * point.first + i, taken(point, other[unknown], as));
                put(3 * point.second + i, taken(point, as, other[unknown]));
                put(3 * photos + i, taken(point, other[unknown + 3], other[unknown + 3]));
            }
            row += 2;
        }
        // What is known beforehand.
        for (int i = 0; i < unknowns; ++i, ++row) {
            entries.emplace_back(row, i, 1.0);
        }
    });
    jacobian.setFromTriplets(entries.cbegin(), entries.cend());
    entries = {};
    Sparse normal;
    step.equations = Bars::seconds([&] { normal = jacobian.transpose() * jacobian; });
    step.factors = Bars::seconds([&] { Eigen::SimplicialLDLT<Sparse> factors(normal); });
    return step;
}

/** What the system says of this process, MB; \p name as in its status file. */
double statusMegabytes(const char *name)
{
    double kilobytes = 0.0;
    if (std::FILE *file = std::fopen("/proc/self/status", "r")) {
        char line[256];
        while (std::fgets(line, sizeof line, file) != nullptr) {
            if (std::strncmp(line, name, std::strlen(name)) == 0) {
                kilobytes = std::atof(line + std::strlen(name) + 1);
            }
        }
        std::fclose(file);
    }
    return kilobytes / 1024.0;
}

/** From here on the largest size of the process is counted anew. */
void forgetPeak()
{
    if (std::FILE *file = std::fopen("/proc/self/clear_refs", "w")) {
        std::fputs("5", file);
        std::fclose(file);
    }
}

struct Measured {
    double seconds = 0.0;
    double megabytes = 0.0; ///< the whole process, points included
    std::size_t points = 0;
    Step step;
    std::string mistake;
};

Measured measure(const Size &size)
{
    const Shoot shoot = shootOf(size);
    HeadModel model = shoot.truth.recorded();
    const double before = shoot.truth.error(model);
    SolveResult result;
    Measured measured;
    measured.points = shoot.points.size();
    forgetPeak();
    measured.seconds = Bars::seconds([&] { result = solve(model, shoot.points, {}); });
    measured.megabytes = statusMegabytes("VmHWM");
    const double after = shoot.truth.error(model);
    if (!(after < before / 2.0)) {
        measured.mistake = Bars::text("%.4g degrees off, %.4g before", after, before);
    }
    measured.step = plainStep(shoot);
    return measured;
}

/** Each size is measured once, for all rows that ask. */
const Measured &measuredOnce(const Size &size)
{
    static std::map<int, Measured> known;
    const auto found = known.find(size.photos());
    return found != known.end() ? found->second : known[size.photos()] = measure(size);
}

Bars::Figure steps(const Size &size)
{
    const Measured &run = measuredOnce(size);
    return { run.seconds / run.step.seconds(),
             Bars::text("%zu points: %.3g s, one step %.3g s, its factors alone %.3g s", run.points,
                        run.seconds, run.step.seconds(), run.step.factors),
             run.mistake };
}

Bars::Figure growth()
{
    const Measured &few = measuredOnce(kLarge);
    const Measured &many = measuredOnce(kHuge);
    return { Bars::exponent(kLarge.photos(), few.seconds, kHuge.photos(), many.seconds),
             Bars::text("%.3g s -> %.3g s", few.seconds, many.seconds),
             {} };
}

Bars::Figure memory()
{
    const Measured &run = measuredOnce(kHuge);
    return { run.megabytes, Bars::text("%zu points", run.points), {} };
}

} // namespace

int main(int argc, char **argv)
{
    using Bars::Need;
    const Bars::Bar thirty{ Need::AtMost, 30.0, "x" };
    Bars::add("Placing/240 photos/time of one plain step", thirty, [] { return steps(kSphere); });
    Bars::add("Placing/1,368 photos/time of one plain step", thirty, [] { return steps(kDense); });
    Bars::add("Placing/10,000 photos/time of one plain step", thirty, [] { return steps(kLarge); });
    Bars::add("Placing/70,000 photos/time of one plain step", thirty, [] { return steps(kHuge); });
    Bars::add("Placing/from 10,000 to 70,000 photos/cost exponent", { Need::AtMost, 1.5, "" },
              growth);
    Bars::add("Placing/70,000 photos/memory", { Need::AtMost, 1100.0, " MB" }, memory);
    return Bars::run(argc, argv);
}
