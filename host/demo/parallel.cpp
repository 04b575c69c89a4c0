// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/parallel.h"

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace PanoHost
{

void forEachRow(int rows, const std::function<void(int row)> &work)
{
    std::atomic<int> next{ 0 };
    const auto run = [&] {
        for (int row = next++; row < rows; row = next++) {
            work(row);
        }
    };
    std::vector<std::thread> helpers;
    for (unsigned int i = 1; i < std::max(1U, std::thread::hardware_concurrency()); ++i) {
        helpers.emplace_back(run);
    }
    run();
    for (std::thread &helper : helpers) {
        helper.join();
    }
}

} // namespace PanoHost
