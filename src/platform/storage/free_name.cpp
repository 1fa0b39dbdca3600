// SPDX-License-Identifier: GPL-3.0-or-later
#include "free_name.h"

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brenvaldo::platform::storage {

namespace {

/// Not for folders, which have one name only.
bool renameByLink(const QByteArray& source, const QByteArray& target)
{
    if (::link(source.constData(), target.constData()) != 0)
        return false;
    if (::unlink(source.constData()) == 0)
        return true;
    const int fault = errno;
    ::unlink(target.constData());
    errno = fault;
    return false;
}

bool renameAfterALook(const QByteArray& source, const QByteArray& target)
{
    struct stat status = {};
    if (::lstat(target.constData(), &status) == 0) {
        errno = EEXIST;
        return false;
    }
    return std::rename(source.constData(), target.constData()) == 0;
}

/// Network folders and old file systems know no such rename.
bool isUnknownToFileSystem(int fault) { return fault == EINVAL || fault == ENOSYS; }

/// Links are unknown to some of them, too.
bool isWithoutLinks(int fault) { return fault == EPERM || fault == EOPNOTSUPP || fault == ENOSYS; }

} // namespace

bool renameToFreeName(const QByteArray& source, const QByteArray& target)
{
    const int done
        = ::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE);
    if (done == 0 || !isUnknownToFileSystem(errno))
        return done == 0;
    return renameByLink(source, target)
        || (isWithoutLinks(errno) && renameAfterALook(source, target));
}

} // namespace brenvaldo::platform::storage
