// SPDX-License-Identifier: GPL-3.0-or-later
#include "atomic_file.h"

#include <platform/foundation/commit_turn.h>
#include <platform/foundation/files_in_the_making.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/output_file.h>

#include <QFile>
#include <QFileInfo>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brenvaldo::platform::storage {

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

/// Folders, devices and pipes are never replaced by a file.
bool isPlainFileOrFree(const QString& path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) != 0 || S_ISREG(status.st_mode);
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
{
    awaitUsesOfFile(target);
    m_target = resolvedTarget(target);
    if (!isPlainFileOrFree(m_target)) {
        m_fault = u"something else than a plain file stands there"_s;
        return;
    }
    m_file.emplace(folder());
    if (!isValid())
        m_fault = qt_error_string(errno);
}

QString AtomicFile::folder() const { return QFileInfo(m_target).path(); }

bool AtomicFile::commit(Existing existing)
{
    if (!isValid())
        return false;
    keepModeAndOwner(m_target, m_file->descriptor());
    if (::fsync(m_file->descriptor()) != 0) {
        m_fault = qt_error_string(errno);
        return false;
    }
    if (!awaitCommitTurn()) {
        m_fault = u"nobody waits for it any more"_s;
        return false;
    }
    if (!m_file->moveTo(m_target, existing)) {
        m_fault = qt_error_string(errno);
        return false;
    }
    flushFolder(folder());
    return true;
}

bool writeFileAtomically(const QString& path, const QByteArray& contents)
{
    AtomicFile target(path);
    if (!target.isValid())
        return false;
    OutputFile file(target.temporaryPath());
    file.write(contents);
    return file.finish() && target.commit();
}

} // namespace brenvaldo::platform::storage
