// SPDX-License-Identifier: GPL-3.0-or-later
#include "color_well.h"

namespace brenvaldo::controls {

ColorWell::ColorWell(const QString& name, platform::graphics::Color color)
    : Control(name)
    , m_color(color)
{
}

void ColorWell::setColor(const platform::graphics::Color& color)
{
    if (m_color == color)
        return;
    m_color = color;
    changed();
}

} // namespace brenvaldo::controls
