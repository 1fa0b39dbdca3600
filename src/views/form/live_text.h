// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/control.h>

#include <QLabel>
#include <QList>
#include <QTimer>

#include <functional>

namespace brenvaldo::views {

/// A text on a strip of its own that is made anew when what it tells of has changed; hidden while
/// there is nothing to tell.
class LiveText : public QLabel
{
    Q_OBJECT

public:
    explicit LiveText(std::function<QString()> text, QWidget* parent = nullptr);

    /// The text tells of these controls.
    void follow(const QList<controls::Control*>& controls);
    /// Makes the text anew once the events at hand are over, however often it is called until then.
    void refreshSoon();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void refresh();

    std::function<QString()> m_makeText;
    QTimer m_soon;
};

} // namespace brenvaldo::views
