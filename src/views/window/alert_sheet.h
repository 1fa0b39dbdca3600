// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/action_registry.h>
#include <panels/window_controls.h>

#include <QDialog>

class QLabel;

namespace brenvaldo::views {

/// The message sheet of the main window: it opens and closes with `wwAlertWindow` and shows its
/// title and text. OK and Escape send the action that closes it.
class AlertSheet : public QDialog
{
    Q_OBJECT

public:
    AlertSheet(
        const panels::WindowControls& window,
        const controls::ActionRegistry& actions,
        QWidget* parent
    );

    void reject() override;

private:
    void follow();

    const panels::WindowControls& m_window;
    const controls::ActionRegistry& m_actions;
};

/// The system's texts part lines by carriage returns; so they show as lines, empty ones at the
/// start left out.
[[nodiscard]] QString alertLines(const QString& text);

} // namespace brenvaldo::views
