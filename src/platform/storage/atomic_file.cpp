// SPDX-License-Identifier: GPL-3.0-or-later
#include "atomic_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>

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

/// Makes an empty hidden file; its name is short, since the target's may be as long as the file
/// system allows. Nothing when the folder refuses it.
QString makeHiddenFile(const QDir& folder)
{
    constexpr int attempts = 100;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const QString path = folder.filePath(
            QStringLiteral(".brenvaldo-%1")
                .arg(QRandomGenerator::global()->generate(), 8, 16, QLatin1Char('0'))
        );
        const int file = ::open(
            QFile::encodeName(path).constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0666
        );
        if (file >= 0) {
            ::close(file);
            return path;
        }
        if (errno != EEXIST)
            return {};
    }
    return {};
}

bool flushToDisk(const QByteArray& path, int flags)
{
    const int file = ::open(path.constData(), flags | O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return false;
    const bool flushed = ::fsync(file) == 0;
    return (::close(file) == 0) && flushed;
}

/// Where the process may not give files away, the owner changes; the mode is kept all the same.
void keepModeAndOwner(const QByteArray& target, const QByteArray& replacement)
{
    struct stat status = {};
    if (::stat(target.constData(), &status) != 0)
        return;
    if (::chown(replacement.constData(), status.st_uid, status.st_gid) != 0)
        static_cast<void>(
            ::chown(replacement.constData(), static_cast<uid_t>(-1), status.st_gid) == 0
        );
    ::chmod(replacement.constData(), status.st_mode & 07777U);
}

} // namespace

AtomicFile::AtomicFile(const QString& target)
    : m_target(resolvedTarget(target))
    , m_temporaryPath(makeHiddenFile(QFileInfo(m_target).dir()))
{
}

AtomicFile::~AtomicFile()
{
    if (isValid())
        QFile::remove(m_temporaryPath);
}

bool AtomicFile::commit()
{
    if (!isValid())
        return false;
    const QByteArray temporary = QFile::encodeName(m_temporaryPath);
    const QByteArray target = QFile::encodeName(m_target);
    if (!flushToDisk(temporary, 0))
        return false;
    keepModeAndOwner(target, temporary);
    if (std::rename(temporary.constData(), target.constData()) != 0)
        return false;
    m_temporaryPath.clear();
    // The file stands whole in either case: a folder that can't be flushed only delays the name.
    flushToDisk(QFile::encodeName(QFileInfo(m_target).path()), O_DIRECTORY);
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
