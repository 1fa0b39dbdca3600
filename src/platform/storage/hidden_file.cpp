// SPDX-License-Identifier: GPL-3.0-or-later
#include "hidden_file.h"

#include "file_descriptor.h"

#include <platform/foundation/literals.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <cerrno>

#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brenvaldo::platform::storage {

namespace {

bool isHiddenName(const QString& name)
{
    static const QRegularExpression pattern(
        u"^\\.brenvaldo-[0-9a-f]{8}$"_s, QRegularExpression::DontCaptureOption
    );
    return pattern.match(name).hasMatch();
}

bool isOwnPlainFile(int descriptor)
{
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)
        && status.st_uid == ::geteuid();
}

} // namespace

QString hiddenName(const QString& folder, const std::function<bool(const QByteArray&)>& make)
{
    constexpr int attempts = 100;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const QString path = QDir(folder).filePath(
            u".brenvaldo-%1"_s.arg(QRandomGenerator::global()->generate(), 8, 16, QLatin1Char('0'))
        );
        if (make(QFile::encodeName(path)))
            return path;
        if (errno != EEXIST)
            break;
    }
    return {};
}

bool claimHiddenFile(int descriptor)
{
    // A file system without locks has nobody who could take one to remove the file.
    return ::flock(descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

void removeAbandonedFiles(const QString& folder)
{
    if (folder.isEmpty())
        return;
    QDirIterator files(
        folder, {u".brenvaldo-*"_s}, QDir::Files | QDir::Hidden | QDir::System | QDir::NoSymLinks
    );
    while (files.hasNext()) {
        const QString path = files.next();
        if (!isHiddenName(files.fileName()))
            continue;
        const FileDescriptor file(path, O_RDWR | O_NOFOLLOW | O_NONBLOCK);
        // The lock of a living process keeps its file.
        if (file.isOpen() && isOwnPlainFile(file.get())
            && ::flock(file.get(), LOCK_EX | LOCK_NB) == 0)
            ::unlink(QFile::encodeName(path).constData());
    }
}

} // namespace brenvaldo::platform::storage
