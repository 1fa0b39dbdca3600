// SPDX-License-Identifier: GPL-3.0-or-later
#include "file_property.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>
#include <platform/storage/file_label.h>

namespace brenvaldo::files {

QString DVFileProperty::dvGetFileLabel(const QString& path)
{
    const auto label = platform::storage::fileLabel(path);
    return label ? QString::number(*label) : u"none"_s;
}

QStringList DVFileProperty::hGetFileNameProps(const QString& path)
{
    return {
        platform::lastPathComponent(path),
        platform::pathExtension(path),
        platform::lastPathComponent(platform::deletingPathExtension(path))};
}

} // namespace brenvaldo::files
