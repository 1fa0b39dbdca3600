// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <workspace/start/full_screen_window.h>

#include <QObject>

class QAction;
class QMainWindow;

namespace brenvaldo::views {

/// Lets a window fill the first screen, without its menu bar, and go back to where it was: by its
/// order, by Escape, or by the window manager.
class FullScreen : public QObject
{
    Q_OBJECT

public:
    /// `order` is checked while `window` is full screen. It and the other orders of the menu bar
    /// must belong to the window too, for their keys to work without the menu bar.
    FullScreen(QMainWindow& window, QAction& order);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void toggle();
    void show();
    void takeWindowState();

    QMainWindow& m_window;
    QAction& m_order;
    workspace::DVFFullScreen m_state;
    platform::Subscription m_changes;
};

} // namespace brenvaldo::views
