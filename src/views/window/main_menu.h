// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands.h"

class QMenuBar;
class QMainWindow;

namespace brenvaldo::views {

/// Orders of the window itself, beside those of the workspace.
struct WindowOrders
{
    QAction* photoInfo = nullptr;
    QAction* runJournal = nullptr;
    QAction* fit = nullptr;
    QAction* pixels = nullptr;
    QAction* fullScreen = nullptr;
    QAction* about = nullptr;
    QAction* quit = nullptr;

    [[nodiscard]] QList<QAction*> all() const
    {
        return {photoInfo, runJournal, fit, pixels, fullScreen, about, quit};
    }
};

/// Makes the orders of the window, with their texts and keys.
[[nodiscard]] WindowOrders makeWindowOrders(QObject& owner);

/// Fills the menu bar of `window`.
void fillMenuBar(QMainWindow& window, const Commands& commands, const WindowOrders& orders);

} // namespace brenvaldo::views
