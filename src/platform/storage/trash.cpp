// SPDX-License-Identifier: GPL-3.0-or-later
#include "trash.h"

#include "file_system.h"

#include <platform/foundation/folders.h>

#include <QFile>

namespace brenvaldo::platform {

bool moveToTrash(const QString& path)
{
    // Without its data folder Qt moves the file into the current folder and calls it success.
    if (!fileExists(path) || !createFolder(applicationSupportFolder()))
        return false;
    return QFile::moveToTrash(path);
}

} // namespace brenvaldo::platform
