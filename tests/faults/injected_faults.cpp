// SPDX-License-Identifier: GPL-3.0-or-later
#include "injected_faults.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <string>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brenvaldo::test {

namespace {

std::atomic<InjectedFaults*> currentFaults = nullptr;

} // namespace

InjectedFaults::InjectedFaults(const QString& folder, const Plan& plan)
    : m_folder(QFile::encodeName(folder))
    , m_plan(plan)
{
    currentFaults = this;
}

InjectedFaults::~InjectedFaults() { currentFaults = nullptr; }

InjectedFaults* InjectedFaults::current() { return currentFaults; }

bool InjectedFaults::concerns(const char* path) const
{
    return QByteArrayView(path).startsWith(m_folder);
}

bool InjectedFaults::concerns(int descriptor) const
{
    // Folders are left out: one that can't be flushed only delays a name.
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    std::array<char, 4096> target{};
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    return ::readlink(link.c_str(), target.data(), target.size() - 1) > 0
        && concerns(target.data());
}

bool InjectedFaults::failsNow()
{
    const int call = ++m_calls;
    return m_plan.first > 0 && (call == m_plan.first || (m_plan.stays && call > m_plan.first));
}

} // namespace brenvaldo::test

// What follows takes the place of the system's functions for the program and all its libraries.

namespace {

using brenvaldo::test::InjectedFaults;

template <typename Function>
Function* systemFunction(const char* name)
{
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

template <typename Place>
bool failsAt(const Place& place)
{
    InjectedFaults* const faults = InjectedFaults::current();
    if (!faults || !faults->concerns(place) || !faults->failsNow())
        return false;
    errno = ENOSPC;
    return true;
}

bool refusesNamelessFile(int flags)
{
    const InjectedFaults* const faults = InjectedFaults::current();
    if (!faults || !faults->plan().refusesNamelessFiles || (flags & O_TMPFILE) != O_TMPFILE)
        return false;
    errno = EOPNOTSUPP;
    return true;
}

void endProcessIfAsked(const char* target)
{
    const InjectedFaults* const faults = InjectedFaults::current();
    if (faults && faults->plan().killsAtRename && faults->concerns(target))
        std::raise(SIGKILL);
}

} // namespace

extern "C" {

ssize_t write(int descriptor, const void* bytes, size_t length)
{
    static auto* const system = systemFunction<ssize_t(int, const void*, size_t)>("write");
    return failsAt(descriptor) ? -1 : system(descriptor, bytes, length);
}

int fsync(int descriptor)
{
    static auto* const system = systemFunction<int(int)>("fsync");
    const InjectedFaults* const faults = InjectedFaults::current();
    if (faults && faults->plan().atFlush)
        faults->plan().atFlush();
    return failsAt(descriptor) ? -1 : system(descriptor);
}

int link(const char* source, const char* target) noexcept
{
    static auto* const system = systemFunction<int(const char*, const char*)>("link");
    return failsAt(target) ? -1 : system(source, target);
}

int linkat(int from, const char* source, int to, const char* target, int flags) noexcept
{
    static auto* const system
        = systemFunction<int(int, const char*, int, const char*, int)>("linkat");
    return failsAt(target) ? -1 : system(from, source, to, target, flags);
}

int rename(const char* source, const char* target) noexcept
{
    static auto* const system = systemFunction<int(const char*, const char*)>("rename");
    endProcessIfAsked(target);
    return failsAt(target) ? -1 : system(source, target);
}

int renameat2(int from, const char* source, int to, const char* target, unsigned flags) noexcept
{
    static auto* const system
        = systemFunction<int(int, const char*, int, const char*, unsigned)>("renameat2");
    const InjectedFaults* const faults = InjectedFaults::current();
    if (faults && faults->plan().refusesMarkedRenames && flags != 0) {
        errno = EINVAL;
        return -1;
    }
    return failsAt(target) ? -1 : system(from, source, to, target, flags);
}

// Programs and libraries with large files ask for the second name.

int open(const char* path, int flags, ...)
{
    static auto* const system = systemFunction<int(const char*, int, ...)>("open");
    va_list rest;
    va_start(rest, flags);
    const auto mode = va_arg(rest, mode_t);
    va_end(rest);
    return refusesNamelessFile(flags) ? -1 : system(path, flags, mode);
}

int open64(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const auto mode = va_arg(rest, mode_t);
    va_end(rest);
    return open(path, flags, mode);
}

} // extern "C"
