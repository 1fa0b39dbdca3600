// SPDX-License-Identifier: GPL-3.0-or-later
#include "file_handling.h"

#include <platform/containers/type_identifier.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>

namespace brenvaldo::files {

QString cNSFileHandling::hGetFileType(const QString& path)
{
    if (!platform::storage::fileExists(path))
        return {};
    if (platform::storage::isFolder(path))
        return u"public.folder"_s;
    return platform::containers::preferredTypeIdentifier(platform::pathExtension(path));
}

} // namespace brenvaldo::files
