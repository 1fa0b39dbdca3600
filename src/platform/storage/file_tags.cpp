// SPDX-License-Identifier: GPL-3.0-or-later
#include "file_tags.h"

#include <QFile>

#include <sys/xattr.h>

namespace brenvaldo::platform::storage {

bool setFileTags(const QString& path, const QStringList& tags)
{
    const QByteArray value = tags.join(u',').toUtf8();
    return ::setxattr(
               QFile::encodeName(path).constData(),
               "user.xdg.tags",
               value.constData(),
               static_cast<std::size_t>(value.size()),
               0
           )
        == 0;
}

} // namespace brenvaldo::platform::storage
