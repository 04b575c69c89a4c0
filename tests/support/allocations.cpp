// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/support/allocations.h"

#include <malloc.h>

#include <atomic>
#include <cerrno>
#include <cstddef>

namespace
{

std::atomic<std::int64_t> heldBytes{ 0 };
std::atomic<std::int64_t> peakBytes{ 0 };

} // namespace

#ifndef PANOHEAD_SANITIZED

extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);
void *__libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void *block);
}

namespace
{

void *taken(void *block)
{
    const std::int64_t now = heldBytes
        += static_cast<std::int64_t>(block == nullptr ? 0 : malloc_usable_size(block));
    std::int64_t most = peakBytes;
    while (now > most && !peakBytes.compare_exchange_weak(most, now)) { }
    return block;
}

void given(void *block)
{
    heldBytes -= static_cast<std::int64_t>(block == nullptr ? 0 : malloc_usable_size(block));
}

} // namespace

extern "C" {

__attribute__((visibility("default"))) void *malloc(std::size_t size)
{
    return taken(__libc_malloc(size));
}

__attribute__((visibility("default"))) void *calloc(std::size_t count, std::size_t size)
{
    return taken(__libc_calloc(count, size));
}

__attribute__((visibility("default"))) void *realloc(void *block, std::size_t size)
{
    given(block);
    void *moved = __libc_realloc(block, size);
    if (moved == nullptr && size > 0) {
        taken(block);
        return nullptr;
    }
    return taken(moved);
}

__attribute__((visibility("default"))) void *memalign(std::size_t alignment, std::size_t size)
{
    return taken(__libc_memalign(alignment, size));
}

__attribute__((visibility("default"))) void *aligned_alloc(std::size_t alignment, std::size_t size)
{
    return taken(__libc_memalign(alignment, size));
}

__attribute__((visibility("default"))) int posix_memalign(void **block, std::size_t alignment,
                                                          std::size_t size)
{
    void *found = taken(__libc_memalign(alignment, size));
    if (found == nullptr) {
        return ENOMEM;
    }
    *block = found;
    return 0;
}

__attribute__((visibility("default"))) void free(void *block)
{
    given(block);
    __libc_free(block);
}
}

#endif

bool Allocations::areCounted()
{
#ifdef PANOHEAD_SANITIZED
    return false;
#else
    return heldBytes != 0;
#endif
}

std::int64_t Allocations::held()
{
    return heldBytes;
}

std::int64_t Allocations::peak()
{
    return peakBytes;
}

void Allocations::resetPeak()
{
    peakBytes = heldBytes.load();
}
