// SPDX-License-Identifier: GPL-3.0-or-later
#include "web_addresses.h"

#include <platform/foundation/literals.h>

#include <QSettings>

namespace brenvaldo::files {

QString webAddress(const QString& key)
{
    const QSettings addresses(u":/web-addresses.ini"_s, QSettings::IniFormat);
    return addresses.value(key).toString();
}

} // namespace brenvaldo::files
