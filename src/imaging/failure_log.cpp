// SPDX-License-Identifier: GPL-3.0-or-later
#include "failure_log.h"

#include <platform/foundation/log.h>

namespace brenvaldo::imaging {

void logFailedWrite(const QString& path, const QString& reason)
{
    platform::log(QStringLiteral("Failed to write %1: %2").arg(path, reason));
}

ResultWord failsForType(const QString& path, const QString& typeIdentifier)
{
    logFailedWrite(path, QStringLiteral("the type \"%1\" is not written here").arg(typeIdentifier));
    return ResultWord::Failed;
}

} // namespace brenvaldo::imaging
