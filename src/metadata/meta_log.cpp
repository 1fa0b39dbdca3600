// SPDX-License-Identifier: GPL-3.0-or-later
#include "meta_log.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>

namespace brenvaldo::metadata {

QStringList metaLogRow(const QDateTime& date, const QString& status, const QString& path)
{
    const QString name = platform::lastPathComponent(path);
    return {
        date.toUTC().toString(u"yyyy-MM-dd HH:mm:ss +0000"_s),
        u"File Editing"_s,
        u"Edit meta data"_s,
        status,
        name,
        name,
        path,
        path};
}

} // namespace brenvaldo::metadata
