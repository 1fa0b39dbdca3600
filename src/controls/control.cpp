// SPDX-License-Identifier: GPL-3.0-or-later
#include "control.h"

namespace brenvaldo::controls {

Control::Control(QString name)
    : m_name(std::move(name))
{
}

void Control::setEnabled(bool enabled)
{
    if (m_enabled == enabled)
        return;
    m_enabled = enabled;
    changed();
}

void Control::setHidden(bool hidden)
{
    if (m_hidden == hidden)
        return;
    m_hidden = hidden;
    changed();
}

void Control::setToolTip(const QString& toolTip)
{
    if (m_toolTip == toolTip)
        return;
    m_toolTip = toolTip;
    changed();
}

} // namespace brenvaldo::controls
