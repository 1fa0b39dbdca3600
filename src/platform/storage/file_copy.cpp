// SPDX-License-Identifier: GPL-3.0-or-later
#include "file_copy.h"

#include "atomic_file.h"
#include "extended_attributes.h"
#include "file_descriptor.h"

#include <array>
#include <cerrno>

#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brenvaldo::platform::storage {

namespace {

bool copyContents(int source, int target)
{
    constexpr std::size_t chunk = 16U << 20U;
    for (;;) {
        const ssize_t copied = ::sendfile(target, source, nullptr, chunk);
        if (copied == 0)
            return true;
        if (copied < 0 && errno != EINTR)
            return false;
    }
}

void copyModeAndDates(const struct stat& status, int target)
{
    ::fchmod(target, status.st_mode & 0777U);
    const std::array<timespec, 2> dates = {status.st_atim, status.st_mtim};
    ::futimens(target, dates.data());
}

} // namespace

bool copyPlainFile(const SourceAndTarget& paths)
{
    // Not to wait for the other end of a pipe, which is refused below.
    const FileDescriptor source(paths.source, O_RDONLY | O_NONBLOCK);
    struct stat status = {};
    if (!source.isOpen() || ::fstat(source.get(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    AtomicFile file(paths.target);
    if (!file.isValid())
        return false;
    FileDescriptor target(file.temporaryPath(), O_WRONLY);
    if (!target.isOpen() || !copyContents(source.get(), target.get()))
        return false;
    copyExtendedAttributes(source.get(), target.get());
    copyModeAndDates(status, target.get());
    return target.close() && file.commit(AtomicFile::Existing::Kept);
}

void copyFolderAttributes(const SourceAndTarget& folders)
{
    const FileDescriptor source(folders.source, O_RDONLY | O_DIRECTORY);
    const FileDescriptor target(folders.target, O_RDONLY | O_DIRECTORY);
    struct stat status = {};
    if (!source.isOpen() || !target.isOpen() || ::fstat(source.get(), &status) != 0)
        return;
    copyExtendedAttributes(source.get(), target.get());
    copyModeAndDates(status, target.get());
}

} // namespace brenvaldo::platform::storage
