// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool_box.h"

#include <platform/foundation/folders.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>

namespace brenvaldo::files {

namespace {

/// One status for the whole process: a failure shows until the next `hStoreFiles`.
StoreStatus& sharedStatus()
{
    static StoreStatus status = StoreStatus::Successful;
    return status;
}

StoreStatus noted(bool succeeded)
{
    if (!succeeded)
        sharedStatus() = StoreStatus::Failed;
    return sharedStatus();
}

} // namespace

QString text(StoreStatus status)
{
    return status == StoreStatus::Successful ? u"successfull"_s : u"Failed"_s;
}

StoreStatus cToolBox::hStoreFiles(const PathAndName& file)
{
    sharedStatus() = StoreStatus::Successful;
    const QString folder = platform::deletingLastPathComponent(file.path);
    const QString target = platform::appendingPathComponent(folder, file.name);
    if (!platform::storage::fileExists(target))
        return noted(platform::storage::copyItem({.source = file.path, .target = target}));
    const QString temporary = platform::appendingPathComponent(folder, file.name + u"-temp"_s);
    const bool copied = platform::storage::copyItem({.source = file.path, .target = temporary});
    const bool moved = platform::storage::moveItem({.source = temporary, .target = target});
    return noted(copied && moved);
}

StoreStatus cToolBox::hStoreFiles2(const platform::storage::SourceAndTarget& paths)
{
    return noted(platform::storage::copyItem(paths));
}

StoreStatus cToolBox::hStoreTempFile(const PathAndName& file)
{
    const QString target = platform::appendingPathComponent(hGetTempDir(), file.name);
    return noted(platform::storage::copyItem({.source = file.path, .target = target}));
}

QString cToolBox::hGetHomeDir() { return platform::homeFolder(); }

QString cToolBox::hGetTempDir()
{
    return platform::appendingPathComponent(hGetHomeDir(), u"Temp"_s);
}

} // namespace brenvaldo::files
