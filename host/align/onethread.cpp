// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/align/onethread.h"

#include <dlfcn.h>

namespace PanoHost
{

void keepToOneThread()
{
    using Setter = void (*)(int);
    const auto set = [](const char *name, int value) {
        if (void *setter = dlsym(RTLD_DEFAULT, name)) {
            reinterpret_cast<Setter>(setter)(value);
        }
    };
    set("openblas_set_num_threads", 1);
    set("MKL_Set_Num_Threads", 1);
    // No parallel region of OpenMP is to have more than the thread that comes to it.
    set("omp_set_max_active_levels", 0);
}

} // namespace PanoHost
