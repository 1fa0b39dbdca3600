// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "binder.h"
#include "commands.h"

#include <panels/window_controls.h>

#include <QWidget>

class QHBoxLayout;

namespace brenvaldo::views {

/// The tools of the photo list above the grid, with the master tick and the counter.
class PhotoToolBar : public QWidget
{
    Q_OBJECT

public:
    PhotoToolBar(
        const Commands& commands,
        QAction& infoToggle,
        panels::WindowControls& window,
        const Binder& binder,
        QWidget* parent = nullptr
    );

private:
    void addTitled(QHBoxLayout& line, QAction& command);
    void addDrawn(QHBoxLayout& line, QAction& command);
    void addGap(QHBoxLayout& line);
    void addCounter(QHBoxLayout& line, panels::WindowControls& window, const Binder& binder);
};

/// "16 photos" for the counter's text "16"; other texts stay as they are.
[[nodiscard]] QString countText(const QString& counter);

} // namespace brenvaldo::views
