// SPDX-License-Identifier: GPL-3.0-or-later
#include "extended_attributes.h"

#include <QByteArray>
#include <QList>

#include <sys/xattr.h>

namespace brenvaldo::platform::storage {

void copyExtendedAttributes(int source, int target)
{
    const ssize_t listSize = ::flistxattr(source, nullptr, 0);
    if (listSize <= 0)
        return;
    QByteArray names(listSize, '\0');
    if (::flistxattr(source, names.data(), static_cast<std::size_t>(listSize)) != listSize)
        return;
    names.chop(1);
    for (const QByteArray& name : names.split('\0')) {
        const ssize_t size = ::fgetxattr(source, name.constData(), nullptr, 0);
        if (!name.startsWith("user.") || size < 0)
            continue;
        QByteArray value(size, '\0');
        const auto room = static_cast<std::size_t>(size);
        if (::fgetxattr(source, name.constData(), value.data(), room) == size)
            ::fsetxattr(target, name.constData(), value.constData(), room, 0);
    }
}

} // namespace brenvaldo::platform::storage
