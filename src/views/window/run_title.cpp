// SPDX-License-Identifier: GPL-3.0-or-later
#include "run_title.h"

#include <QCoreApplication>

namespace brenvaldo::views {

QString runTitle(qsizetype photos)
{
    if (photos == 0)
        return QCoreApplication::translate("RunTitle", "Process");
    if (photos == 1)
        return QCoreApplication::translate("RunTitle", "Process 1 photo");
    return QCoreApplication::translate("RunTitle", "Process %1 photos").arg(photos);
}

} // namespace brenvaldo::views
