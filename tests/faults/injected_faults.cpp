// SPDX-License-Identifier: GPL-3.0-or-later
#include "injected_faults.h"

#include <platform/foundation/literals.h>

#include <QDirIterator>
#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <set>
#include <string>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
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

std::size_t InjectedFaults::roomLeft() const
{
    std::size_t used = 0;
    QDirIterator file(QFile::decodeName(m_folder), QDir::Files | QDir::Hidden);
    while (file.hasNext())
        used += static_cast<std::size_t>(file.nextFileInfo().size());
    std::set<ino_t> nameless;
    for (const QString& name : QDir(u"/proc/self/fd"_s).entryList(QDir::System | QDir::Files)) {
        struct stat status = {};
        const int descriptor = name.toInt();
        if (concerns(descriptor) && ::fstat(descriptor, &status) == 0 && status.st_nlink == 0
            && nameless.insert(status.st_ino).second)
            used += static_cast<std::size_t>(status.st_size);
    }
    return *m_plan.room - std::min(used, *m_plan.room);
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

/// The room for one more write: while this lives, nobody else writes.
class Room
{
public:
    Room(int descriptor, size_t length)
    {
        InjectedFaults* const faults = InjectedFaults::current();
        if (!faults || !faults->plan().room || !faults->concerns(descriptor))
            return;
        m_lock = std::unique_lock(faults->roomMutex());
        m_isEnough = length <= faults->roomLeft();
        if (!m_isEnough)
            errno = ENOSPC;
    }

    [[nodiscard]] bool isEnough() const { return m_isEnough; }

private:
    std::unique_lock<std::mutex> m_lock;
    bool m_isEnough = true;
};

extern "C" {

ssize_t write(int descriptor, const void* bytes, size_t length)
{
    static auto* const system = systemFunction<ssize_t(int, const void*, size_t)>("write");
    const Room room(descriptor, length);
    return failsAt(descriptor) || !room.isEnough() ? -1 : system(descriptor, bytes, length);
}

int statvfs64(const char* path, struct statvfs64* status) noexcept
{
    static auto* const system = systemFunction<int(const char*, struct statvfs64*)>("statvfs64");
    const int result = system(path, status);
    const InjectedFaults* const faults = InjectedFaults::current();
    if (result == 0 && faults && faults->plan().room)
        status->f_bavail = faults->roomLeft() / status->f_frsize;
    return result;
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
