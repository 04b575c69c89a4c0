// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

/**
 * Rows of a benchmark that have a bar: each measures one figure, mostly a ratio of CPU times in one
 * process, and says whether that clears the bar.
 */
namespace Bars
{

enum class Need {
    AtLeast,
    AtMost,
    Nothing, ///< the figure is shown; only results that differ are a failure
};

struct Bar {
    Need need = Need::AtLeast;
    double limit = 0.0;
    const char *unit = ""; ///< of limit and figure; empty for ratios
};

struct Figure {
    double value = 0.0;
    std::string detail; ///< the times or sizes behind it
    std::string mistake; ///< not empty: the results that were to be the same are not
};

/** Adds a row. \p measure runs once, when the row's turn comes. */
void add(const std::string &name, const Bar &bar, const std::function<Figure()> &measure);

/**
 * Runs the rows (those that `--benchmark_filter=` names), prints one line for each and a last one
 * that counts. Answers the program's exit code: 1 when a bar was missed or results differed.
 */
int run(int argc, char **argv);

/**
 * While one lives, what the program frees stays with it. Fresh pages cost as much as the work, and
 * which of two sizes gets them depends on what was measured before.
 */
class KeptMemory
{
public:
    KeptMemory();
    ~KeptMemory();
    KeptMemory(const KeptMemory &) = delete;
    KeptMemory &operator=(const KeptMemory &) = delete;
};

/** CPU seconds that the calling thread has used so far. */
[[nodiscard]] double threadSeconds();
/** The median of the CPU times of \p runs calls, seconds. */
[[nodiscard]] double medianSeconds(int runs, const std::function<void()> &work);
/** The least of the CPU times of \p runs calls: what comes on top is other programs'. Seconds. */
[[nodiscard]] double leastSeconds(int runs, const std::function<void()> &work);
[[nodiscard]] double median(std::vector<double> values);
/** The CPU time of one call, seconds. */
[[nodiscard]] double seconds(const std::function<void()> &work);
/** b in "cost grows as size to the power of b" between two sizes. */
[[nodiscard]] double exponent(double smallSize, double smallCost, double largeSize,
                              double largeCost);
/** As printf. */
[[nodiscard]] std::string text(const char *format, ...) __attribute__((format(printf, 1, 2)));

} // namespace Bars
