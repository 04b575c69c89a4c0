// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "benchmarks/bars.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <ctime>
#include <limits>

#include <malloc.h>

namespace
{

struct Result {
    std::string name;
    bool passed;
};

std::vector<Result> &results()
{
    static std::vector<Result> list;
    return list;
}

bool clears(const Bars::Bar &bar, const Bars::Figure &figure)
{
    if (!figure.mistake.empty()) {
        return false;
    }
    switch (bar.need) {
    case Bars::Need::AtLeast:
        return figure.value >= bar.limit;
    case Bars::Need::AtMost:
        return figure.value <= bar.limit;
    case Bars::Need::Nothing:
        break;
    }
    return true;
}

std::string inWords(const Bars::Bar &bar)
{
    if (bar.need == Bars::Need::Nothing) {
        return "no bar";
    }
    return Bars::text("bar: at %s %g%s", bar.need == Bars::Need::AtLeast ? "least" : "most",
                      bar.limit, bar.unit);
}

void runRow(benchmark::State &state, const std::string &name, const Bars::Bar &bar,
            const std::function<Bars::Figure()> &measure)
{
    Bars::Figure figure;
    for (auto _ : state) {
        figure = measure();
    }
    const bool passed = clears(bar, figure);
    results().push_back({ name, passed });
    if (!figure.mistake.empty()) {
        state.SkipWithError(("FAIL: the results differ: " + figure.mistake).c_str());
        return;
    }
    state.SetLabel(Bars::text("%s %.4g%s (%s) %s", passed ? "PASS" : "FAIL", figure.value, bar.unit,
                              inWords(bar).c_str(), figure.detail.c_str()));
}

} // namespace

void Bars::add(const std::string &name, const Bar &bar, const std::function<Figure()> &measure)
{
    benchmark::RegisterBenchmark(
        name.c_str(),
        [name, bar, measure](benchmark::State &state) { runRow(state, name, bar, measure); })
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
}

int Bars::run(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    const auto failed = std::count_if(results().cbegin(), results().cend(),
                                      [](const Result &result) { return !result.passed; });
    for (const Result &result : results()) {
        if (!result.passed) {
            std::printf("missed: %s\n", result.name.c_str());
        }
    }
    std::printf("%zu rows: %zu passed, %zu failed\n", results().size(),
                results().size() - static_cast<std::size_t>(failed),
                static_cast<std::size_t>(failed));
    return failed == 0 && !results().empty() ? 0 : 1;
}

Bars::KeptMemory::KeptMemory()
{
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
}

/** Back to the C library's own values. */
Bars::KeptMemory::~KeptMemory()
{
    mallopt(M_MMAP_MAX, 65'536);
    mallopt(M_TRIM_THRESHOLD, 128 * 1024);
    malloc_trim(0);
}

double Bars::threadSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double Bars::medianSeconds(int runs, const std::function<void()> &work)
{
    std::vector<double> times;
    for (int run = 0; run < runs; ++run) {
        times.push_back(seconds(work));
    }
    return median(times);
}

double Bars::leastSeconds(int runs, const std::function<void()> &work)
{
    double least = seconds(work);
    for (int run = 1; run < runs; ++run) {
        least = std::min(least, seconds(work));
    }
    return least;
}

double Bars::seconds(const std::function<void()> &work)
{
    const double start = threadSeconds();
    work();
    return threadSeconds() - start;
}

double Bars::median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0.0 : values[values.size() / 2];
}

double Bars::exponent(double smallSize, double smallCost, double largeSize, double largeCost)
{
    return std::log(largeCost / smallCost) / std::log(largeSize / smallSize);
}

std::string Bars::text(const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    char buffer[512];
    std::vsnprintf(buffer, sizeof buffer, format, arguments);
    va_end(arguments);
    return buffer;
}
