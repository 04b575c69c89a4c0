// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/gigapan/gridguess.h"

#include <algorithm>
#include <cmath>

namespace PanoHead
{

GridSize guessGrid(int files)
{
    int rows = static_cast<int>(std::sqrt(static_cast<float>(files))) + 1;
    do {
        --rows;
    } while (rows > 1 && files % rows != 0);
    rows = std::max(rows, 1);
    return { rows, files / rows };
}

int columnsFor(int files, int ignored, int bracket, int rows)
{
    return ((files - ignored) / std::max(bracket, 1)) / std::max(rows, 1);
}

} // namespace PanoHead
