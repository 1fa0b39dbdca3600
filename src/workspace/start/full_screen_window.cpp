// SPDX-License-Identifier: GPL-3.0-or-later
#include "full_screen_window.h"

namespace brenvaldo::workspace {

DVFFullScreen::DVFFullScreen(const QRectF& contentRect, Screens screens)
    : m_screens(std::move(screens))
    , m_originalRect(contentRect)
    , m_frame(contentRect)
{
}

void DVFFullScreen::setFrame(const QRectF& frame) { m_frame = frame; }

void DVFFullScreen::toggleFullscreen()
{
    if (m_fullscreenState == 1) {
        restore();
        return;
    }
    m_originalRect = m_frame;
    fillScreen();
}

void DVFFullScreen::setFullscreenEnabled(int enabled)
{
    if (enabled != 1) {
        restore();
        return;
    }
    if (m_frame.size() != firstScreen().size())
        m_originalRect = m_frame;
    fillScreen();
}

void DVFFullScreen::windowWillClose()
{
    m_menuBarShown = true;
    changed();
}

QRectF DVFFullScreen::firstScreen() const { return m_screens().value(0); }

void DVFFullScreen::fillScreen()
{
    m_menuBarShown = false;
    m_frame = firstScreen();
    m_fullscreenState = 1;
    changed();
}

void DVFFullScreen::restore()
{
    m_frame = m_originalRect;
    m_menuBarShown = true;
    m_fullscreenState = 0;
    changed();
}

} // namespace brenvaldo::workspace
