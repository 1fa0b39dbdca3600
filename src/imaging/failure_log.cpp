// SPDX-License-Identifier: GPL-3.0-or-later
#include "failure_log.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>

namespace brenvaldo::imaging {

void logFailedWrite(const QString& path, const QString& reason)
{
    platform::log(u"Failed to write %1: %2"_s.arg(path, reason));
}

ResultWord failsForType(const QString& path, const QString& typeIdentifier)
{
    logFailedWrite(path, u"the type \"%1\" is not written here"_s.arg(typeIdentifier));
    return ResultWord::Failed;
}

} // namespace brenvaldo::imaging
