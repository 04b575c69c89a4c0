// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT

// Makes Qt's mutex known to ThreadSanitizer. Qt itself is not instrumented, so the detector sees
// neither its locks nor the order between threads that they make, and would report every access
// that they guard. These definitions stand in front of Qt's own for all that is built here: they
// call Qt's and tell the detector.

#include <QMutex>

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>

extern "C" void __tsan_acquire(void *address);
extern "C" void __tsan_release(void *address);

/**
 * Qt's calls of itself (its event queue, the end of a thread) cannot be caught like that, and would
 * be seen only where they allocate, free and wait: half of the story, and reported as races. What
 * is built here is instrumented, so nothing of the project's own is lost by leaving them out.
 */
extern "C" Q_DECL_EXPORT const char *__tsan_default_options()
{
    return "ignore_noninstrumented_modules=1";
}

namespace
{

/** Qt's own definition behind the one in this file; \p name is the mangled one. */
template <typename Function> Function *qtFunction(const char *name)
{
    void *found = dlsym(RTLD_NEXT, name);
    if (found == nullptr) {
        std::fprintf(stderr, "tsanqt: this Qt has no %s\n", name);
        std::abort();
    }
    return reinterpret_cast<Function *>(found);
}

} // namespace

void QMutex::lock()
{
    static auto *const qtLock = qtFunction<void(QMutex *)>("_ZN6QMutex4lockEv");
    qtLock(this);
    __tsan_acquire(this);
}

bool QMutex::tryLock(int timeout)
{
    static auto *const qtTryLock = qtFunction<bool(QMutex *, int)>("_ZN6QMutex7tryLockEi");
    const bool locked = qtTryLock(this, timeout);
    if (locked) {
        __tsan_acquire(this);
    }
    return locked;
}

void QMutex::unlock() noexcept
{
    static auto *const qtUnlock = qtFunction<void(QMutex *)>("_ZN6QMutex6unlockEv");
    __tsan_release(this);
    qtUnlock(this);
}
