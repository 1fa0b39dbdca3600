// SPDX-License-Identifier: GPL-3.0-or-later
// The thread sanitizer knows no locks that a library makes of the system's futexes, as the one
// below the engine does. Here they are told to it, instead of suppressing what it then says about
// every picture.

#ifdef __SANITIZE_THREAD__

#include <glib-object.h>

#include <dlfcn.h>

extern "C" void __tsan_acquire(void* address);
extern "C" void __tsan_release(void* address);

namespace {

template <typename Function>
Function* libraryFunction(const char* name)
{
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" {

void g_mutex_lock(GMutex* mutex)
{
    static auto* const lock = libraryFunction<void(GMutex*)>("g_mutex_lock");
    lock(mutex);
    __tsan_acquire(mutex);
}

void g_mutex_unlock(GMutex* mutex)
{
    static auto* const unlock = libraryFunction<void(GMutex*)>("g_mutex_unlock");
    __tsan_release(mutex);
    unlock(mutex);
}

void g_cond_wait(GCond* condition, GMutex* mutex)
{
    static auto* const wait = libraryFunction<void(GCond*, GMutex*)>("g_cond_wait");
    __tsan_release(mutex);
    wait(condition, mutex);
    __tsan_acquire(mutex);
}

gboolean g_cond_wait_until(GCond* condition, GMutex* mutex, gint64 end)
{
    static auto* const wait
        = libraryFunction<gboolean(GCond*, GMutex*, gint64)>("g_cond_wait_until");
    __tsan_release(mutex);
    const gboolean isSignalled = wait(condition, mutex, end);
    __tsan_acquire(mutex);
    return isSignalled;
}

void g_rec_mutex_lock(GRecMutex* mutex)
{
    static auto* const lock = libraryFunction<void(GRecMutex*)>("g_rec_mutex_lock");
    lock(mutex);
    __tsan_acquire(mutex);
}

void g_rec_mutex_unlock(GRecMutex* mutex)
{
    static auto* const unlock = libraryFunction<void(GRecMutex*)>("g_rec_mutex_unlock");
    __tsan_release(mutex);
    unlock(mutex);
}

/// Who lets go last destroys what the others have used.
void g_object_unref(gpointer object)
{
    static auto* const unref = libraryFunction<void(gpointer)>("g_object_unref");
    __tsan_release(object);
    __tsan_acquire(object);
    unref(object);
}

} // extern "C"

#endif
