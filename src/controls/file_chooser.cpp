// SPDX-License-Identifier: GPL-3.0-or-later
#include "file_chooser.h"

#include <platform/foundation/paths.h>

namespace brenvaldo::controls {

QString withAllowedType(const QString& path, const SavePanel& panel)
{
    const QString type = platform::pathExtension(path);
    const bool isOther = !type.isEmpty() && panel.allowsOtherTypes;
    if (panel.allowedTypes.isEmpty() || isOther
        || panel.allowedTypes.contains(type, Qt::CaseInsensitive))
        return path;
    return platform::appendingPathExtension(path, panel.allowedTypes.first());
}

} // namespace brenvaldo::controls
