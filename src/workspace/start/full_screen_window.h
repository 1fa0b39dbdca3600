// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/foundation/signal.h>

#include <QList>
#include <QRectF>

#include <functional>

namespace brenvaldo::workspace {

/// The state of a window that can fill the first screen and go back to where it was.
class DVFFullScreen
{
public:
    /// Frames of all screens, the first one first.
    using Screens = std::function<QList<QRectF>()>;

    DVFFullScreen(const QRectF& contentRect, Screens screens);

    [[nodiscard]] int fullscreenState() const { return m_fullscreenState; } ///< 1 while full screen
    [[nodiscard]] const QRectF& originalRect() const { return m_originalRect; }
    [[nodiscard]] const QRectF& frame() const { return m_frame; }
    [[nodiscard]] bool isMenuBarShown() const { return m_menuBarShown; }
    [[nodiscard]] bool canBecomeKeyWindow() const { return true; }

    /// The user has moved or sized the window.
    void setFrame(const QRectF& frame);

    void toggleFullscreen();
    /// 1 fills the screen, and a second time keeps the earlier frame; any other value goes back.
    void setFullscreenEnabled(int enabled);
    void windowWillClose();

    /// Sent when the window is to take on another frame or menu bar.
    platform::Signal<> changed;

private:
    [[nodiscard]] QRectF firstScreen() const;
    void fillScreen();
    void restore();

    Screens m_screens;
    QRectF m_originalRect;
    QRectF m_frame;
    int m_fullscreenState = 0;
    bool m_menuBarShown = true;
};

} // namespace brenvaldo::workspace
