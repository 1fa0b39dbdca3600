// SPDX-License-Identifier: GPL-3.0-or-later
#include "run_loop.h"

#include <QAbstractEventDispatcher>
#include <QDeadlineTimer>

namespace brenvaldo::platform {

void pumpEvents(std::chrono::microseconds atMost)
{
    QAbstractEventDispatcher* const dispatcher = QAbstractEventDispatcher::instance();
    if (!dispatcher)
        return;
    const QDeadlineTimer deadline(atMost, Qt::PreciseTimer);
    while (dispatcher->processEvents(QEventLoop::AllEvents) && !deadline.hasExpired()) { }
}

} // namespace brenvaldo::platform
