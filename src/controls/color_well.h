// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "control.h"

#include <platform/graphics/color.h>

namespace brenvaldo::controls {

/// A field that shows a colour and lets the user choose another.
class ColorWell : public Control
{
public:
    explicit ColorWell(const QString& name, platform::graphics::Color color = {});

    [[nodiscard]] const platform::graphics::Color& color() const { return m_color; }
    void setColor(const platform::graphics::Color& color);

private:
    platform::graphics::Color m_color;
};

} // namespace brenvaldo::controls
