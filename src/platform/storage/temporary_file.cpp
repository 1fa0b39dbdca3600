// SPDX-License-Identifier: GPL-3.0-or-later
#include "temporary_file.h"

#include "free_name.h"
#include "hidden_file.h"

#include <platform/foundation/literals.h>

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brenvaldo::platform::storage {

namespace {

constexpr mode_t modeBeforeMask = 0666;

/// A file that is about to be removed as abandoned has lost its name by the time it is claimed.
bool hasName(int descriptor)
{
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 && status.st_nlink > 0;
}

bool giveName(const QByteArray& descriptorPath, const QByteArray& name)
{
    return ::linkat(
               AT_FDCWD, descriptorPath.constData(), AT_FDCWD, name.constData(), AT_SYMLINK_FOLLOW
           )
        == 0;
}

/// A new name takes the place of another only by way of a third.
bool replaceName(const QByteArray& descriptorPath, const QString& target)
{
    const QString hidden
        = hiddenName(QFileInfo(target).path(), [&descriptorPath](const QByteArray& name) {
              return giveName(descriptorPath, name);
          });
    if (hidden.isEmpty())
        return false;
    const QByteArray name = QFile::encodeName(hidden);
    const bool isReplaced
        = std::rename(name.constData(), QFile::encodeName(target).constData()) == 0;
    if (!isReplaced)
        ::unlink(name.constData());
    return isReplaced;
}

} // namespace

TemporaryFile::TemporaryFile(const QString& folder, Form form)
{
    if (form == Form::Hidden || !makeNameless(folder))
        makeHidden(folder);
}

TemporaryFile::~TemporaryFile()
{
    if (m_isHidden)
        ::unlink(QFile::encodeName(m_path).constData());
    close();
}

bool TemporaryFile::makeNameless(const QString& folder)
{
    m_descriptor = ::open(
        QFile::encodeName(folder).constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, modeBeforeMask
    );
    if (m_descriptor < 0)
        return false;
    m_path = u"/proc/self/fd/%1"_s.arg(m_descriptor);
    // On its way over another file it has a hidden name for a moment.
    if (::access(QFile::encodeName(m_path).constData(), W_OK) == 0 && claimHiddenFile(m_descriptor))
        return true;
    close();
    return false;
}

void TemporaryFile::makeHidden(const QString& folder)
{
    m_path = hiddenName(folder, [this](const QByteArray& name) {
        m_descriptor
            = ::open(name.constData(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, modeBeforeMask);
        if (!isValid())
            return false;
        if (claimHiddenFile(m_descriptor) && hasName(m_descriptor))
            return true;
        close();
        errno = EEXIST;
        return false;
    });
    m_isHidden = isValid();
}

bool TemporaryFile::moveTo(const QString& target, Existing existing)
{
    const bool isMoved = existing == Existing::Kept ? takeFreeName(target) : takeName(target);
    if (isMoved) {
        m_isHidden = false;
        close();
    }
    return isMoved;
}

bool TemporaryFile::takeFreeName(const QString& target) const
{
    const QByteArray source = QFile::encodeName(m_path);
    const QByteArray name = QFile::encodeName(target);
    return m_isHidden ? renameToFreeName(source, name) : giveName(source, name);
}

bool TemporaryFile::takeName(const QString& target) const
{
    const QByteArray source = QFile::encodeName(m_path);
    const QByteArray name = QFile::encodeName(target);
    return m_isHidden ? std::rename(source.constData(), name.constData()) == 0
                      : giveName(source, name) || (errno == EEXIST && replaceName(source, target));
}

void TemporaryFile::close()
{
    if (isValid())
        ::close(m_descriptor);
    m_descriptor = -1;
    m_path.clear();
}

} // namespace brenvaldo::platform::storage
