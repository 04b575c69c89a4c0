// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace PanoHost
{

/**
 * To be called before matrices are solved, on the thread that does it. Sums come out the same on
 * every machine only when one thread makes them: whichever of the known libraries stands in for
 * BLAS is asked to use no other; the plain one knows no threads.
 */
void keepToOneThread();

} // namespace PanoHost
