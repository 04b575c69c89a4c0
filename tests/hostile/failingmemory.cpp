// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/hostile/failingmemory.h"

#include <cstddef>
#include <cstdlib>
#include <new>
#include <utility>

// What the C library's own functions are called: those below stand in front of them for the whole
// process, Qt included.
extern "C" void *__libc_malloc(size_t size);
extern "C" void *__libc_calloc(size_t count, size_t size);
extern "C" void *__libc_realloc(void *block, size_t size);

namespace
{

constexpr size_t kPictureBytes = 16 * 1024;

// Constant-initialised, so that asking for them allocates nothing.
thread_local bool t_isArmed = false;
thread_local Failing t_kind = Failing::Everything;
thread_local long t_left = 0;

bool fails(Failing kind)
{
    return t_isArmed && t_kind == kind && --t_left == 0;
}

bool mallocFails(size_t size)
{
    return fails(Failing::Everything) || (size >= kPictureBytes && fails(Failing::Pixels));
}

} // namespace

FailingMemory::FailingMemory(Failing kind, int nth)
{
    t_kind = kind;
    t_left = nth;
    t_isArmed = true;
}

FailingMemory::~FailingMemory()
{
    t_isArmed = false;
}

bool FailingMemory::hasFailed() const
{
    return t_left <= 0;
}

SpareMemory::SpareMemory()
    : m_wasArmed(std::exchange(t_isArmed, false))
{
}

SpareMemory::~SpareMemory()
{
    t_isArmed = m_wasArmed;
}

extern "C" __attribute__((visibility("default"))) void *malloc(size_t size)
{
    return mallocFails(size) ? nullptr : __libc_malloc(size);
}

extern "C" __attribute__((visibility("default"))) void *calloc(size_t count, size_t size)
{
    return mallocFails(count * size) ? nullptr : __libc_calloc(count, size);
}

extern "C" __attribute__((visibility("default"))) void *realloc(void *block, size_t size)
{
    return mallocFails(size) ? nullptr : __libc_realloc(block, size);
}

__attribute__((visibility("default"))) void *operator new(size_t size)
{
    void *block = fails(Failing::OperatorNew) ? nullptr : std::malloc(size);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    return block;
}

__attribute__((visibility("default"))) void operator delete(void *block) noexcept
{
    std::free(block);
}

__attribute__((visibility("default"))) void operator delete(void *block, size_t) noexcept
{
    std::free(block);
}
