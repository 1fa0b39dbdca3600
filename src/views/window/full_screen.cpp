// SPDX-License-Identifier: GPL-3.0-or-later
#include "full_screen.h"

#include <QAction>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>

namespace brenvaldo::views {

namespace {

QList<QRectF> screenFrames()
{
    QList<QRectF> frames;
    for (const QScreen* screen : QGuiApplication::screens())
        frames.append(screen->geometry());
    return frames;
}

} // namespace

FullScreen::FullScreen(QMainWindow& window, QAction& order)
    : QObject(&window)
    , m_window(window)
    , m_order(order)
    , m_state(window.geometry(), screenFrames)
    , m_changes(m_state.changed.connect([this] { show(); }))
{
    connect(&order, &QAction::triggered, this, &FullScreen::toggle);
    window.installEventFilter(this);
}

void FullScreen::toggle()
{
    if (m_state.fullscreenState() == 0)
        m_state.setFrame(m_window.geometry());
    m_state.toggleFullscreen();
}

void FullScreen::show()
{
    const bool isFull = m_state.fullscreenState() == 1;
    m_order.setChecked(isFull);
    m_window.menuBar()->setVisible(m_state.isMenuBarShown());
    if (isFull == m_window.isFullScreen())
        return;
    Qt::WindowStates state = m_window.windowState();
    if (isFull)
        m_window.setGeometry(m_state.frame().toRect());
    m_window.setWindowState(state.setFlag(Qt::WindowFullScreen, isFull));
    if (!isFull)
        m_window.setGeometry(m_state.frame().toRect());
}

/// The window manager can start and end full screen as well.
void FullScreen::takeWindowState()
{
    const bool isFull = m_window.isFullScreen();
    if (isFull == (m_state.fullscreenState() == 1))
        return;
    if (isFull)
        m_state.setFrame(m_window.normalGeometry());
    m_state.setFullscreenEnabled(isFull ? 1 : 0);
}

bool FullScreen::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::WindowStateChange)
        takeWindowState();
    if (event->type() == QEvent::Close)
        m_state.windowWillClose();
    if (event->type() == QEvent::KeyPress && m_state.fullscreenState() == 1
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        toggle();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace brenvaldo::views
