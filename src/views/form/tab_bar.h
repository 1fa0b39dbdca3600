// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTabBar>

namespace brenvaldo::views {

/// Tabs that the wheel does not turn: which one is open decides what a run does, and the pointer
/// passes over them when a form is scrolled.
class TabBar : public QTabBar
{
    Q_OBJECT

public:
    using QTabBar::QTabBar;

protected:
    void wheelEvent(QWheelEvent* event) override;
};

} // namespace brenvaldo::views
