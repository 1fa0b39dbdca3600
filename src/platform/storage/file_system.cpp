// SPDX-License-Identifier: GPL-3.0-or-later
#include "file_system.h"

#include "file_copy.h"
#include "free_name.h"
#include "hidden_file.h"

#include <platform/foundation/files_in_the_making.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/foundation/paths.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brenvaldo::platform::storage {

namespace {

std::filesystem::path nativePath(const QString& path)
{
    return {QFile::encodeName(path).toStdString()};
}

/// True when a name is taken, by a broken link as well.
bool isTaken(const QString& path)
{
    struct stat status = {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0;
}

bool standsInside(const QString& path, const QString& folder)
{
    const QString inner = QFileInfo(QFileInfo(path).absolutePath()).canonicalFilePath() + u'/';
    return inner.startsWith(QFileInfo(folder).canonicalFilePath() + u'/');
}

bool copyLink(const SourceAndTarget& paths)
{
    std::error_code error;
    std::filesystem::copy_symlink(nativePath(paths.source), nativePath(paths.target), error);
    return !error;
}

bool copyToFreePlace(const SourceAndTarget& paths);

bool copyFolderContents(const SourceAndTarget& paths)
{
    for (const FolderEntry& entry : folderEntries(paths.source, HiddenFiles::Included)) {
        const QString target = appendingPathComponent(paths.target, entry.name);
        if (!copyToFreePlace({.source = entry.path, .target = target}))
            return false;
    }
    return true;
}

bool copyFolder(const SourceAndTarget& paths)
{
    if (standsInside(paths.target, paths.source) || !QFileInfo(paths.source).isReadable()
        || !QDir().mkdir(paths.target))
        return false;
    if (!copyFolderContents(paths)) {
        removeItem(paths.target);
        return false;
    }
    copyFolderAttributes(paths);
    return true;
}

bool copyToFreePlace(const SourceAndTarget& paths)
{
    const QFileInfo source(paths.source);
    if (source.isSymLink())
        return copyLink(paths);
    return source.isDir() ? copyFolder(paths) : copyPlainFile(paths);
}

/// As the system demands it of a folder that is moved within a volume.
bool isWritableFolder(const std::filesystem::path& folder)
{
    return ::faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

/// True when every folder in the item lets its entries go. What is half removed could not be
/// brought back.
bool canBeEmptied(const QString& path)
{
    namespace fs = std::filesystem;
    const fs::path top = nativePath(path);
    std::error_code error;
    if (!fs::is_directory(fs::symlink_status(top, error)))
        return true;
    if (!isWritableFolder(top))
        return false;
    for (fs::recursive_directory_iterator entry(top, error), end; !error && entry != end;
         entry.increment(error)) {
        if (fs::is_directory(entry->symlink_status(error)) && !isWritableFolder(entry->path()))
            return false;
    }
    return !error;
}

/// Takes the source out of its folder before anything of it is removed: where that is not allowed,
/// it is still whole.
bool removeSource(const QString& source)
{
    const QString item = appendingPathComponent(source, {});
    const QByteArray name = QFile::encodeName(item);
    const QString hidden
        = hiddenName(QFileInfo(item).path(), [&name](const QByteArray& hiddenPath) {
              return renameToFreeName(name, hiddenPath);
          });
    if (hidden.isEmpty())
        return false;
    if (!removeItem(hidden))
        log(u"Failed to remove all of %1"_s.arg(hidden));
    return true;
}

bool moveByCopy(const SourceAndTarget& paths)
{
    if (!canBeEmptied(paths.source) || !copyToFreePlace(paths))
        return false;
    if (removeSource(paths.source))
        return true;
    removeItem(paths.target);
    return false;
}

QDateTime dateOf(const statx_timestamp& stamp)
{
    return QDateTime::fromMSecsSinceEpoch(stamp.tv_sec * 1000 + stamp.tv_nsec / 1'000'000);
}

void appendTree(const QString& folder, QList<FolderEntry>& tree)
{
    for (const FolderEntry& entry : folderEntries(folder)) {
        tree += entry;
        if (entry.isFolder)
            appendTree(entry.path, tree);
    }
}

} // namespace

bool fileExists(const QString& path)
{
    awaitFile(path);
    return QFileInfo::exists(path);
}

bool isFolder(const QString& path) { return QFileInfo(path).isDir(); }

bool createFolder(const QString& path) { return !path.isEmpty() && QDir().mkpath(path); }

bool copyItem(const SourceAndTarget& paths)
{
    awaitFile(paths.source);
    awaitFile(paths.target);
    if (paths.target.isEmpty() || isTaken(paths.target))
        return false;
    return copyToFreePlace(paths);
}

bool moveItem(const SourceAndTarget& paths)
{
    awaitUsesOfFile(paths.source);
    awaitFile(paths.target);
    if (paths.target.isEmpty() || isTaken(paths.target))
        return false;
    const QByteArray target = QFile::encodeName(paths.target);
    if (renameToFreeName(QFile::encodeName(paths.source), target))
        return true;
    return errno == EXDEV && moveByCopy(paths);
}

bool createSymbolicLink(const SourceAndTarget& paths)
{
    awaitFile(paths.target);
    std::error_code error;
    std::filesystem::create_symlink(nativePath(paths.source), nativePath(paths.target), error);
    return !error;
}

bool removeItem(const QString& path)
{
    awaitUsesOfFile(path);
    // A trailing slash would lead through a link to the folder behind it.
    const QString item = appendingPathComponent(path, {});
    if (!isTaken(item))
        return false;
    std::error_code error;
    std::filesystem::remove_all(nativePath(item), error);
    return !error;
}

std::optional<FileAttributes> fileAttributes(const QString& path)
{
    awaitFile(path);
    struct statx status = {};
    constexpr unsigned wanted = STATX_SIZE | STATX_MTIME | STATX_BTIME;
    const QByteArray name = QFile::encodeName(path);
    if (::statx(AT_FDCWD, name.constData(), AT_SYMLINK_NOFOLLOW, wanted, &status) != 0)
        return std::nullopt;
    const bool hasBirth = (status.stx_mask & STATX_BTIME) != 0;
    return FileAttributes{
        .size = static_cast<std::int64_t>(status.stx_size),
        .creationDate = dateOf(hasBirth ? status.stx_btime : status.stx_mtime),
        .modificationDate = dateOf(status.stx_mtime),
    };
}

QList<FolderEntry> folderEntries(const QString& folder, HiddenFiles hidden)
{
    if (folder.isEmpty())
        return {};
    awaitFile(folder);
    QDir::Filters filters = QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot;
    if (hidden == HiddenFiles::Included)
        filters |= QDir::Hidden;
    QList<FolderEntry> entries;
    for (const QFileInfo& file : QDir(folder).entryInfoList(filters, QDir::Name)) {
        entries
            += {.path = appendingPathComponent(folder, file.fileName()),
                .name = file.fileName(),
                .isFolder = file.isDir() && !file.isSymLink()};
    }
    return entries;
}

QList<FolderEntry> folderTree(const QString& folder)
{
    QList<FolderEntry> tree;
    appendTree(folder, tree);
    return tree;
}

} // namespace brenvaldo::platform::storage
