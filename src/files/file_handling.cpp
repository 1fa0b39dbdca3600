// SPDX-License-Identifier: GPL-3.0-or-later
#include "file_handling.h"

#include "url_text.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/foundation/paths.h>
#include <platform/storage/file_icon.h>
#include <platform/storage/trash.h>

namespace brenvaldo::files {

using platform::storage::SourceAndTarget;

namespace {

FileResult okOrFailed(bool succeeded) { return succeeded ? FileResult::Ok : FileResult::Failed; }

FileResult
replaceTarget(const SourceAndTarget& paths, bool (*action)(const SourceAndTarget& freePaths))
{
    const QString folder = platform::deletingLastPathComponent(paths.target);
    platform::storage::createFolder(folder);
    if (!platform::storage::fileExists(folder))
        return FileResult::Failed;
    if (platform::storage::fileExists(paths.target))
        platform::storage::removeItem(paths.target);
    return okOrFailed(action(paths));
}

void deleteFolder(const QString& folder)
{
    for (const auto& entry :
         platform::storage::folderEntries(folder, platform::storage::HiddenFiles::Included))
        platform::storage::removeItem(entry.path);
    platform::storage::removeItem(folder);
}

void copyFilesOf(const SourceAndTarget& folders)
{
    for (const auto& entry : platform::storage::folderEntries(
             folders.source, platform::storage::HiddenFiles::Included
         )) {
        if (platform::storage::isFolder(entry.path))
            continue;
        const QString target = platform::appendingPathComponent(folders.target, entry.name);
        if (!platform::storage::copyItem({.source = entry.path, .target = target}))
            platform::log(
                u"Error Copying: \"%1\" can't be copied to \"%2\""_s.arg(entry.path, target)
            );
    }
}

} // namespace

FileResult cNSFileHandling::hCreateDirectory(const QString& path)
{
    if (platform::storage::fileExists(path))
        return FileResult::Exists;
    return platform::storage::createFolder(path) ? FileResult::Ok : FileResult::NotCreated;
}

FileResult cNSFileHandling::hCopyFileTo(const SourceAndTarget& paths)
{
    return replaceTarget(paths, platform::storage::copyItem);
}

FileResult cNSFileHandling::hMoveFileTo(const SourceAndTarget& paths)
{
    return replaceTarget(paths, platform::storage::moveItem);
}

FileResult cNSFileHandling::hAliasFileTo(const SourceAndTarget& paths)
{
    return replaceTarget(paths, platform::storage::createSymbolicLink);
}

FileResult cNSFileHandling::hCopyFileToDest(const SourceAndTarget& paths)
{
    platform::storage::createFolder(paths.target);
    return okOrFailed(
        platform::storage::fileExists(paths.target) && platform::storage::copyItem(paths)
    );
}

FileResult cNSFileHandling::hCopyFolderTo(const SourceAndTarget& paths)
{
    return platform::storage::copyItem(paths) ? FileResult::Success : FileResult::Failed;
}

FileResult cNSFileHandling::hCopyAppTo(const SourceAndTarget& folders)
{
    if (platform::storage::fileExists(folders.source))
        deleteFolder(folders.source);
    else
        copyFilesOf(
            {.source = platform::deletingLastPathComponent(folders.source),
             .target = folders.target}
        );
    return FileResult::Success;
}

FileResult cNSFileHandling::hTrashFile(const QString& path)
{
    return okOrFailed(platform::storage::moveToTrash(path));
}

FileResult cNSFileHandling::hDeleteFiles(const QList<QUrl>& files)
{
    for (const QUrl& file : files)
        platform::storage::removeItem(file.toLocalFile());
    return FileResult::Ok;
}

void cNSFileHandling::hShowInFinder(platform::storage::Desktop& desktop, const QString& path)
{
    desktop.reveal(path);
}

void cNSFileHandling::hRenameFile(const PathAndName& file)
{
    const QString folder = platform::deletingLastPathComponent(file.path);
    const auto source = urlFromText(file.path);
    const auto target = urlFromText(platform::appendingPathComponent(folder, file.name));
    if (!source || !target)
        return;
    platform::storage::moveItem({.source = source->path(), .target = target->path()});
}

void cNSFileHandling::hRenameFile2(const SourceAndTarget& paths)
{
    platform::storage::copyItem(paths);
}

FileResult cNSFileHandling::hCheckIfFileExist(const QString& path)
{
    return platform::storage::fileExists(path) ? FileResult::Ok : FileResult::No;
}

void cNSFileHandling::hAddIconToFile(const QString& path, const QImage& icon)
{
    platform::storage::setFileIcon(path, icon);
}

} // namespace brenvaldo::files
