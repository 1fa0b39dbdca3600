// SPDX-License-Identifier: GPL-3.0-or-later
#include "application.h"

#include <platform/foundation/handled_exception.h>
#include <platform/foundation/log.h>

namespace brenvaldo::app {

bool Application::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        platform::log(platform::handledException().reason());
        return true;
    }
}

} // namespace brenvaldo::app
