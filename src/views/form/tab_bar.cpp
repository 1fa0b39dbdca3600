// SPDX-License-Identifier: GPL-3.0-or-later
#include "tab_bar.h"

#include <QWheelEvent>

namespace brenvaldo::views {

void TabBar::wheelEvent(QWheelEvent* event) { event->ignore(); }

} // namespace brenvaldo::views
