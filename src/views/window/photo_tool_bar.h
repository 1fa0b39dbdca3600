// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands.h"

#include <panels/window_controls.h>
#include <views/form/binder.h>

#include <QWidget>

class QHBoxLayout;
class QPushButton;

namespace brenvaldo::views {

/// The tools of the photo list above the grid, with the master tick and the counter. In a narrow
/// window they are drawings only.
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

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showTitles(bool shown);
    void addTitled(QHBoxLayout& line, QAction& command);
    void addDrawn(QHBoxLayout& line, QAction& command);
    void addGap(QHBoxLayout& line);
    void addCounter(QHBoxLayout& line, panels::WindowControls& window, const Binder& binder);

    QList<QPushButton*> m_titled; ///< show their titles while there is room for all
    int m_titledWidth = 0;
};

/// "16 photos" for the counter's text "16"; other texts stay as they are.
[[nodiscard]] QString countText(const QString& counter);

} // namespace brenvaldo::views
