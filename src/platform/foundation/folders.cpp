// SPDX-License-Identifier: GPL-3.0-or-later
#include "folders.h"

#include "literals.h"
#include "paths.h"

#include <QStandardPaths>

namespace brenvaldo::platform {

QString applicationSupportFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

QString homeFolder() { return appendingPathComponent(applicationSupportFolder(), u"Brenvaldo"_s); }

QString configurationFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
}

QString desktopFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
}

} // namespace brenvaldo::platform
