// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui_controls.h"

namespace brenvaldo::workspace {

void cGUIcontrols::hAlertWindow(const QString& title, const QString& text)
{
    m_window.wwAlertWindow.open();
    m_window.tfHTMLAlertTitle.setStringValue(title);
    m_window.tfHTMLAlertInfo.setStringValue(text);
    m_alertShown(title, text);
}

void cGUIcontrols::closeApplicationAlertSheetObjC() { m_window.wwAlertWindow.close(); }

} // namespace brenvaldo::workspace
