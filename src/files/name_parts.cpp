// SPDX-License-Identifier: GPL-3.0-or-later
#include "name_parts.h"

#include <platform/foundation/paths.h>

namespace brenvaldo::files {

NameParts partsOf(const QString& name)
{
    return {
        .base = precomposed(platform::deletingPathExtension(name)),
        .extension = platform::pathExtension(name)};
}

QString joined(const NameParts& parts)
{
    if (parts.extension.isEmpty())
        return parts.base;
    return platform::appendingPathExtension(parts.base, parts.extension);
}

QString precomposed(const QString& text) { return text.normalized(QString::NormalizationForm_C); }

} // namespace brenvaldo::files
