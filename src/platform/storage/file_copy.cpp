// SPDX-License-Identifier: GPL-3.0-or-later
#include "file_copy.h"

#include "atomic_file.h"
#include "file_descriptor.h"

#include <array>
#include <cerrno>

#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <sys/xattr.h>
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

/// File systems without extended attributes lose them silently, as every copy between them does.
void copyExtendedAttributes(int source, int target)
{
    const ssize_t listSize = ::flistxattr(source, nullptr, 0);
    if (listSize <= 0)
        return;
    QByteArray names(listSize, '\0');
    if (::flistxattr(source, names.data(), static_cast<std::size_t>(listSize)) != listSize)
        return;
    names.chop(1);
    for (const QByteArray& name : names.split('\0')) {
        const ssize_t size = ::fgetxattr(source, name.constData(), nullptr, 0);
        if (!name.startsWith("user.") || size < 0)
            continue;
        QByteArray value(size, '\0');
        const auto room = static_cast<std::size_t>(size);
        if (::fgetxattr(source, name.constData(), value.data(), room) == size)
            ::fsetxattr(target, name.constData(), value.constData(), room, 0);
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
