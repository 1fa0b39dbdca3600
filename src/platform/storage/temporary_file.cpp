// SPDX-License-Identifier: GPL-3.0-or-later
#include "temporary_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>
#include <functional>

#include <fcntl.h>
#include <unistd.h>

namespace brenvaldo::platform {

namespace {

constexpr mode_t modeBeforeMask = 0666;

/// Tries hidden names of `folder` until `make` succeeds with one, or fails for another reason than
/// that it is taken. The names are short: those of targets may be as long as a name can be.
QString hiddenName(const QString& folder, const std::function<bool(const QByteArray&)>& make)
{
    constexpr int attempts = 100;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const QString path = QDir(folder).filePath(
            QStringLiteral(".brenvaldo-%1")
                .arg(QRandomGenerator::global()->generate(), 8, 16, QLatin1Char('0'))
        );
        if (make(QFile::encodeName(path)))
            return path;
        if (errno != EEXIST)
            break;
    }
    return {};
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
    m_path = QStringLiteral("/proc/self/fd/%1").arg(m_descriptor);
    if (::access(QFile::encodeName(m_path).constData(), W_OK) == 0)
        return true;
    close();
    return false;
}

void TemporaryFile::makeHidden(const QString& folder)
{
    m_path = hiddenName(folder, [this](const QByteArray& name) {
        m_descriptor
            = ::open(name.constData(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, modeBeforeMask);
        return isValid();
    });
    m_isHidden = isValid();
}

bool TemporaryFile::moveTo(const QString& target)
{
    const QByteArray source = QFile::encodeName(m_path);
    const QByteArray name = QFile::encodeName(target);
    const bool isMoved = m_isHidden
        ? std::rename(source.constData(), name.constData()) == 0
        : giveName(source, name) || (errno == EEXIST && replaceName(source, target));
    if (isMoved) {
        m_isHidden = false;
        close();
    }
    return isMoved;
}

void TemporaryFile::close()
{
    if (isValid())
        ::close(m_descriptor);
    m_descriptor = -1;
    m_path.clear();
}

} // namespace brenvaldo::platform
