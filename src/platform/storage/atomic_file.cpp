// SPDX-License-Identifier: GPL-3.0-or-later
#include "atomic_file.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brenvaldo::platform {

namespace {

/// The file that a link at `path` leads to, so that writing through the link keeps it.
QString resolvedTarget(const QString& path)
{
    const QFileInfo file(path);
    if (!file.isSymLink())
        return path;
    const QString canonical = file.canonicalFilePath();
    return canonical.isEmpty() ? path : canonical;
}

/// A folder that can't be flushed only delays a name: the file stands whole in either case.
void flushFolder(const QString& path)
{
    const int folder
        = ::open(QFile::encodeName(path).constData(), O_DIRECTORY | O_RDONLY | O_CLOEXEC);
    if (folder < 0)
        return;
    ::fsync(folder);
    ::close(folder);
}

/// Where the process may not give files away, the owner changes; the mode is kept all the same.
void keepModeAndOwner(const QString& target, int replacement)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(target).constData(), &status) != 0)
        return;
    if (::fchown(replacement, status.st_uid, status.st_gid) != 0)
        static_cast<void>(::fchown(replacement, static_cast<uid_t>(-1), status.st_gid) == 0);
    ::fchmod(replacement, status.st_mode & 07777U);
}

} // namespace

AtomicFile::AtomicFile(const QString& target)
    : m_target(resolvedTarget(target))
    , m_file(folder())
{
}

QString AtomicFile::folder() const { return QFileInfo(m_target).path(); }

bool AtomicFile::commit()
{
    if (!isValid() || ::fsync(m_file.descriptor()) != 0)
        return false;
    keepModeAndOwner(m_target, m_file.descriptor());
    if (!m_file.moveTo(m_target))
        return false;
    flushFolder(folder());
    return true;
}

bool writeFileAtomically(const QString& path, const QByteArray& contents)
{
    AtomicFile target(path);
    if (!target.isValid())
        return false;
    QFile file(target.temporaryPath());
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size()
        || !file.flush())
        return false;
    file.close();
    return target.commit();
}

} // namespace brenvaldo::platform
