// SPDX-License-Identifier: GPL-3.0-or-later
#include "file_handling.h"

#include <platform/containers/type_identifier.h>
#include <platform/foundation/paths.h>

namespace brenvaldo::files {

QString cNSFileHandling::hGetFileType(const QString& path)
{
    if (!platform::fileExists(path))
        return {};
    if (platform::isFolder(path))
        return QStringLiteral("public.folder");
    return platform::preferredTypeIdentifier(platform::pathExtension(path));
}

} // namespace brenvaldo::files
